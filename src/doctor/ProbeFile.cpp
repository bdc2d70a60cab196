#include "doctor/ProbeFile.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryFile>

namespace tembra {

namespace {

const QByteArray content = QByteArrayLiteral("Tembra");

// Left by a program that was killed meanwhile.
void removeForgotten(const QString &folder) {
    constexpr int secondsOfATrial = 60;
    const QDateTime before = QDateTime::currentDateTime().addSecs(-secondsOfATrial);
    const QFileInfoList files =
        QDir(folder).entryInfoList({QStringLiteral(".tembra-check-??????")}, QDir::Files | QDir::Hidden);
    for (const QFileInfo &file : files) {
        if (file.size() <= content.size() && file.lastModified() < before)
            QFile::remove(file.filePath());
    }
}

} // namespace

std::optional<QString> makeProbeFile(const QString &folder) {
    removeForgotten(folder);
    QTemporaryFile file(folder + QStringLiteral("/.tembra-check-XXXXXX"));
    file.setAutoRemove(false);
    if (!file.open() || file.write(content) < 0)
        return std::nullopt;
    return file.fileName();
}

} // namespace tembra
