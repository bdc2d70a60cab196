#pragma once

#include "shelf/PreviewItem.h"

#include <QVariantAnimation>
#include <QWidget>

#include <vector>

namespace tembra {

class TembraButton;

// The window that shows files large: one in its whole size or as large as fits, several as a row. It takes no
// keys: they stay with the shelf. A click shows a picture in its actual size and back; then it can be dragged
// about.
class PreviewView final : public QWidget {
    Q_OBJECT

public:
    PreviewView();

    // Shows the items within `available` (screen points).
    void present(const std::vector<PreviewItem> &items, const QRectF &available);
    void dismiss();

Q_SIGNALS:
    void openRequested();
    void openWithRequested(QPoint globalPosition);
    // A click on a recording that is played.
    void pauseToggled();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void setActualSize(bool actual);
    [[nodiscard]] std::vector<QSizeF> sizes() const;
    [[nodiscard]] QString title() const;
    // A recording of which only a frame can be shown.
    [[nodiscard]] bool isStillRecording() const;
    void updateButton();
    void placeButton();
    // The only picture is larger than its place.
    [[nodiscard]] bool canShowActualSize() const;
    void paintItem(QPainter &painter, const PreviewItem &item, const QRectF &place) const;
    void paintActualSize(QPainter &painter) const;
    void paintFooter(QPainter &painter) const;
    [[nodiscard]] QRectF pictureArea() const;

    std::vector<PreviewItem> m_items;
    TembraButton *m_open;
    bool m_isActualSize = false;
    // Of the picture's middle from the window's, in points.
    QPointF m_offset;
    QPointF m_pressed;
    bool m_isPanning = false;
    QVariantAnimation m_opening;
};

} // namespace tembra
