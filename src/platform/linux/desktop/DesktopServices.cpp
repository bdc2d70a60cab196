#include "platform/linux/desktop/DesktopServices.h"

#include "platform/linux/desktop/CanberraSounds.h"
#include "platform/linux/desktop/DesktopFilePromises.h"
#include "platform/linux/desktop/DesktopPaths.h"
#include "platform/linux/desktop/LinuxWorkspace.h"
#include "platform/linux/desktop/MotionSetting.h"
#include "platform/linux/desktop/PortalHotKeys.h"
#include "platform/linux/desktop/QtDisplays.h"
#include "platform/linux/desktop/QtHotZones.h"
#include "platform/linux/desktop/QtInputMonitor.h"
#include "platform/linux/desktop/QtPanelWindows.h"
#include "platform/linux/desktop/QtPasteboard.h"
#include "platform/linux/desktop/WaylandDataControlPasteboard.h"
#include "platform/linux/desktop/WaylandInputMonitor.h"
#include "platform/linux/desktop/WaylandPanelWindows.h"
#include "platform/linux/desktop/WindowingChoice.h"
#include "platform/linux/desktop/X11HotKeys.h"
#include "platform/linux/desktop/X11HotZones.h"
#include "platform/linux/desktop/X11InputMonitor.h"
#include "platform/linux/desktop/X11PanelWindows.h"

#include <QGuiApplication>
#include <QSystemTrayIcon>

namespace tembra {

namespace {

// Where a Wayland compositor lets us own its clipboard we do so also from the X server that it runs.
std::unique_ptr<Pasteboard> makePasteboard(Scheduler &scheduler,
                                           const std::shared_ptr<X11Connection> &connection) {
    if (auto compositors = WaylandDataControlPasteboard::open(scheduler))
        return compositors;
    return std::make_unique<QtPasteboard>(connection);
}

// The X server that a Wayland compositor runs gets the keys of its own windows only.
std::unique_ptr<HotKeys> makeHotKeys(const std::shared_ptr<X11Connection> &connection) {
    if (connection && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return std::make_unique<X11HotKeys>(connection);
    return std::make_unique<PortalHotKeys>();
}

DesktopPaths::Windows windowsPath(const X11Connection *connection, bool hasLayers) {
    if (hasLayers)
        return DesktopPaths::Windows::layerShell;
    if (!connection)
        return DesktopPaths::Windows::plainWayland;
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return WindowingChoice::ofSession().hasLayerShell ? DesktopPaths::Windows::unusedLayerShell
                                                          : DesktopPaths::Windows::xwayland;
    const QByteArray compositor = "_NET_WM_CM_S" + QByteArray::number(connection->screenNumber());
    return connection->selectionOwner(connection->atom(compositor)) == XCB_WINDOW_NONE
               ? DesktopPaths::Windows::x11Uncomposited
               : DesktopPaths::Windows::x11;
}

DesktopPaths::Shortcut shortcutPath(const HotKeys &hotKeys) {
    if (!hotKeys.areAvailable())
        return DesktopPaths::Shortcut::none;
    return dynamic_cast<const PortalHotKeys *>(&hotKeys) ? DesktopPaths::Shortcut::portal
                                                         : DesktopPaths::Shortcut::grab;
}

DesktopPaths::Clipboard clipboardPath(const Pasteboard &pasteboard) {
    if (dynamic_cast<const WaylandDataControlPasteboard *>(&pasteboard))
        return DesktopPaths::Clipboard::dataControl;
    return qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? DesktopPaths::Clipboard::x11
                                                          : DesktopPaths::Clipboard::focusedOnly;
}

// Where a hot zone would be an ordinary window.
class NoHotZones final : public HotZones {
public:
    [[nodiscard]] std::unique_ptr<Zone> add(const ScreenRect &, Callbacks) override {
        class NoZone final : public Zone {
            void setRect(const ScreenRect &) override {}
        };
        return std::make_unique<NoZone>();
    }
};

std::unique_ptr<HotZones> makeHotZonesOfQt() {
    if (QGuiApplication::platformName().startsWith(QStringLiteral("wayland")))
        return std::make_unique<NoHotZones>();
    return std::make_unique<QtHotZones>();
}

} // namespace

DesktopServices makeDesktopServices(Scheduler &scheduler, std::optional<CameraHousing> camera) {
    const std::shared_ptr<X11Connection> connection = X11Connection::open();
    DesktopServices services;
    services.displays = std::make_unique<QtDisplays>(scheduler, std::move(camera));
    services.workspace = std::make_unique<LinuxWorkspace>(connection);
    services.sounds = std::make_unique<CanberraSounds>(EventSoundSetting::ofDesktop(connection));
    services.pasteboard = makePasteboard(scheduler, connection);
    services.hotKeys = makeHotKeys(connection);
    services.isMotionReduced = [setting = MotionSetting::ofDesktop(connection)] {
        return setting.isReduced();
    };
    services.filePromises = std::make_unique<DesktopFilePromises>(connection);
    const auto display = WaylandDisplay::ofApplication();
    services.findings = [connection, hasLayers = display != nullptr, hotKeys = services.hotKeys.get(),
                         pasteboard = services.pasteboard.get()] {
        return DesktopPaths{.windows = windowsPath(connection.get(), hasLayers),
                            .clipboard = clipboardPath(*pasteboard),
                            .shortcut = shortcutPath(*hotKeys),
                            .hasStatusItems = QSystemTrayIcon::isSystemTrayAvailable()}
            .findings();
    };
    if (display) {
        services.inputMonitor = std::make_unique<WaylandInputMonitor>(scheduler, display);
        services.panelWindows =
            std::make_unique<WaylandPanelWindows>(std::make_shared<WaylandLayers>(display));
        services.hotZones = std::make_unique<QtHotZones>();
        return services;
    }
    if (!connection) {
        services.inputMonitor = std::make_unique<QtInputMonitor>();
        services.panelWindows = std::make_unique<QtPanelWindows>();
        services.hotZones = makeHotZonesOfQt();
        return services;
    }
    const auto stacking = std::make_shared<X11Stacking>(connection);
    services.inputMonitor = std::make_unique<X11InputMonitor>(connection, scheduler);
    services.panelWindows = std::make_unique<X11PanelWindows>(connection, stacking);
    services.hotZones = std::make_unique<X11HotZones>(connection, stacking);
    return services;
}

} // namespace tembra
