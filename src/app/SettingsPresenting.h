#pragma once

#include "base/Generation.h"
#include "base/SerialQueue.h"
#include "doctor/Doctor.h"
#include "platform/Platform.h"
#include "windows/settings/SettingsWindowController.h"

namespace tembra {

class ShelfController;

// Joins the window of the settings to the shelf and to the platform. Main thread.
class SettingsPresenting {
public:
    struct Services {
        Platform &platform;
        Scheduler &scheduler;
        // Asks the text recognition what is installed, and waits for disks.
        SerialQueue &queue;
        AppSettings &settings;
        ShelfController &shelf;
        AppUpdater &updater;
        std::function<void()> onQuit;
    };

    // Everything outlives it.
    explicit SettingsPresenting(const Services &services);
    ~SettingsPresenting();
    SettingsPresenting(const SettingsPresenting &) = delete;
    SettingsPresenting &operator=(const SettingsPresenting &) = delete;

    void show(std::optional<SettingsPageId> page) { m_controller.show(page); }
    void close() { m_controller.close(); }
    [[nodiscard]] bool isShowing(SettingsPageId page) const { return m_controller.isShowing(page); }
    [[nodiscard]] std::optional<SettingsPageId> currentPage() const { return m_controller.currentPage(); }

private:
    ShelfController &m_shelf;
    Generation m_life;
    Doctor m_doctor;
    SettingsWindowController m_controller;
};

} // namespace tembra
