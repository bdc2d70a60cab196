#pragma once

#include "base/Scheduler.h"
#include "editor/canvas/AnnotationCommands.h"
#include "editor/canvas/CanvasGesture.h"
#include "editor/canvas/CanvasLayers.h"
#include "editor/canvas/CanvasTarget.h"
#include "editor/canvas/CanvasViewport.h"
#include "editor/canvas/EditorToolStyles.h"
#include "editor/model/BlurMode.h"
#include "editor/model/EditorCropSession.h"
#include "editor/model/EditorTool.h"

#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace tembra {

class CanvasTextEditor;
class EditorCropOverlay;

// Shows a screenshot with its annotations and lets the user draw, change and crop. What the user does becomes
// steps of the document's undo; the view itself keeps only what is seen. View space is points from its top
// left, image space that of EditorPoint.h. Main thread; owned by the editor's window.
class ScreenshotCanvasView final : public QWidget {
    Q_OBJECT

public:
    // The services must outlive this.
    ScreenshotCanvasView(UserDefaults &defaults, Pasteboard &pasteboard, Scheduler &scheduler,
                         QWidget *parent = nullptr);
    ~ScreenshotCanvasView() override;

    // What is edited from now on; it must outlive its time here. Nothing is typed or drawn any more.
    void setDocument(ScreenshotEditDocument *document, std::shared_ptr<const ImagePyramid> image);
    // More pixels of the same image.
    void setImage(std::shared_ptr<const ImagePyramid> image);
    // After every change of the document.
    void documentChanged();

    [[nodiscard]] EditorTool tool() const { return m_tool; }
    void setTool(EditorTool tool);
    [[nodiscard]] BlurMode blurMode() const { return m_blurMode; }
    void setBlurMode(BlurMode mode);
    // The words of the image, for the blur tool's text mode.
    void setWords(std::vector<QRectF> words);

    // What the controls of the style are about: the selected annotations, or what the tool would draw.
    [[nodiscard]] std::vector<ScreenshotAnnotation> styledAnnotations() const;
    void restyle(const EditorStyleChange &change);
    // Of what is drawn next.
    [[nodiscard]] EditorColor color() const;
    // Of what the tool draws.
    void stepSize(EditorTool tool, int steps);

    [[nodiscard]] const CanvasViewport &viewport() const { return m_viewport; }
    void zoomBy(double factor, QPointF anchor);

    // While the crop tool is in use.
    [[nodiscard]] const EditorCropSession *cropSession() const { return m_cropSession.get(); }
    void applyCrop();
    void cancelCrop();

    [[nodiscard]] bool isTyping() const { return !m_textEditor.isNull(); }
    // What was typed is kept.
    void finishTyping();
    // What the pointer or the keyboard has begun, and not ended, is given up.
    void cancelGesture();

    // The commands of the menus.
    void undoEdit();
    void redoEdit();
    void cut();
    void copy();
    void paste();
    void selectAll();
    void duplicateObject();
    void deleteSelected();
    void zoomIn();
    void zoomOut();
    void fitToWindow();
    void actualSize();

    // A key that came to another part of the window; whether it meant something.
    bool handleKey(const QKeyEvent &event);
    // Types the selected text, or draws what the tool draws in the middle of what is seen, to be moved by the
    // keys.
    void drawOrType();
    // What is drawn, as a list for assistive programs: the rectangle is in points of the view.
    [[nodiscard]] ScreenshotEditDocument *document() const { return m_document; }

Q_SIGNALS:
    // Tool, style, selection, zoom, crop or the document: the controls are to show them anew.
    void changed();
    // One of the nine colours was chosen by its number.
    void colorChosen(int number);
    // Something could not be done, and why.
    void failed(const QString &sentence);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    // Showing (ScreenshotCanvasView.cpp).
    [[nodiscard]] CanvasScene scene() const;
    [[nodiscard]] QRectF shownContent() const;
    [[nodiscard]] std::vector<ScreenshotAnnotation> shownSelection() const;
    void drawSelection(QPainter &painter);
    void drawDecorations(QPainter &painter, const QRectF &exposed);
    void viewportChanged();
    void updateContent();
    // Of what was drawn or selected.
    void tellAssistivePrograms();
    void tellSelected();
    [[nodiscard]] QRectF extentOf(const CanvasDraft &draft) const;
    [[nodiscard]] QRectF replacedExtent(const CanvasDraft &draft) const;
    void setDraft(CanvasDraft draft);

