#pragma once

#include "DesktopHands.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace tembra {

// A hand on what the shelf reads from images, on the clipboard, and on the process that reads.
class RecognitionHands : public DesktopHands {
public:
    using DesktopHands::DesktopHands;

    // Opens the shelf at a tab; whether it came to rest there.
    [[nodiscard]] bool open(const char *tab = "text") const;
    [[nodiscard]] bool isIn(const char *phase) const;
    // Whether the text comes to be shown.
    [[nodiscard]] bool shows(const QString &text) const;
    // Whether this comes to be said in the place of a text.
    [[nodiscard]] bool says(const char *sentence) const;
    [[nodiscard]] bool isHigh(int height) const;

    // An image of these lines, twice as large as interfaces show them; its path.
    [[nodiscard]] QString draw(const QString &path, const QString &lines) const;
    // An image of so much text that reading it takes a while; its path.
    [[nodiscard]] QString drawPage(const QString &path) const;
    // What is in the file goes to the clipboard as that type, and is pasted.
    void paste(const QString &path, const char *type = "image/png") const;
    void pasteFile(const QString &path) const;
    // What is on the clipboard.
    [[nodiscard]] QByteArray copied(const char *type = "UTF8_STRING") const;
    [[nodiscard]] bool hasCopied(const QString &text) const;

    // Stops the process that reads as soon as there is one; its number.
    [[nodiscard]] std::optional<int> holdWorker() const;
    void killWorker(int worker) const;
    // Whether the process comes to be gone.
    [[nodiscard]] bool isGone(int worker) const;
};

} // namespace tembra
