#pragma once

#include "base/Scheduler.h"
#include "platform/DesktopFindings.h"
#include "platform/Displays.h"
#include "platform/FilePromises.h"
#include "platform/HotKeys.h"
#include "platform/HotZones.h"
#include "platform/InputMonitor.h"
#include "platform/PanelWindows.h"
#include "platform/Pasteboard.h"
#include "platform/Sounds.h"
#include "platform/Workspace.h"
#include "platform/linux/desktop/CameraHousing.h"

#include <functional>
#include <memory>
#include <optional>

namespace tembra {

// What the program needs of the desktop it runs on.
struct DesktopServices {
    std::unique_ptr<Displays> displays;
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<InputMonitor> inputMonitor;
    std::unique_ptr<PanelWindows> panelWindows;
    std::unique_ptr<HotZones> hotZones;
    std::unique_ptr<HotKeys> hotKeys;
    std::unique_ptr<Sounds> sounds;
    std::unique_ptr<Pasteboard> pasteboard;
    std::unique_ptr<FilePromises> filePromises;
    // By which of its ways these work.
    std::function<DesktopFindings()> findings;
    std::function<bool()> isMotionReduced;
};

// The services for the windowing system that Qt runs on. The application object and the scheduler must
// outlive them. Main thread.
[[nodiscard]] DesktopServices makeDesktopServices(Scheduler &scheduler,
                                                  std::optional<CameraHousing> camera = {});

} // namespace tembra
