#pragma once

#include "base/Cancellation.h"
#include "base/Result.h"

#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>

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

    struct Language {
        // As the engine names it.
        QString code;
        // As those who read it name it.
        QString name;

        bool operator==(const Language &) const = default;
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
    // Those that are installed, by name; at least one. Any thread but the main one. Errors: unavailable,
    // noLanguage.
    [[nodiscard]] virtual Result<std::vector<Language>> installedLanguages() const = 0;
    // The codes of the languages that are read while none is chosen. Any thread.
    [[nodiscard]] virtual QStringList usualLanguages() const = 0;
    // By their codes; none means the usual ones. Holds from the next picture on. Any thread.
    virtual void setLanguages(const QStringList &codes) = 0;
};

} // namespace tembra
