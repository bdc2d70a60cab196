#pragma once

#include "editor/chrome/EditorDockState.h"
#include "editor/model/EditorStyleChange.h"

#include <QWidget>

namespace tembra {

class EditorControlRow;
class EditorCropRow;
class EditorNotice;
class EditorStyleRow;
class EditorToolRow;
class FloatingShadow;

// The bar of tools and of their style that floats over the canvas, with a line for notices above it. As wide
// as what it shows; where that is too wide the style goes into a row of its own above the tools. The widget
// is a sibling of what it floats over and takes the pointer only where it can be seen. placeEditorOverlays()
// puts it into its place.
class EditorDock final : public QWidget {
    Q_OBJECT

public:
    explicit EditorDock(QWidget *parent = nullptr);

    void apply(const EditorDockState &state);
    // How wide the dock may be, as far as that can be.
    void setAvailableWidth(int width);
    // With the style in a row of its own.
    [[nodiscard]] int narrowestWidth() const;
    [[nodiscard]] QSize sizeHint() const override;
    // With what most tools have. A bar that is not in two rows is never narrower, where there is room, so
    // that the tools stay in their places.
    [[nodiscard]] int usualWidth() const;
    [[nodiscard]] bool isStacked() const;
    // The bar without the notice.
    [[nodiscard]] QRect barRect() const;

Q_SIGNALS:
    void toolChosen(tembra::EditorTool tool);
    void blurModeChosen(tembra::BlurMode mode);
    void styleChanged(const tembra::EditorStyleChange &change);
    void customColorRequested();
    void toolSizeScrolled(tembra::EditorTool tool, int steps);
    void cropApplied();
    void cropCancelled();
    // The number is no longer edited: the keyboard is free.
    void numberEditingEnded();
    // It has another size to be given.
    void sizeHintChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    // What is shown beside or above the tools; none where there is nothing.
    [[nodiscard]] EditorControlRow *secondRow() const;
    [[nodiscard]] int widestWidth() const;
    [[nodiscard]] QSize barSize() const;
    void layOut();

    EditorToolRow *m_tools;
    EditorStyleRow *m_style;
    EditorCropRow *m_crop;
    EditorNotice *m_notice;
    FloatingShadow *m_shadow;
    EditorDockState m_state;
    int m_availableWidth = QWIDGETSIZE_MAX;
    QRect m_separator;
};

} // namespace tembra
