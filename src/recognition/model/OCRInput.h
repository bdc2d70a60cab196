#pragma once

#include <QByteArray>
#include <QMimeData>
#include <QString>

#include <optional>
#include <variant>

namespace tembra {

// The image whose text is wanted. A value.
struct OCRInput {
    // Absolute.
    struct File {
        QString path;

        bool operator==(const File &) const = default;
    };
    // An image file's bytes.
    struct Data {
        QByteArray bytes;

        bool operator==(const Data &) const = default;
    };

    std::variant<File, Data> source;

    // Of a drop or of the clipboard: its first file, else its image. Nothing when it has neither.
    [[nodiscard]] static std::optional<OCRInput> read(const QMimeData &pasteboard);
    // Whether there is any, without fetching it.
    [[nodiscard]] static bool canRead(const QMimeData &pasteboard);

    bool operator==(const OCRInput &) const = default;
};

} // namespace tembra
