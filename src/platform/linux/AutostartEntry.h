#pragma once

#include "platform/LoginItemService.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace tembra {

class RcFile;

// The desktop entry by which a desktop starts the program when the user logs in (freedesktop's Autostart).
// The user's entry hides the one that the system may have for everybody. What else the user's entry says is
// kept. A value; main thread.
class AutostartEntry {
public:
    struct Places {
        // Of the user's entry, and of the system's, the most important first.
        QString userFolder;
        QStringList systemFolders;
    };

    // `program` is what is to be started, by its whole path.
    AutostartEntry(Places places, QString program);
    [[nodiscard]] static AutostartEntry ofUser();
    // The operations of a copy of this.
    [[nodiscard]] LoginItemService service() const;

    [[nodiscard]] LoginItemService::Status status() const;
    Result<void> enable() const;
    Result<void> disable() const;

    // The program of a value of Exec; nothing where that has none.
    [[nodiscard]] static std::optional<QString> programOf(const QByteArray &exec);
    // Opens the desktop's settings for what starts with it, if it is known to have any.
    static Result<void> openDesktopSettings();

private:
    [[nodiscard]] QString userEntry() const;
    // The first that is there; nothing where there is none.
    [[nodiscard]] std::optional<QString> systemEntry() const;
    [[nodiscard]] LoginItemService::Status statusOf(const RcFile &entry) const;
    Result<void> save(const RcFile &entry) const;

    Places m_places;
    QString m_program;
};

} // namespace tembra
