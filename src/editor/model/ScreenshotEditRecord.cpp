#include "editor/model/ScreenshotEditRecord.h"

#include "editor/model/AnnotationJson.h"

#include <QDateTime>

#include <limits>
#include <utility>

namespace tembra {

namespace {

constexpr auto secondFormat = "yyyy-MM-ddTHH:mm:ss";
constexpr int nanosecondDigits = 9;
constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;

// ISO 8601 in UTC, to the nanosecond: "2026-11-21T10:15:22.000000001Z".
Json toJson(Instant instant) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(instant);
    const QString date = QDateTime::fromSecsSinceEpoch(seconds.time_since_epoch().count(), Qt::UTC)
                             .toString(QLatin1StringView(secondFormat));
    const qint64 nanoseconds = std::chrono::nanoseconds(instant - seconds).count();
    return QStringLiteral("%1.%2Z")
        .arg(date)
        .arg(nanoseconds, nanosecondDigits, 10, QLatin1Char('0'))
        .toStdString();
}

std::optional<Instant> instantOf(const Json &json) {
    constexpr int dateLength = 19;
    constexpr int length = dateLength + nanosecondDigits + 2;
    const auto text = jsonText(json);
    if (!text || text->size() != length || text->at(dateLength) != u'.' || !text->endsWith(u'Z'))
        return std::nullopt;
    QDateTime date = QDateTime::fromString(text->first(dateLength), QLatin1StringView(secondFormat));
    date.setTimeSpec(Qt::UTC);
    bool isNumber = false;
    const qint64 nanoseconds = text->mid(dateLength + 1, nanosecondDigits).toLongLong(&isNumber);
    if (!date.isValid() || !isNumber || nanoseconds < 0)
        return std::nullopt;
    // Dates that nanoseconds cannot count are nobody's.
    constexpr qint64 latest = std::numeric_limits<std::int64_t>::max() / nanosecondsPerSecond - 1;
    const qint64 seconds = date.toSecsSinceEpoch();
    if (seconds < -latest || seconds > latest)
        return std::nullopt;
    return Instant(std::chrono::seconds(seconds) + std::chrono::nanoseconds(nanoseconds));
}

std::optional<std::int64_t> sizeOf(const Json &json) {
    const auto size = jsonInteger(json);
    return size && *size >= 0 ? size : std::nullopt;
}

std::optional<int> schemaOf(const Json &json) {
    const auto schema = jsonInteger(json);
    return schema && std::in_range<int>(*schema) ? std::optional(static_cast<int>(*schema)) : std::nullopt;
}

} // namespace

QByteArray ScreenshotEditRecord::encode(const QString &temporary) const {
    Json json{{"schema", schema}, {"id", tembra::toJson(id)}, {"path", path.toStdString()}};
    if (bookmark)
        json["bookmark"] = bookmark->toBase64().toStdString();
    json["fingerprint"] = fingerprint.toStdString();
    json["annotations"] = tembra::toJson(annotations);
    if (cropRect)
        json["cropRect"] = tembra::toJson(*cropRect);
    if (fileSize)
        json["fileSize"] = *fileSize;
    if (modifiedAt)
        json["modifiedAt"] = toJson(*modifiedAt);
    if (!temporary.isEmpty())
        json["temporary"] = temporary.toStdString();
    return toBytes(json);
}

std::optional<ScreenshotEditRecord::Reading> ScreenshotEditRecord::decode(QByteArrayView bytes) {
    const auto json = parseStrictly(bytes);
    if (!json)
        return std::nullopt;
    JsonFields envelope(*json);
    const int schema = envelope.required("schema", schemaOf);
    const Foreign foreign{.path = envelope.required("path", jsonText),
                          .bookmark = envelope.optional("bookmark", jsonData)};
    if (!envelope.isComplete())
        return std::nullopt;
    JsonFields fields(*json);
    ScreenshotEditRecord record{.schema = schema,
                                .id = fields.required("id", jsonUuid),
                                .path = foreign.path,
                                .bookmark = foreign.bookmark,
                                .fingerprint = fields.required("fingerprint", jsonText),
                                .annotations = fields.required("annotations", annotationsOf),
                                .cropRect = fields.optional("cropRect", rectOf),
                                .fileSize = fields.optional("fileSize", sizeOf),
                                .modifiedAt = fields.optional("modifiedAt", instantOf)};
    if (schema != currentSchema || !fields.isComplete())
        return foreign;
    return record;
}

QString ScreenshotEditRecord::decodeTemporary(QByteArrayView bytes) {
    const auto json = parseStrictly(bytes);
    return json ? JsonFields(*json).optional("temporary", jsonText).value_or(QString()) : QString();
}

} // namespace tembra
