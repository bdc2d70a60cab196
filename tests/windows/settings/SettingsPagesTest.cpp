#include "controls/TembraDropdownPopup.h"
#include "controls/TembraSettingsRow.h"
#include "controls/TembraToggle.h"
#include "settings/SettingsFixture.h"
#include "windows/settings/GeneralSettingsPage.h"
#include "windows/settings/ImageToTextSettingsPage.h"
#include "windows/settings/ScreenshotsSettingsPage.h"

#include <QAbstractButton>
#include <QTest>

using namespace tembra;

namespace {

using SettingsPages = SettingsFixture;
using Status = LoginItemService::Status;

template <class Control>
Control *control(const QWidget &page, const char *name) {
    for (Control *candidate : page.findChildren<Control *>()) {
        if (candidate->accessibleName() == QString::fromUtf8(name))
            return candidate;
    }
    ADD_FAILURE() << "There is no " << name;
    return nullptr;
}

const TembraSettingsRow &rowOf(const QWidget &control) {
    return *qobject_cast<const TembraSettingsRow *>(control.parentWidget());
}

} // namespace

TEST_F(SettingsPages, showWhatIsChangedElsewhereAndChangeWhatIsClicked) {
    start();
    const ScreenshotsSettingsPage page(*m_settings, {.hasPreview = [] { return true; }});
    auto *group = control<TembraToggle>(page, "Group by date");
    EXPECT_FALSE(group->isChecked());
    m_settings->setGroupScreenshotsByDate(true);
    EXPECT_TRUE(group->isChecked());
    group->click();
    EXPECT_FALSE(m_settings->state().groupScreenshotsByDate);

    const GeneralSettingsPage general(*m_settings, {.status = [] { return Status::enabled; }});
    auto *opening = control<TembraDropdownPopup>(general, "Open the shelf");
    EXPECT_EQ(opening->currentText(), QStringLiteral("On hover"));
    QTest::keyClick(opening, Qt::Key_Home);
    EXPECT_EQ(m_settings->state().activationMode, ActivationMode::click);
    m_settings->setActivationMode(ActivationMode::hover);
    EXPECT_EQ(opening->currentText(), QStringLiteral("On hover"));
}

TEST_F(SettingsPages, theLoginItemIsShownAsTheSystemHasIt) {
    start();
    Status status = Status::notRegistered;
    int approvals = 0;
    const LoginItemService service{.status = [&] { return status; },
                                   .registerItem = []() -> Result<void> { return failure(error()); },
                                   .unregisterItem = [&]() -> Result<void> {
                                       status = Status::notRegistered;
                                       return {};
                                   },
                                   .openApprovalSettings = [&]() -> Result<void> {
                                       ++approvals;
                                       return {};
                                   }};
    GeneralSettingsPage page(*m_settings, service);
    QStringList failures;
    QObject::connect(
        &page, &GeneralSettingsPage::failed, &page,
        [&](const QString &title, const QString &message) { failures += title + u'|' + message; });
    auto *login = control<TembraToggle>(page, "Launch at login");
    auto *approve = control<QAbstractButton>(page, "Allow Tembra in System Settings to launch at login");
    EXPECT_TRUE(rowOf(*approve).isHidden());
    login->click();
    EXPECT_FALSE(login->isChecked());
    EXPECT_EQ(failures, QStringList{QStringLiteral("Couldn’t change launch at login|It does not work.")});

    status = Status::enabled;
    page.refresh();
    EXPECT_TRUE(login->isChecked());
    login->click();
    EXPECT_EQ(status, Status::notRegistered);

    status = Status::requiresApproval;
    page.refresh();
    EXPECT_FALSE(login->isChecked());
    EXPECT_EQ(rowOf(*login).detail(),
              QStringLiteral("Disabled in macOS. Allow Tembra in System Settings to launch at login."));
    EXPECT_FALSE(rowOf(*approve).isHidden());
    approve->click();
    EXPECT_EQ(approvals, 1);

    status = Status::notFound;
    page.refresh();
    EXPECT_FALSE(login->isEnabled());
    EXPECT_EQ(rowOf(*login).detail(),
              QStringLiteral("Launch at login is unavailable for this copy of Tembra"));
}

