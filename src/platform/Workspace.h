#pragma once

#include "base/Result.h"

#include <QStringList>

#include <functional>
#include <memory>

namespace tembra {

// The user's session around the program. Main thread.
class Workspace {
public:
    class Observation {
    public:
        virtual ~Observation() = default;
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
};

} // namespace tembra
