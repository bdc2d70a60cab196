#pragma once

#include <QWidget>

namespace tembra {

class EditorControlRow;
class EditorFlatButton;
class ShelfMenu;

// How large the image is shown, and how to change that. Floats over the canvas, of which it is a sibling.
class EditorZoomControl final : public QWidget {
    Q_OBJECT

public:
    explicit EditorZoomControl(QWidget *parent = nullptr);

    // 1 shows a pixel of the image as one of the display.
    void setZoom(double fraction, bool isFit);
    [[nodiscard]] QSize sizeHint() const override;
    // What the percent opens; the caller's.
    [[nodiscard]] ShelfMenu *makeMenu();

Q_SIGNALS:
    void zoomInRequested();
    void zoomOutRequested();
    void fitRequested();
    void zoomRequested(double fraction);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void openMenu();

    EditorControlRow *m_row;
    EditorFlatButton *m_percent;
    EditorFlatButton *m_fit;
};

} // namespace tembra
