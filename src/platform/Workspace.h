#pragma once

#include "base/Result.h"

#include <QIcon>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>
#include <vector>

namespace tembra {

// The user's session around the program. Main thread.
class Workspace {
public:
    class Observation {
    public:
        virtual ~Observation() = default;
    };

    // A program that opens files.
    struct Application {
        // Names it to the desktop.
        QString identifier;
        QString name;
        QIcon icon;
        bool isDefault = false;
    };

    enum class Event { willSleep, didWake, didMount, didUnmount, activeSpaceChanged, compositingChanged };

    virtual ~Workspace() = default;
    // Dropping the handle ends it.
    [[nodiscard]] virtual std::unique_ptr<Observation> observe(std::function<void(Event)> onEvent) = 0;
    // Windows may be translucent: something composes them.
    [[nodiscard]] virtual bool isComposited() const = 0;
    // Shows the files in the file manager, or opens a folder in it.
    virtual Result<void> reveal(const QStringList &paths) = 0;
    virtual Result<void> openFolder(const QString &path) = 0;
    // Those that open every one of the files, the default of the first of them first, then by name.
    [[nodiscard]] virtual std::vector<Application> applicationsFor(const QStringList &paths) const = 0;
    // Opens the files in that application; with an empty identifier in the default one.
    virtual Result<void> open(const QStringList &paths, const QString &identifier) = 0;
    // In the program for its scheme.
    virtual Result<void> openLink(const QUrl &url) = 0;
};

} // namespace tembra
