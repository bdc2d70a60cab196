#pragma once

#include "base/Clocks.h"
#include "editor/model/ScreenshotAnnotation.h"

#include <QByteArray>
#include <QRectF>
#include <QString>
#include <QUuid>

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

namespace tembra {

// What is kept of a screenshot's edits, beside its original, so that they stay editable. A value.
struct ScreenshotEditRecord {
    static constexpr int currentSchema = 2;

    int schema = currentSchema;
    // Also the name of its folder.
    QUuid id;
    // Where the screenshot was when it was last written, as `storedPath` has it.
    QString path;
    std::optional<QByteArray> bookmark;
    // SHA-256 of the screenshot as last written, in lower-case hexadecimal.
    QString fingerprint;
    std::vector<ScreenshotAnnotation> annotations;
    std::optional<QRectF> cropRect;
    // In bytes, of the screenshot as last written; absent until it was.
    std::optional<std::int64_t> fileSize;
    std::optional<Instant> modifiedAt;

    // Of a record that this program cannot open: which screenshot it belongs to.
    struct Foreign {
        QString path;
        std::optional<QByteArray> bookmark;

        bool operator==(const Foreign &) const = default;
    };
    using Reading = std::variant<ScreenshotEditRecord, Foreign>;

    // A path as far as text can carry it: JSON holds no names that are not UTF-8.
    [[nodiscard]] static QString storedPath(const QString &path) { return QString::fromUtf8(path.toUtf8()); }

    // JSON. `temporary` names the file that a save in progress writes beside the screenshot.
    [[nodiscard]] QByteArray encode(const QString &temporary = {}) const;
    // Nothing for what is no record at all. A record of another schema, or with annotations of unknown kinds,
    // is foreign.
    [[nodiscard]] static std::optional<Reading> decode(QByteArrayView json);
    [[nodiscard]] static QString decodeTemporary(QByteArrayView json);

    // The screenshot was written by the editor, not only opened.
    [[nodiscard]] bool wasSaved() const { return fileSize.has_value(); }

    bool operator==(const ScreenshotEditRecord &) const = default;
};

} // namespace tembra
