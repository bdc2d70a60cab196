#pragma once

#include <QString>

#include <optional>

namespace tembra {

// The kinds of picture that are opened and written here, and the identifiers they are known by elsewhere.
enum class PictureType { png, jpeg };

[[nodiscard]] inline QString pictureTypeIdentifier(PictureType type) {
    switch (type) {
    case PictureType::png:
        return QStringLiteral("public.png");
    case PictureType::jpeg:
        return QStringLiteral("public.jpeg");
    }
    Q_UNREACHABLE();
}

[[nodiscard]] inline std::optional<PictureType> pictureTypeOf(QStringView identifier) {
    for (const PictureType type : {PictureType::png, PictureType::jpeg}) {
        if (identifier == pictureTypeIdentifier(type))
            return type;
    }
    return std::nullopt;
}

} // namespace tembra
