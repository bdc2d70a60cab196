#define G_SETTINGS_ENABLE_BACKEND
#include "platform/linux/desktop/EventSoundSetting.h"

#include "support/Files.h"

#include <QTemporaryDir>

#include <gio/gio.h>
#include <gio/gsettingsbackend.h>
#include <gtest/gtest.h>

using namespace tembra;

namespace {

using Statement = EventSoundSetting::Statement;

EventSoundSetting::Source stating(const Statement &statement) {
    return [statement] { return statement; };
}

} // namespace

TEST(EventSoundSetting, theFirstToStateSomethingDecides) {
    const QString ocean = QStringLiteral("ocean");
    const QString freedesktop = QStringLiteral("freedesktop");
    struct Case {
        Statement first;
        Statement second;
        EventSoundSetting::Value value;
    };
    const Case cases[]{
        {{}, {}, {true, freedesktop}},
        {{}, {false, ocean}, {false, ocean}},
        {{true, freedesktop}, {false, ocean}, {true, freedesktop}},
        {{false, {}}, {true, ocean}, {false, ocean}},
        {{{}, ocean}, {false, freedesktop}, {false, ocean}},
    };
    for (const Case &c : cases)
        EXPECT_EQ(EventSoundSetting({stating(c.first), stating(c.second)}).read(), c.value);
}

TEST(EventSoundSetting, isReadFromGnomesSettings) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("keyfile"));
    const QByteArray path = QFile::encodeName(file);
    writeFile(file, "[org/gnome/desktop/sound]\nevent-sounds=false\ntheme-name='ocean'\n");
    const std::unique_ptr<GSettingsBackend, void (*)(void *)> backend(
        g_keyfile_settings_backend_new(path.constData(), "/", nullptr), g_object_unref);
    const Statement statement = EventSoundSetting::gnome(backend.get())();
    if (!statement.isEnabled)
        GTEST_SKIP() << "GNOME's settings are not installed";
    EXPECT_EQ(statement, (Statement{false, QStringLiteral("ocean")}));
}

TEST(EventSoundSetting, isReadFromKdesSettings) {
    struct Case {
        const char *content;
        Statement statement;
    };
    const Case cases[]{
        {"[Sounds]\nEnable=false\nTheme=ocean\n", {false, QStringLiteral("ocean")}},
        {"[Sounds]\nEnable=true\n", {true, std::nullopt}},
        {"[Sounds]\nEnable[$d]\nTheme=\n", {}},
        {"[Other]\nEnable=false\n", {}},
        {"\x01\xff[", {}},
    };
    for (const Case &c : cases) {
        const QTemporaryDir folder;
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
        EXPECT_EQ(EventSoundSetting::kde()(), Statement());
        writeFile(folder.filePath(QStringLiteral("kdeglobals")), c.content);
        EXPECT_EQ(EventSoundSetting::kde()(), c.statement) << c.content;
    }
    qunsetenv("XDG_CONFIG_HOME");
}
