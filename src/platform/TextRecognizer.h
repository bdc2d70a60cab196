#pragma once

#include "base/Cancellation.h"
#include "base/Result.h"

#include <QImage>
#include <QRectF>
#include <QString>

#include <vector>

namespace tembra {

// Reads the text of a picture. Any thread but the main one: a call takes seconds. Boxes are in pixels of the
// image, origin top left.
class TextRecognizer {
public:
    struct Word {
        QString text;
        QRectF box;

        bool operator==(const Word &) const = default;
    };
    // From its first word to its last; never without one.
    struct Line {
        std::vector<Word> words;

        bool operator==(const Line &) const = default;
    };

    static inline const QString errorDomain = QStringLiteral("Tembra.TextRecognition");
    enum ErrorCode {
        // What recognises text is not installed.
        unavailable = 1,
        // No language is installed for it.
        noLanguage,
        // This picture could not be read.
        notRecognized,
        cancelled,
    };

    virtual ~TextRecognizer() = default;
    // In reading order; nothing where the picture has no text. Cancelling ends it at once, with the error
    // that says so.
    [[nodiscard]] virtual Result<std::vector<Line>> recognize(const QImage &image,
                                                              const Cancellation &cancellation) const = 0;
};

} // namespace tembra