    // The document's annotation; nothing when it has none with that id.
    [[nodiscard]] const ScreenshotAnnotation *known(const QUuid &id) const;

    // The pointer (ScreenshotCanvasPointer.cpp).
    [[nodiscard]] std::optional<CanvasTarget> targetAt(QPointF view) const;
    [[nodiscard]] std::unique_ptr<CanvasGesture> gestureFor(QPointF image, Qt::KeyboardModifiers modifiers);
    [[nodiscard]] std::unique_ptr<CanvasGesture> takingHold(const CanvasTarget &target, QPointF image,
                                                            Qt::KeyboardModifiers modifiers);
    [[nodiscard]] std::unique_ptr<CanvasGesture> selecting(QPointF image, Qt::KeyboardModifiers modifiers);
    [[nodiscard]] std::unique_ptr<CanvasGesture> drawing(QPointF image);
    [[nodiscard]] std::unique_ptr<CanvasGesture> placingNumber();
    [[nodiscard]] std::vector<QRectF> alignmentTargets(const QSet<QUuid> &moving) const;
    void finishGesture();
    void updateHover(QPointF view);
    void beginPan(QPointF view);
    bool pinch(const QEvent &event);

    // Keys (ScreenshotCanvasKeys.cpp).
    void holdSpace(bool isHeld);
    bool handlePlainKey(const QKeyEvent &event);
    bool handleArrow(const QKeyEvent &event);
    bool handleCropKey(int key);
    bool handleOrderKey(int key);
    void cancelStep();
    void placeInMiddle();

    // Text, crop and style (ScreenshotCanvasTools.cpp).
    void tellNumbersEnd();
    [[nodiscard]] ScreenshotAnnotation prototype(ScreenshotAnnotation::Kind kind) const;
    [[nodiscard]] EditorStyle styleOfTool(ScreenshotAnnotation::Kind kind) const;
    void typeText(const ScreenshotAnnotation &annotation);
    void typeNewText(QPointF image);
    void beginCrop();
    void endCrop(const std::optional<QRectF> &crop);
    void leaveTool(EditorTool next);
    [[nodiscard]] AnnotationCommands commands() { return {*m_document, m_viewport.content()}; }

    Pasteboard &m_pasteboard;
    Scheduler &m_scheduler;
    EditorToolStyles m_styles;
    ScreenshotEditDocument *m_document = nullptr;
    std::shared_ptr<const ImagePyramid> m_image;
    CanvasViewport m_viewport;
    CanvasLayers m_layers;
    // How many annotations assistive programs know of.
    std::size_t m_toldCount = 0;
    QSet<QUuid> m_toldSelection;
    // What is shown roughly during a zoom is drawn again when it has ended.
    WorkItem m_refinement;
    // Around the selected ones, before they are moved. Image space.
    std::vector<QRectF> m_frames;

    EditorTool m_tool = EditorTool::select;
    // To return to after a crop.
    EditorTool m_toolBeforeCrop = EditorTool::select;
    BlurMode m_blurMode = BlurMode::area;
    std::vector<QRectF> m_words;
    std::optional<QRectF> m_hoveredWord;
    // What the next badge shows when the user has said so.
    std::optional<std::int64_t> m_nextNumber;

    std::unique_ptr<CanvasGesture> m_gesture;
    CanvasDraft m_draft;
    // Where it was last. View space.
    QPointF m_pointer;
    // Where the view was taken hold of, in view space.
    std::optional<QPointF> m_panFrom;
    bool m_isSpaceHeld = false;
    double m_pinch = 1;

    QPointer<CanvasTextEditor> m_textEditor;
    bool m_isNewText = false;
    std::unique_ptr<EditorCropSession> m_cropSession;
    QPointer<EditorCropOverlay> m_cropOverlay;
};

} // namespace tembra
