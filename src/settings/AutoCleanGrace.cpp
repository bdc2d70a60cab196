#include "settings/AutoCleanGrace.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tembra {

namespace {

const QString bookmarkKey = QStringLiteral("bookmark");
const QString pathKey = QStringLiteral("path");
const QString restoredAtKey = QStringLiteral("restoredAt");

QString isoDate(Instant instant) {
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(instant.time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(milliseconds.count(), Qt::UTC).toString(Qt::ISODateWithMs);
}

} // namespace

QByteArray AutoCleanGrace::toJson(const std::vector<AutoCleanGrace> &list) {
    QJsonArray array;
    for (const AutoCleanGrace &grace : list)
        array.append(QJsonObject{{bookmarkKey, QString::fromLatin1(grace.bookmark.toBase64())},
                                 {pathKey, grace.path},
                                 {restoredAtKey, isoDate(grace.restoredAt)}});
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

std::vector<AutoCleanGrace> AutoCleanGrace::fromJson(const QByteArray &json) {
    std::vector<AutoCleanGrace> list;
    const QJsonArray array = QJsonDocument::fromJson(json).array();
    for (const QJsonValue element : array) {
        const QJsonObject object = element.toObject();
        const QDateTime date =
            QDateTime::fromString(object.value(restoredAtKey).toString(), Qt::ISODateWithMs);
        if (!date.isValid() || !object.value(pathKey).isString() || !object.value(bookmarkKey).isString())
            return {};
        list.push_back({QByteArray::fromBase64(object.value(bookmarkKey).toString().toLatin1()),
                        object.value(pathKey).toString(),
                        Instant(std::chrono::milliseconds(date.toMSecsSinceEpoch()))});
    }
    return list;
}

} // namespace tembra
