#pragma once

#include <QHash>
#include <QImage>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

namespace tembra {

// The thumbnailer programs that are installed for kinds of files that the program cannot decode itself,
// videos above all. Built and asked on any one thread at a time.
class ThumbnailerPrograms {
public:
    // `folders` hold the "….thumbnailer" files, the most important folder first.
    explicit ThumbnailerPrograms(const QStringList &folders);

    // Runs the program for the MIME type, if there is one, until it ends, the time is over or `isCancelled`
    // says so. The picture is about as large as the given side.
    [[nodiscard]] std::optional<QImage> run(const QString &path, const QString &type, int side,
                                            std::chrono::milliseconds limit,
                                            const std::function<bool()> &isCancelled) const;

    // The words of an Exec line with its field codes replaced.
    [[nodiscard]] static QStringList commandLine(const QString &exec, const QString &path,
                                                 const QString &output, int side);

private:
    void add(const QString &file);

    // Exec lines by MIME type.
    QHash<QString, QString> m_execByType;
};

} // namespace tembra
