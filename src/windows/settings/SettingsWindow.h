#pragma once

#include "windows/settings/SettingsPageId.h"

#include <QWidget>

#include <vector>

class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace tembra {

class SettingsPage;
class SettingsSidebar;
class ShelfScroller;
class TembraTextField;

// The window of the settings: the pages' names at the side, the current page beside them, and a field that
// searches in all of them. Escape ends a search, then closes. Main thread.
class SettingsWindow final : public QWidget {
    Q_OBJECT

public:
    // A page for each identifier, in their order; the window takes them over.
    explicit SettingsWindow(std::vector<SettingsPage *> pages, QWidget *parent = nullptr);

    void showPage(SettingsPageId page);
    [[nodiscard]] SettingsPageId currentPage() const;
    // Shows the rows that have every word of it, of whatever page.
    void search(const QString &text);
    // The page is what the user sees in front.
    [[nodiscard]] bool isShowing(SettingsPageId page) const;
    // What the system or others may have changed is asked again.
    void refresh();

Q_SIGNALS:
    // It has come to the front.
    void activated();
    void closed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void layOut();
    void addPages();
    void addShortcuts();
    void showPages();
    void showFound();
    // What has the keyboard is to be seen.
    void followFocus(QWidget *focused);

    const std::vector<SettingsPage *> m_pages;
    SettingsSidebar *m_sidebar;
    TembraTextField *m_search;
    QScrollArea *m_area;
    ShelfScroller *m_scroller;
    QLabel *m_nothingFound;
};

} // namespace tembra
