#pragma once

#include "editor/chrome/EditorHeaderState.h"

#include <QWidget>

class QAbstractButton;

namespace tembra {

class EditorDragHandle;
class EditorNameField;
class LoadingIndicator;
class ShelfMenu;
class TembraButton;

// The bar along the editor's top: undo and redo, the file's name, and where the image goes. A drag of the bar
// moves the window, a double click makes it as large as the display and back.
class EditorHeader final : public QWidget {
    Q_OBJECT

public:
    static constexpr int barHeight = 52;

    explicit EditorHeader(QWidget *parent = nullptr);

    void apply(const EditorHeaderState &state);
    [[nodiscard]] EditorNameField &nameField() { return *m_name; }
    [[nodiscard]] EditorDragHandle &dragHandle() { return *m_drag; }
    [[nodiscard]] QSize sizeHint() const override { return {720, barHeight}; }
    // What the button with the dots opens; the caller's.
    [[nodiscard]] ShelfMenu *makeMenu();

Q_SIGNALS:
    void undoRequested();
    void redoRequested();
    void renameRequested(const QString &name);
    // The name is no longer edited: the keyboard is free.
    void nameEditingEnded();
    void dragRequested();
    void copyRequested();
    void saveAsRequested();
    void saveRequested();
    void trashRequested();
    void revealRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void connectControls();
    void openMenu();
    void layOut();
    void showSaving(bool isSaving);

    TembraButton *m_undo;
    TembraButton *m_redo;
    EditorNameField *m_name;
    EditorDragHandle *m_drag;
    QAbstractButton *m_more;
    TembraButton *m_copy;
    TembraButton *m_saveAs;
    TembraButton *m_save;
    LoadingIndicator *m_saving;
};

} // namespace tembra
