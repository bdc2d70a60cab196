#include "platform/linux/desktop/EventSoundSetting.h"
#include "platform/linux/desktop/X11Connection.h"
#include "support/ChildProgram.h"
#include "support/EventLoop.h"
#include "support/Files.h"

#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tembra;

TEST(XSettingsManagerTest, itsWordOnEventSoundsCounts) {
    if (QStandardPaths::findExecutable(QStringLiteral("xsettingsd")).isEmpty())
        GTEST_SKIP() << "xsettingsd is not installed";
    const EventSoundSetting setting = EventSoundSetting::ofDesktop(X11Connection::open());
    const EventSoundSetting::Value standard = setting.read();
    EXPECT_TRUE(standard.isEnabled);
    struct Case {
        QByteArray content;
        EventSoundSetting::Value value;
    };
    const Case cases[]{
        {"Net/EnableEventSounds 0\nNet/SoundThemeName \"ocean\"\n", {false, QStringLiteral("ocean")}},
        {"Net/EnableEventSounds 1\nNet/SoundThemeName \"tide\"\n", {true, QStringLiteral("tide")}},
        {"Net/EnableEventSounds 0\n", {false, standard.theme}},
    };
    const QTemporaryDir folder;
    for (const Case &c : cases) {
        const QString file = writeFile(folder.filePath(QStringLiteral("xsettingsd.conf")), c.content);
        const ChildProgram manager({"xsettingsd", "-c", QFile::encodeName(file).constData()});
        EXPECT_TRUE(eventually([&] { return setting.read() == c.value; })) << c.content.constData();
    }
    EXPECT_TRUE(eventually([&] { return setting.read() == standard; }));
}