TEST_F(SettingsPages, theFolderIsChosenAndARefusalSaysWhy) {
    start();
    std::optional<QString> chosen;
    QStringList changed;
    ScreenshotsSettingsPage page(*m_settings, {.askForFolder = [&](const QString &) { return chosen; },
                                               .changeFolder = [&](const QString &folder) -> Result<void> {
                                                   changed += folder;
                                                   return failure(error());
                                               },
                                               .hasPreview = [] { return false; }});
    QStringList failures;
    QObject::connect(&page, &ScreenshotsSettingsPage::failed, &page,
                     [&](const QString &title, const QString &) { failures += title; });
    auto *choose = control<QAbstractButton>(page, "Screenshots folder");
    choose->click();
    EXPECT_TRUE(changed.isEmpty());
    chosen = QStringLiteral("/there");
    choose->click();
    EXPECT_EQ(changed, QStringList{QStringLiteral("/there")});
    EXPECT_EQ(failures, QStringList{QStringLiteral("It does not work.")});
    EXPECT_FALSE(control<QAbstractButton>(page, "Open Screenshots Folder")->isEnabled());
    EXPECT_FALSE(control<TembraDropdownPopup>(page, "Move old screenshots to Trash")->isEnabled());
    ASSERT_TRUE(m_settings->grantScreenshotsFolder(makeFolder("shots"), false, false));
    EXPECT_EQ(rowOf(*choose).detail(), path("shots"));
    EXPECT_TRUE(control<QAbstractButton>(page, "Open Screenshots Folder")->isEnabled());
    EXPECT_TRUE(rowOf(*control<TembraToggle>(page, "Hide the screenshot tool’s preview")).isHidden());
}

TEST_F(SettingsPages, thePreviewOfTheToolIsHiddenWhereTheToolLetsIt) {
    start();
    ScreenshotsSettingsPage page(*m_settings, {.hasPreview = [] { return true; }});
    auto *hide = control<TembraToggle>(page, "Hide the screenshot tool’s preview");
    hide->click();
    EXPECT_TRUE(m_settings->state().screenshotPreviewDisabled);
    EXPECT_TRUE(hide->isChecked());
    hide->click();
    EXPECT_FALSE(m_settings->state().screenshotPreviewDisabled);
}

TEST_F(SettingsPages, thereIsAlwaysALanguageToRead) {
    start();
    std::function<void(Result<std::vector<TextRecognizer::Language>>)> list;
    const ImageToTextSettingsPage page(
        *m_settings, {.listLanguages = [&](auto told) { list = std::move(told); },
                      .usualLanguages =
                          [] {
                              return QStringList{QStringLiteral("eng"), QStringLiteral("fra")};
                          }});
    list(std::vector<TextRecognizer::Language>{{QStringLiteral("deu"), QStringLiteral("Deutsch")},
                                               {QStringLiteral("eng"), QStringLiteral("English")}});
    auto *automatic = control<TembraToggle>(page, "Follow the desktop’s languages");
    auto *german = control<TembraToggle>(page, "Deutsch");
    auto *english = control<TembraToggle>(page, "English");
    EXPECT_TRUE(automatic->isChecked());
    EXPECT_TRUE(english->isChecked());
    EXPECT_FALSE(german->isEnabled());
    automatic->click();
    EXPECT_EQ(m_settings->state().textRecognitionLanguages, QStringList{QStringLiteral("eng")});
    EXPECT_FALSE(english->isEnabled());
    german->click();
    EXPECT_TRUE(english->isEnabled());
    english->click();
    EXPECT_EQ(m_settings->state().textRecognitionLanguages, QStringList{QStringLiteral("deu")});
    EXPECT_FALSE(german->isEnabled());
    // One that is not installed any more does not count.
    m_settings->setTextRecognitionLanguages({QStringLiteral("fra"), QStringLiteral("deu")});
    EXPECT_FALSE(german->isEnabled());
    automatic->click();
    EXPECT_TRUE(m_settings->state().textRecognitionLanguages.isEmpty());
}
