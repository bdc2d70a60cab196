#include "windows/settings/SettingsWindow.h"

#include "controls/TembraSettingsRow.h"
#include "settings/SettingsFixture.h"
#include "support/PseudoLocale.h"
#include "windows/settings/FileTraySettingsPage.h"
#include "windows/settings/ScreenshotsSettingsPage.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTest>

using namespace tembra;

namespace {

// With the same two pages over and over.
class SettingsWindows : public SettingsFixture {
protected:
    void SetUp() override {
        start();
        m_window = makeWindow();
        m_window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    }

    [[nodiscard]] std::unique_ptr<SettingsWindow> makeWindow() {
        std::vector<SettingsPage *> pages;
        for (const SettingsPageId page : allSettingsPages) {
            if (page == SettingsPageId::screenshots)
                pages.push_back(
                    new ScreenshotsSettingsPage(*m_settings, {.hasPreview = [] { return true; }}));
            else
                pages.push_back(new FileTraySettingsPage(*m_settings));
        }
        m_pages = pages;
        return std::make_unique<SettingsWindow>(pages);
    }

    [[nodiscard]] QStringList shownRows() const {
        QStringList titles;
        for (const SettingsPage *page : m_pages) {
            for (const TembraSettingsRow *row : page->rows()) {
                if (row->isVisible())
                    titles += row->title();
            }
        }
        titles.removeDuplicates();
        return titles;
    }

    std::vector<SettingsPage *> m_pages;
    std::unique_ptr<SettingsWindow> m_window;
};

} // namespace

TEST_F(SettingsWindows, aSearchFindsRowsOfEveryPageByTheirWords) {
    const auto found = [this](const char *words) {
        m_window->search(QString::fromUtf8(words));
        return shownRows().join(u'|');
    };
    EXPECT_EQ(found("group DATE"), QStringLiteral("Group by date"));
    // What stands under a title, and the headings, count too.
    EXPECT_EQ(found("pinned"), QStringLiteral("Move old screenshots to Trash"));
    EXPECT_EQ(found("screenshots grid"), QStringLiteral("Show file names|Group by date"));
    EXPECT_EQ(found("tray"), QStringLiteral("Show the file tray"));
    EXPECT_EQ(found("xyzzy"), QString());
    m_settings->setGroupScreenshotsByDate(true);
    EXPECT_EQ(shownRows(), QStringList()) << "a change shows what the search has not found";
    EXPECT_EQ(found(""), QStringLiteral("Show the file tray"));
}

TEST_F(SettingsWindows, theKeyboardReachesEverything) {
    QTest::keyClick(m_window.get(), Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(m_window->currentPage(), SettingsPageId::screenshots);
    QTest::keyClick(m_window->findChild<QListWidget *>(), Qt::Key_Up);
    EXPECT_EQ(m_window->currentPage(), SettingsPageId::general);
    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
    auto *search = m_window->findChild<QLineEdit *>();
    EXPECT_TRUE(search->hasFocus());
    QTest::keyClicks(search, QStringLiteral("date"));
    EXPECT_EQ(shownRows(), QStringList{QStringLiteral("Group by date")});
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_TRUE(search->text().isEmpty());
    EXPECT_TRUE(m_window->isVisible());
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_FALSE(m_window->isVisible());
}

TEST_F(SettingsWindows, longTextsFitAndTheWindowCanBeMirrored) {
    expectMirrorImage([this] {
        auto window = makeWindow();
        window->showPage(SettingsPageId::screenshots);
        return window;
    });
}
