#include "playback/PlaybackModule.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

namespace tembra {

namespace {

// Beside the program where it is built, else where it is installed.
QString moduleFile() {
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const QString &folder : {QStringLiteral("."), QStringLiteral("../lib/tembra/plugins")}) {
        const QFileInfo file(programs, folder + QStringLiteral("/tembra-playback.so"));
        if (file.exists())
            return file.absoluteFilePath();
    }
    return {};
}

} // namespace

std::unique_ptr<RecordingPlayer> makeRecordingPlayer() {
    static QPluginLoader loader(moduleFile());
    auto *const module = qobject_cast<PlaybackModule *>(loader.instance());
    return module ? module->makePlayer() : nullptr;
}

} // namespace tembra
