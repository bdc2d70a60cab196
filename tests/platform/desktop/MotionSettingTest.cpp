#define G_SETTINGS_ENABLE_BACKEND
#include "platform/linux/desktop/MotionSetting.h"

#include "support/Files.h"

#include <QTemporaryDir>

#include <gio/gio.h>
#include <gio/gsettingsbackend.h>
#include <gtest/gtest.h>

using namespace tembra;

TEST(MotionSetting, theFirstToStateSomethingDecides) {
    const auto stating = [](std::optional<bool> isReduced) { return [isReduced] { return isReduced; }; };
    EXPECT_FALSE(MotionSetting({}).isReduced());
    EXPECT_FALSE(MotionSetting({stating({})}).isReduced());
    EXPECT_TRUE(MotionSetting({stating({}), stating(true)}).isReduced());
    EXPECT_FALSE(MotionSetting({stating(false), stating(true)}).isReduced());
}

TEST(MotionSetting, isReadFromGnomesSettings) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("keyfile"));
    const QByteArray path = QFile::encodeName(file);
    for (const bool isReduced : {true, false}) {
        writeFile(file, isReduced ? "[org/gnome/desktop/interface]\nenable-animations=false\n"
                                  : "[org/gnome/desktop/interface]\nenable-animations=true\n");
        const std::unique_ptr<GSettingsBackend, void (*)(void *)> backend(
            g_keyfile_settings_backend_new(path.constData(), "/", nullptr), g_object_unref);
        const auto statement = MotionSetting::gnome(backend.get())();
        if (!statement)
            GTEST_SKIP() << "GNOME's settings are not installed";
        EXPECT_EQ(*statement, isReduced);
    }
}

TEST(MotionSetting, isReadFromKdesSettings) {
    struct Case {
        const char *content;
        std::optional<bool> isReduced;
    };
    const Case cases[]{{"[KDE]\nAnimationDurationFactor=0\n", true},
                       {"[KDE]\nAnimationDurationFactor=0.5\n", false},
                       {"[KDE]\nAnimationDurationFactor=\n", std::nullopt},
                       {"[Other]\nAnimationDurationFactor=0\n", std::nullopt},
                       {"\x01\xff[", std::nullopt}};
    for (const Case &c : cases) {
        const QTemporaryDir folder;
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
        EXPECT_EQ(MotionSetting::kde()(), std::nullopt);
        writeFile(folder.filePath(QStringLiteral("kdeglobals")), c.content);
        EXPECT_EQ(MotionSetting::kde()(), c.isReduced) << c.content;
    }
    qunsetenv("XDG_CONFIG_HOME");
}
