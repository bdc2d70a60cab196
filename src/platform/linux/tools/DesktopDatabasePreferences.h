#pragma once

#include "platform/linux/tools/ToolPreferences.h"
#include "platform/linux/tools/Translations.h"

#include <memory>

using GSettingsBackend = struct _GSettingsBackend;

namespace tembra {

// A tool whose settings are in the desktop's settings database (GSettings), and what its names and keys are
// there.
struct DesktopDatabaseTool {
    const char *name;
    const char *schema;
    const char *locationKey;
    // Where it saves when that is empty.
    QString StandardFolders::*usualFolder;
    // The names of its files, in its own catalogue.
    const char *catalogue;
    const char *nameTemplate;
};

// The tool of Cinnamon and Budgie.
extern const DesktopDatabaseTool gnomeScreenshotTool;
// The tool of MATE. It asks for a folder each time, and proposes the one that was used last.
extern const DesktopDatabaseTool mateScreenshotTool;

// The preferences of such a tool. Where its schema is not installed there is nothing to read and nothing is
// written.
class DesktopDatabasePreferences final : public ToolPreferences {
public:
    // The tool must outlive it. Without a backend, the session's own database.
    DesktopDatabasePreferences(const DesktopDatabaseTool &tool, StandardFolders folders,
                               Translations translations = installedTranslation,
                               GSettingsBackend *backend = nullptr);
    ~DesktopDatabasePreferences() override;

    [[nodiscard]] std::optional<QString> location() const override;
    [[nodiscard]] std::optional<QString> name() const override;
    void setLocation(const std::optional<QString> &path) override;
    void synchronize() override;
    [[nodiscard]] QString toolName() const override { return QString::fromLatin1(m_tool.name); }

private:
    struct Settings;

    const DesktopDatabaseTool &m_tool;
    const Translations m_translations;
    // Nothing without the schema.
    const std::unique_ptr<Settings> m_settings;
};

} // namespace tembra
