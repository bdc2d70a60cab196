#pragma once

#include "platform/ScreenCapturePreferences.h"

#include <utility>

namespace tembra {

// A screenshot tool's preferences in memory. What is written reaches the tool with `synchronize`, which is
// also when the tool refuses it.
class FakeScreenCapturePreferences final : public ScreenCapturePreferences {
public:
    struct Values {
        std::optional<QString> location;
        std::optional<QString> target;
        std::optional<bool> showThumbnail;

        bool operator==(const Values &) const = default;
    };

    // The tool's own storage, and what it does not take.
    Values tool;
    bool refusesLocation = false;
    bool refusesTarget = false;
    std::optional<Error> thumbnailError;
    int synchronizations = 0;

    [[nodiscard]] std::optional<QString> location() const override { return seen().location; }
    [[nodiscard]] std::optional<QString> target() const override { return seen().target; }
    [[nodiscard]] std::optional<QString> name() const override { return std::nullopt; }
    [[nodiscard]] bool hasThumbnail() const override { return true; }
    [[nodiscard]] std::optional<bool> showThumbnail() const override { return seen().showThumbnail; }

    void setLocation(const std::optional<QString> &path) override { written().location = path; }
    void setTarget(const std::optional<QString> &target) override { written().target = target; }
    Result<void> setShowThumbnail(std::optional<bool> show) override {
        if (thumbnailError)
            return failure(*thumbnailError);
        written().showThumbnail = show;
        return {};
    }

    void synchronize() override {
        ++synchronizations;
        const auto written = std::exchange(m_written, std::nullopt);
        if (!written)
            return;
        if (!refusesLocation)
            tool.location = written->location;
        if (!refusesTarget)
            tool.target = written->target;
        tool.showThumbnail = written->showThumbnail;
    }

    [[nodiscard]] QString toolName() const override { return QStringLiteral("Camera"); }

private:
    [[nodiscard]] const Values &seen() const { return m_written ? *m_written : tool; }
    Values &written() { return m_written ? *m_written : m_written.emplace(tool); }

    std::optional<Values> m_written;
};

} // namespace tembra
