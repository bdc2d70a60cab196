#pragma once

#include "base/Result.h"
#include "recognition/model/OCRTextLayout.h"

#include <QString>
#include <QStringList>

namespace tembra {

// What the words of the command line ask for. A value; parsing has no effects.
struct CommandLine {
    enum class Verb {
        start,
        open,
        close,
        toggle,
        add,
        edit,
        settings,
        status,
        doctor,
        scan,
        render,
        ocr,
        quit,
        help,
        version
    };

    Verb verb = Verb::start;
    // The folder of `scan`, the image of `render`, `edit` and `ocr`.
    QString path;
    // What `render` is to draw, and where the result goes.
    QString edits;
    QString output;
    // What `add` is to put into the file tray, as it was named.
    QStringList files;
    // The tab of `open`: "tray", "screenshots" or "text"; empty when none is named.
    QString tab;
    // The page of `settings`, as `name(SettingsPageId)` has it; empty when none is named.
    QString page;
    // How `ocr` puts the text together, and whether it tells each word's box.
    OCRTextLayout textLayout = OCRTextLayout::lines;
    bool words = false;
    bool json = false;
    // Of a start that nobody asked for, at login: it shows nothing, not even where Tembra runs already.
    bool background = false;

    // `words` without the program's own name. Error: one sentence that says what is wrong with the words.
    [[nodiscard]] static Result<CommandLine> parse(const QStringList &words);
    [[nodiscard]] static QString usage();

    bool operator==(const CommandLine &) const = default;
};

} // namespace tembra
