#pragma once

#include "shelf/ShelfTab.h"

#include <QWidget>

#include <optional>
#include <vector>

class QMimeData;

namespace tembra {

class ShelfButton;
class TembraButton;

// The strip of tabs at the top of the open shelf.
class ShelfHeader final : public QWidget {
    Q_OBJECT

public:
    static constexpr int height = 44;

    explicit ShelfHeader(QWidget *parent);

    void apply(const std::vector<ShelfTab> &tabs, ShelfTab active);
    // Offers to undo what is named so; nothing takes the offer away.
    void offerUndo(const std::optional<QString> &actionName);

Q_SIGNALS:
    void tabClicked(tembra::ShelfTab tab);
    void tabHovered(tembra::ShelfTab tab);
    // Something is held over the tab's button, or dropped on it.
    void tabDraggedOver(tembra::ShelfTab tab);
    void droppedOn(tembra::ShelfTab tab, const QMimeData *content);
    void tabLeft(tembra::ShelfTab tab);
    void undoClicked();
    void settingsClicked();
    // By a click of the other button, or the menu key: where the menu is to open.
    void programMenuRequested(QPoint globalPosition);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void build();
    void placeButtons();
    void place(QWidget &control, QPoint position) const;
    void arrangeForKeyboard();
    [[nodiscard]] QRect group() const;

    std::vector<ShelfTab> m_tabs;
    std::vector<ShelfButton *> m_buttons;
    TembraButton *m_undo;
    ShelfButton *m_settings;
};

} // namespace tembra
