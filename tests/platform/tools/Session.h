#pragma once

#include "platform/linux/tools/ScreenshotTool.h"
#include "support/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace tembra {

// A user's session whose settings, data and programs are folders of the test's own. Files speak of the home
// "/home/ada", which is only a name.
class Session {
public:
    Session() {
        folders.home = QStringLiteral("/home/ada");
        folders.pictures = path(QStringLiteral("Bilder"));
        folders.configuration = path(QStringLiteral("settings/tembra"));
        environment.insert(QStringLiteral("HOME"), folders.home);
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("settings")));
        environment.insert(QStringLiteral("XDG_DATA_DIRS"), path(QStringLiteral("share")));
        environment.insert(QStringLiteral("PATH"), path(QStringLiteral("bin")));
    }

    [[nodiscard]] QString path(const QString &name) const { return m_root.filePath(name); }

    QString write(const QString &name, const QByteArray &content) const {
        QDir().mkpath(QFileInfo(path(name)).absolutePath());
        return writeFile(path(name), content);
    }

    [[nodiscard]] QByteArray read(const QString &name) const { return contentOf(path(name)); }

    [[nodiscard]] std::unique_ptr<ScreenCapturePreferences> preferences(const QString &tool) const {
        QProcessEnvironment withTool = environment;
        withTool.insert(QStringLiteral("TEMBRA_SCREENSHOT_TOOL"), tool);
        return makeScreenCapturePreferences(folders, withTool);
    }

    // A settings file that the tool itself wrote.
    [[nodiscard]] static QByteArray data(const QString &name) {
        return contentOf(QStringLiteral(TOOL_DATA_FOLDER "/") + name);
    }

    StandardFolders folders;
    QProcessEnvironment environment;

private:
    static QByteArray contentOf(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(no file)");
    }

    QTemporaryDir m_root;
};

} // namespace tembra
