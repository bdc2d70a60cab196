#pragma once

#include "base/Result.h"

#include <QString>

#include <functional>
#include <optional>

namespace tembra {

// The preferences of the desktop's own screenshot tool. Any thread, one call at a time per object: the
// location monitor reads on its own queue with an object of its own. Every read asks the tool's settings
// afresh.
class ScreenCapturePreferences {
public:
    virtual ~ScreenCapturePreferences() = default;

    // The folder the tool saves into, as the tool has it: an absolute path, "~", or a path below "~/".
    // Nothing when the tool names none, which means the Desktop. A tool whose default is another folder tells
    // that folder here.
    [[nodiscard]] virtual std::optional<QString> location() const = 0;
    // "file", "clipboard", or another destination's name; nothing means "file".
    [[nodiscard]] virtual std::optional<QString> target() const = 0;
    // The beginning of the tool's file names, when the user or the desktop's language changed it.
    [[nodiscard]] virtual std::optional<QString> name() const = 0;
    // Whether the tool has floating thumbnails at all.
    [[nodiscard]] virtual bool hasThumbnail() const = 0;
    // Whether the tool shows a floating thumbnail of a new capture; nothing when the tool has no such setting
    // or it is at its default.
    [[nodiscard]] virtual std::optional<bool> showThumbnail() const = 0;

    // Nothing removes the setting. A tool that cannot take the value keeps its old one: what counts is what
    // is read back afterwards.
    virtual void setLocation(const std::optional<QString> &path) = 0;
    virtual void setTarget(const std::optional<QString> &target) = 0;
    virtual Result<void> setShowThumbnail(std::optional<bool> show) = 0;
    // Brings what was written to the tool's storage, and what others wrote there to us.
    virtual void synchronize() = 0;

    // Whether it is known which tool takes the screenshots, and where it keeps its settings.
    [[nodiscard]] virtual bool isToolKnown() const { return true; }
    // The tool's name as its users know it, for messages and the log.
    [[nodiscard]] virtual QString toolName() const = 0;
};

} // namespace tembra
