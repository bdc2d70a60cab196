#include "screenshots/ScreenshotSaveLocation.h"

#include "settings/CocoaError.h"
#include "support/FakeScreenCapturePreferences.h"
#include "support/Unprivileged.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace tembra;

namespace {

class SaveLocation : public testing::Test {
protected:
    QTemporaryDir m_folder;
    FakeScreenCapturePreferences m_preferences;
};

} // namespace

TEST_F(SaveLocation, theToolIsPointedAtTheFolder) {
    m_preferences.tool = {QStringLiteral("~/Old"), QStringLiteral("clipboard"), false};
    ASSERT_TRUE(ScreenshotSaveLocation::setFolder(m_folder.path(), m_preferences));
    EXPECT_EQ(m_preferences.tool,
              (FakeScreenCapturePreferences::Values{m_folder.path(), QStringLiteral("file"), false}));
}

TEST_F(SaveLocation, aToolThatDoesNotTakeItKeepsBothOldValues) {
    struct Case {
        bool refusesLocation;
        bool refusesTarget;
        FakeScreenCapturePreferences::Values before;
    };
    const Case cases[]{
        {true, false, {QStringLiteral("~/Old"), QStringLiteral("clipboard"), {}}},
        {false, true, {QStringLiteral("~/Old"), QStringLiteral("clipboard"), {}}},
        {true, true, {QStringLiteral("~/Old"), QStringLiteral("mail"), true}},
        {true, false, {{}, {}, {}}},
    };
    for (const Case &c : cases) {
        m_preferences.tool = c.before;
        m_preferences.refusesLocation = c.refusesLocation;
        m_preferences.refusesTarget = c.refusesTarget;
        const auto result = ScreenshotSaveLocation::setFolder(m_folder.path(), m_preferences);
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().domain, QStringLiteral("Tembra.ScreenshotSaveLocation"));
        EXPECT_EQ(result.error().message, QStringLiteral("Couldn’t change the macOS screenshot folder."));
        EXPECT_EQ(result.error().recoverySuggestion,
                  QStringLiteral("Your previous folder is still selected. Try again, or change Save to in "
                                 "⇧⌘5 → Options."));
        EXPECT_EQ(m_preferences.tool, c.before);
    }
}

TEST_F(SaveLocation, aFolderThatCannotBeWrittenToIsNotTried) {
    m_preferences.tool.location = QStringLiteral("~/Old");
    ASSERT_EQ(::chmod(QFile::encodeName(m_folder.path()).constData(), 0555), 0);
    {
        const Unprivileged unprivileged;
        for (const QString &folder : {m_folder.path(), m_folder.filePath(QStringLiteral("gone")), QString(),
                                      QStringLiteral("."), QStringLiteral("https://example.org")}) {
            const auto result = ScreenshotSaveLocation::setFolder(folder, m_preferences);
            ASSERT_FALSE(result) << qPrintable(folder);
            EXPECT_EQ(result.error().domain, CocoaError::domain);
            EXPECT_EQ(result.error().code, CocoaError::fileWriteNoPermission);
        }
    }
    ASSERT_EQ(::chmod(QFile::encodeName(m_folder.path()).constData(), 0700), 0);
    EXPECT_EQ(m_preferences.tool.location, QStringLiteral("~/Old"));
    EXPECT_EQ(m_preferences.synchronizations, 0);
}
