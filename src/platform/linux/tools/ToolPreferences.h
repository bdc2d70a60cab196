#pragma once

#include "platform/ScreenCapturePreferences.h"
#include "platform/StandardFolders.h"

namespace tembra {

// What most screenshot tools have in common: they have no thumbnail to switch, and no setting of a
// destination or of a name.
class ToolPreferences : public ScreenCapturePreferences {
public:
    [[nodiscard]] std::optional<QString> target() const override { return std::nullopt; }
    [[nodiscard]] std::optional<QString> name() const override { return std::nullopt; }
    [[nodiscard]] bool hasThumbnail() const override { return false; }
    [[nodiscard]] std::optional<bool> showThumbnail() const override { return std::nullopt; }
    void setTarget(const std::optional<QString> &) override {}
    Result<void> setShowThumbnail(std::optional<bool> show) override;

protected:
    explicit ToolPreferences(StandardFolders folders) : m_folders(std::move(folders)) {}

    [[nodiscard]] const StandardFolders &folders() const { return m_folders; }
    // The absolute path of a location that is to be set; nothing when the location is no path.
    [[nodiscard]] std::optional<QString> absolute(const QString &location) const;

private:
    const StandardFolders m_folders;
};

} // namespace tembra
