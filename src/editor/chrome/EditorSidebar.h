#pragma once

#include "controls/KeyboardFocus.h"
#include "editor/chrome/EditorSidebarItem.h"

#include <QListView>

#include <vector>

namespace tembra {

class EditorSidebarDelegate;
class EditorSidebarModel;
class ShelfScroller;
class Thumbnails;

// The screenshots of the folder, one of which is current, as a column of tiles. Only what is in view costs
// anything.
class EditorSidebar final : public QListView {
    Q_OBJECT

public:
    static constexpr int barWidth = 120;

    explicit EditorSidebar(Thumbnails &thumbnails, QWidget *parent = nullptr);

    void apply(std::vector<EditorSidebarItem> items);
    // Shows the tile as the current one; none where the path is not in the list.
    void setCurrent(const QString &path);
    [[nodiscard]] QSize sizeHint() const override { return {barWidth, 400}; }

Q_SIGNALS:
    // By the user.
    void chosen(const QString &path);

protected:
    // Keys that do not choose are for others: letters are those of the tools.
    void keyPressEvent(QKeyEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    // Asks for the pictures of what can be seen.
    void requestPictures();

    EditorSidebarModel *m_items;
    EditorSidebarDelegate *m_delegate;
    ShelfScroller *m_scroller;
    KeyboardFocus m_keyboardFocus{*this};
    QString m_current;
    bool m_isShowingCurrent = false;
};

} // namespace tembra
