#include "platform/linux/tools/ScreenshotTool.h"

#include "platform/tools/Session.h"

#include <gtest/gtest.h>

using namespace tembra;

namespace {

using Tool = ScreenshotTool;

ScreenshotToolHints hints(const char *desktops, const QStringList &programs,
                          const QSet<Tool> &configured = {}) {
    ScreenshotToolHints hints;
    hints.desktops = QString::fromLatin1(desktops).split(u':', Qt::SkipEmptyParts);
    hints.programs = QSet<QString>(programs.cbegin(), programs.cend());
    hints.configured = configured;
    return hints;
}

const QString gnomeShell = QStringLiteral("gnome-shell");
const QString gnomeScreenshot = QStringLiteral("gnome-screenshot");
const QString mateScreenshot = QStringLiteral("mate-screenshot");
const QString spectacle = QStringLiteral("spectacle");
const QString xfce = QStringLiteral("xfce4-screenshooter");
const QString flameshot = QStringLiteral("flameshot");
const QString ksnip = QStringLiteral("ksnip");

} // namespace

TEST(ScreenshotTool, isTheOneOfTheDesktop) {
    struct Case {
        const char *desktops;
        QStringList programs;
        Tool tool;
    };
    const Case cases[]{
        {"GNOME", {gnomeShell, gnomeScreenshot, flameshot}, Tool::GnomeShell},
        {"ubuntu:GNOME", {gnomeShell}, Tool::GnomeShell},
        {"GNOME-Classic:GNOME", {gnomeShell}, Tool::GnomeShell},
        {"GNOME-Flashback:GNOME", {gnomeShell, gnomeScreenshot}, Tool::GnomeScreenshot},
        {"Budgie:GNOME", {gnomeShell, gnomeScreenshot}, Tool::GnomeScreenshot},
        {"X-Cinnamon", {gnomeScreenshot}, Tool::GnomeScreenshot},
        {"MATE", {mateScreenshot, gnomeScreenshot}, Tool::MateScreenshot},
        {"MATE", {gnomeScreenshot, ksnip}, Tool::GnomeScreenshot},
        {"MATE", {}, Tool::MateScreenshot},
        {"KDE", {spectacle, gnomeScreenshot}, Tool::Spectacle},
        {"XFCE", {xfce, spectacle}, Tool::XfceScreenshooter},
        {"KDE", {flameshot}, Tool::Flameshot},
        {"KDE", {flameshot, ksnip}, Tool::Spectacle},
        {"XFCE", {}, Tool::XfceScreenshooter},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(screenshotTool(hints(c.desktops, c.programs)), c.tool)
            << c.desktops << ' ' << c.programs.join(u' ').toStdString();
    }
}

TEST(ScreenshotTool, isElsewhereTheOneThatIsSetUpOrAlone) {
    struct Case {
        const char *name;
        QStringList programs;
        QSet<Tool> configured;
        Tool onX11;
        Tool onWayland;
    };
    const Case cases[]{
        {"none", {}, {}, Tool::Generic, Tool::Generic},
        {"one", {flameshot}, {}, Tool::Flameshot, Tool::Flameshot},
        {"two", {flameshot, ksnip}, {}, Tool::Generic, Tool::Generic},
        {"two, one set up", {flameshot, ksnip}, {Tool::Ksnip}, Tool::Ksnip, Tool::Ksnip},
        {"both set up", {flameshot, ksnip}, {Tool::Ksnip, Tool::Flameshot}, Tool::Flameshot, Tool::Flameshot},
        {"set up once, gone since", {ksnip}, {Tool::Flameshot}, Tool::Ksnip, Tool::Ksnip},
        {"for X11 only", {gnomeScreenshot}, {}, Tool::GnomeScreenshot, Tool::Generic},
        {"one for X11", {gnomeScreenshot, ksnip}, {}, Tool::Generic, Tool::Ksnip},
        {"part of a desktop", {gnomeShell}, {}, Tool::Generic, Tool::Generic},
    };
    for (const Case &c : cases) {
        for (const char *desktop : {"", "LXQt", "sway"}) {
            ScreenshotToolHints session = hints(desktop, c.programs, c.configured);
            session.sessionType = QStringLiteral("x11");
            EXPECT_EQ(screenshotTool(session), c.onX11) << desktop << ' ' << c.name;
            session.sessionType = QStringLiteral("wayland");
            EXPECT_EQ(screenshotTool(session), c.onWayland) << desktop << ' ' << c.name;
        }
    }
}

TEST(ScreenshotTool, isTheOneThatTheUserWants) {
    ScreenshotToolHints session = hints("KDE", {spectacle, flameshot}, {Tool::Flameshot});
    session.wanted = QStringLiteral("generic");
    EXPECT_EQ(screenshotTool(session), Tool::Generic);
    session.wanted = QStringLiteral("paint");
    EXPECT_EQ(screenshotTool(session), Tool::Spectacle);
}

TEST(ScreenshotTool, isFoundInTheEnvironment) {
    Session session;
    session.environment.insert(QStringLiteral("XDG_CURRENT_DESKTOP"), QStringLiteral("sway:wlroots"));
    session.environment.insert(QStringLiteral("XDG_SESSION_TYPE"), QStringLiteral("wayland"));
    EXPECT_EQ(makeScreenCapturePreferences(session.folders, session.environment)->location(),
              session.folders.pictures);
    for (const QString &program : {flameshot, ksnip}) {
        const QString path = session.write(QStringLiteral("bin/") + program, "#!/bin/sh\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
    }
    session.write(QStringLiteral("settings/ksnip/ksnip.conf"), "[Application]\nSaveDirectory=/srv/shots\n");
    const auto preferences = makeScreenCapturePreferences(session.folders, session.environment);
    EXPECT_EQ(preferences->toolName(), QStringLiteral("ksnip"));
    EXPECT_EQ(preferences->location(), QStringLiteral("/srv/shots"));
}

TEST(ScreenshotTool, withoutAThumbnailSaysSo) {
    const Session session;
    for (const char *name : {"gnome", "gnome-screenshot", "mate-screenshot", "spectacle",
                             "xfce4-screenshooter", "flameshot", "ksnip", "generic"}) {
        const auto preferences = session.preferences(QString::fromLatin1(name));
        EXPECT_EQ(preferences->showThumbnail(), std::nullopt) << name;
        const Result<void> result = preferences->setShowThumbnail(false);
        ASSERT_FALSE(result) << name;
        EXPECT_EQ(result.error().domain, QStringLiteral("Tembra.ScreenCapturePreferences")) << name;
        EXPECT_TRUE(result.error().message.startsWith(preferences->toolName())) << name;
    }
}
