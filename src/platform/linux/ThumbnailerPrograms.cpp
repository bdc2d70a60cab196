#include "platform/linux/ThumbnailerPrograms.h"

#include "platform/linux/ThumbnailCacheFolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <algorithm>

namespace tembra {

namespace {

using namespace std::chrono_literals;

// How long a cancelled program may go on.
constexpr std::chrono::milliseconds cancellationInterval = 50ms;

bool runToItsEnd(const QStringList &command, std::chrono::milliseconds limit,
                 const std::function<bool()> &isCancelled) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(command.first(), command.mid(1));
    if (!process.waitForStarted())
        return false;
    QElapsedTimer time;
    time.start();
    while (!process.waitForFinished(static_cast<int>(cancellationInterval.count()))) {
        if (process.state() == QProcess::NotRunning)
            break;
        if (isCancelled() || time.hasExpired(limit.count())) {
            process.kill();
            process.waitForFinished();
            return false;
        }
    }
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

QString fieldValue(QChar code, const QString &path, const QString &output, int side) {
    switch (code.unicode()) {
    case u'i':
        return path;
    case u'u':
        return QString::fromLatin1(ThumbnailCacheFolder::uri(path));
    case u'o':
        return output;
    case u's':
        return QString::number(side);
    default:
        return code;
    }
}

} // namespace

ThumbnailerPrograms::ThumbnailerPrograms(const QStringList &folders) {
    for (const QString &folder : folders) {
        const QDir directory(folder);
        for (const QString &name : directory.entryList({QStringLiteral("*.thumbnailer")}, QDir::Files))
            add(directory.filePath(name));
    }
}

void ThumbnailerPrograms::add(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QHash<QString, QString> entry;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const qsizetype equals = line.indexOf(u'=');
        if (equals > 0)
            entry.insert(line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
    }
    const QString exec = entry.value(QStringLiteral("Exec"));
    const QString tryExec = entry.value(QStringLiteral("TryExec"));
    if (exec.isEmpty() || (!tryExec.isEmpty() && QStandardPaths::findExecutable(tryExec).isEmpty()))
        return;
    for (const QString &type : entry.value(QStringLiteral("MimeType")).split(u';', Qt::SkipEmptyParts)) {
        if (!m_execByType.contains(type))
            m_execByType.insert(type, exec);
    }
}

QStringList ThumbnailerPrograms::commandLine(const QString &exec, const QString &path, const QString &output,
                                             int side) {
    const auto replaced = [&](const QString &word) {
        QString result;
        for (qsizetype i = 0; i < word.size(); ++i) {
            const bool isCode = word[i] == u'%' && i + 1 < word.size();
            result += isCode ? fieldValue(word[++i], path, output, side) : QString(word[i]);
        }
        return result;
    };
    QStringList words = QProcess::splitCommand(exec);
    std::ranges::transform(words, words.begin(), replaced);
    return words;
}

std::optional<QImage> ThumbnailerPrograms::run(const QString &path, const QString &type, int side,
                                               std::chrono::milliseconds limit,
                                               const std::function<bool()> &isCancelled) const {
    const QString exec = m_execByType.value(type);
    QTemporaryFile output(QDir::tempPath() + QStringLiteral("/tembra-thumbnail-XXXXXX.png"));
    if (exec.isEmpty() || !output.open())
        return std::nullopt;
    const QStringList command = commandLine(exec, path, output.fileName(), side);
    if (command.isEmpty() || !runToItsEnd(command, limit, isCancelled))
        return std::nullopt;
    QImage image = QImageReader(output.fileName()).read();
    return image.isNull() ? std::nullopt : std::optional(std::move(image));
}

} // namespace tembra
