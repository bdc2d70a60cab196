#include "ToolHome.h"

#include "platform/linux/LinuxStandardFolders.h"
#include "platform/linux/tools/ScreenshotTool.h"
#include "support/Files.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QJsonDocument>
#include <QProcess>
#include <QStandardPaths>

namespace tembra {

namespace {

constexpr int patienceMilliseconds = 30000;

bool hasWindow(const QString &windowClass) {
    QProcess search;
    search.start(QStringLiteral("xdotool"), {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                             QStringLiteral("--class"), windowClass});
    return search.waitForFinished() && !search.readAllStandardOutput().isEmpty();
}

} // namespace

ToolHome::ToolHome() {
    const QString settings = emptyFolder(QStringLiteral("settings"));
    writeFile(settings + QStringLiteral("/user-dirs.dirs"),
              "XDG_DESKTOP_DIR=\"$HOME/Arbeitsfläche\"\nXDG_PICTURES_DIR=\"$HOME/Meine Bilder\"\n");
    const QByteArray root = QFile::encodeName(m_root.path());
    qputenv("HOME", root);
    qputenv("XDG_CONFIG_HOME", root + "/settings");
    qputenv("XDG_DATA_HOME", root + "/data");
    qputenv("XDG_CACHE_HOME", root + "/cache");
    qputenv("TEMBRA_HOME", root + "/tembra");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    qunsetenv("XDG_CURRENT_DESKTOP");
    qunsetenv("XDG_PICTURES_DIR");
    setLanguage({});
    // The settings database and other services are the bus's to start.
    QProcess::execute(QStringLiteral("dbus-update-activation-environment"),
                      {QStringLiteral("HOME"), QStringLiteral("XDG_CONFIG_HOME"),
                       QStringLiteral("XDG_DATA_HOME"), QStringLiteral("XDG_CACHE_HOME")});
}

QString ToolHome::emptyFolder(const QString &name) const {
    QDir(path(name)).removeRecursively();
    QDir().mkpath(path(name));
    return path(name);
}

void ToolHome::setLanguage(const QByteArray &language) const {
    qputenv("LANGUAGE", language);
}

std::unique_ptr<ScreenCapturePreferences> ToolHome::preferences(const QString &tool) const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TEMBRA_SCREENSHOT_TOOL"), tool);
    return makeScreenCapturePreferences(linuxStandardFolders(), environment);
}

QJsonObject ToolHome::scan(const QString &folder, const QString &tool) const {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TEMBRA_SCREENSHOT_TOOL"), tool);
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(TEMBRA_PROGRAM), {QStringLiteral("scan"), folder, QStringLiteral("--json")});
    program.waitForFinished(patienceMilliseconds);
    return QJsonDocument::fromJson(program.readAllStandardOutput()).object();
}

QString takeCapture(const QString &program, const QStringList &arguments, const QString &folder,
                    const QString &windowClass) {
    QProcess tool;
    tool.setWorkingDirectory(folder);
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(program, arguments);
    const QDeadlineTimer deadline(patienceMilliseconds);
    while (!tool.waitForFinished(200) && tool.state() != QProcess::NotRunning && !deadline.hasExpired()) {
        if (!windowClass.isEmpty() && hasWindow(windowClass))
            QProcess::execute(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("Return")});
    }
    if (tool.state() == QProcess::NotRunning && tool.exitStatus() == QProcess::NormalExit &&
        tool.exitCode() == 0)
        return {};
    tool.kill();
    tool.waitForFinished();
    return program + QStringLiteral(" ended with %1: ").arg(tool.exitCode()) +
           QString::fromUtf8(tool.readAll());
}

} // namespace tembra
