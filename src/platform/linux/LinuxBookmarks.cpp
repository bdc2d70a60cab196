#include "platform/linux/LinuxBookmarks.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

namespace tembra {

namespace {

struct Record {
    QString path;
    std::optional<FileResource> resource;
};

// Numbers of 64 bits do not fit JSON's, so they are written as text.
QString text(std::uint64_t number) {
    return QString::number(number, 16);
}

QByteArray encode(const Record &record) {
    QJsonObject object{{QStringLiteral("path"), record.path}};
    if (const auto &resource = record.resource) {
        object.insert(QStringLiteral("volume"), text(resource->volume));
        object.insert(QStringLiteral("inode"), text(resource->inode));
        object.insert(QStringLiteral("generation"), text(resource->generation));
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<Record> decode(const QByteArray &bookmark) {
    const QJsonObject object = QJsonDocument::fromJson(bookmark).object();
    Record record{.path = object.value(QStringLiteral("path")).toString()};
    if (!record.path.startsWith(u'/') || record.path.contains(QChar::Null))
        return std::nullopt;
    if (!object.contains(QStringLiteral("inode")))
        return record;
    bool isValid = true;
    const auto number = [&](const QString &key) {
        bool isNumber = false;
        const std::uint64_t value = object.value(key).toString().toULongLong(&isNumber, 16);
        isValid = isValid && isNumber;
        return value;
    };
    record.resource = FileResource{number(QStringLiteral("volume")), number(QStringLiteral("inode")),
                                   number(QStringLiteral("generation"))};
    return isValid ? std::optional(record) : std::nullopt;
}

tl::unexpected<Error> bookmarkFailure(Bookmarks::ErrorCode code, const char *message,
                                      const QString &path = {}) {
    const QString sentence = QCoreApplication::translate("Bookmarks", message);
    return failure({Bookmarks::errorDomain, code, path.isEmpty() ? sentence : sentence.arg(path), {}});
}

} // namespace

LinuxBookmarks::LinuxBookmarks(const LinuxFileFactsReader &reader, const StandardFolders &folders)
    : m_reader(reader), m_finder(reader, [&folders] {
          QStringList trashed;
          for (const QString &trash : folders.trash)
              trashed.append(trash + QStringLiteral("/files"));
          return trashed;
      }()) {}

Result<QByteArray> LinuxBookmarks::create(const QString &path) const {
    return m_reader.facts(path).map([&path](const FileFacts &facts) {
        return encode({path, facts.resource});
    });
}

std::optional<QString> LinuxBookmarks::lastKnownPath(const QByteArray &bookmark) const {
    const auto record = decode(bookmark);
    return record ? std::optional(record->path) : std::nullopt;
}

std::optional<FileResource> LinuxBookmarks::resource(const QByteArray &bookmark) const {
    const auto record = decode(bookmark);
    return record ? record->resource : std::nullopt;
}

Result<Bookmarks::Resolved> LinuxBookmarks::resolve(const QByteArray &bookmark) const {
    const auto record = decode(bookmark);
    if (!record)
        return bookmarkFailure(malformed, QT_TRANSLATE_NOOP("Bookmarks", "The bookmark cannot be read."));
    if (record->resource) {
        if (const auto found = m_finder.find(*record->resource, record->path))
            return Resolved{*found, *found != record->path};
        if (!m_reader.isVolumeMounted(record->resource->volume))
            return bookmarkFailure(
                volumeAbsent, QT_TRANSLATE_NOOP("Bookmarks", "The disk that holds “%1” is not connected."),
                record->path);
    }
    if (m_reader.facts(record->path))
        return Resolved{record->path, record->resource.has_value()};
    return bookmarkFailure(gone, QT_TRANSLATE_NOOP("Bookmarks", "“%1” is not there any more."), record->path);
}

} // namespace tembra
