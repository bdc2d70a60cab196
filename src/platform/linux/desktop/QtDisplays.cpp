#include "platform/linux/desktop/QtDisplays.h"

#include <QGuiApplication>
#include <QScreen>

namespace tembra {

namespace {

ScreenRect screenRect(const QRect &rect) {
    return {static_cast<double>(rect.x()), static_cast<double>(rect.y()), static_cast<double>(rect.width()),
            static_cast<double>(rect.height())};
}

void addCamera(const CameraHousing &camera, DisplayFacts &display) {
    const ScreenRect &frame = display.frame;
    const double side = (frame.width - camera.width) / 2;
    if (camera.width <= 0 || camera.height <= 0 || side <= 0)
        return;
    display.safeAreaTop = camera.height;
    display.auxiliaryTopLeft = ScreenRect{frame.x, frame.y, side, camera.height};
    display.auxiliaryTopRight = ScreenRect{frame.right() - side, frame.y, side, camera.height};
}

} // namespace

QtDisplays::QtDisplays(Scheduler &scheduler, std::optional<CameraHousing> camera)
    : m_scheduler(scheduler), m_camera(std::move(camera)) {
    const auto screens = QGuiApplication::screens();
    for (const QScreen *const screen : screens)
        addScreen(screen);
    m_told = connected();
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &m_context, [this](const QScreen *screen) {
        addScreen(screen);
        expectChange();
    });
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &m_context, [this](const QScreen *screen) {
        removeScreen(screen);
        expectChange();
    });
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &m_context, [this] { expectChange(); });
}

std::vector<DisplayFacts> QtDisplays::connected() const {
    std::vector<DisplayFacts> displays;
    const QScreen *const primary = QGuiApplication::primaryScreen();
    const auto screens = QGuiApplication::screens();
    for (const QScreen *const screen : screens) {
        // While a screen goes away, Qt may still list it.
        if (m_identifiers.contains(screen))
            displays.insert(screen == primary ? displays.begin() : displays.end(), facts(*screen));
    }
    return displays;
}

std::unique_ptr<Displays::Observation> QtDisplays::observe(std::function<void()> onChange) {
    return m_observers.add(std::move(onChange));
}

void QtDisplays::addScreen(const QScreen *screen) {
    m_identifiers.insert(screen, ++m_lastIdentifier);
    const auto expect = [this] { expectChange(); };
    QObject::connect(screen, &QScreen::geometryChanged, &m_context, expect);
    QObject::connect(screen, &QScreen::availableGeometryChanged, &m_context, expect);
    // The one signal that also tells of another scale.
    QObject::connect(screen, &QScreen::physicalDotsPerInchChanged, &m_context, expect);
    QObject::connect(screen, &QScreen::logicalDotsPerInchChanged, &m_context, expect);
}

void QtDisplays::removeScreen(const QScreen *screen) {
    m_identifiers.remove(screen);
}

void QtDisplays::expectChange() {
    if (!m_tell.isPending())
        m_tell = m_scheduler.schedule(Scheduler::Duration::zero(), [this] { tellChange(); });
}

void QtDisplays::tellChange() {
    std::vector<DisplayFacts> now = connected();
    if (now == m_told)
        return;
    m_told = std::move(now);
    m_observers.notify();
}

DisplayFacts QtDisplays::facts(const QScreen &screen) const {
    DisplayFacts display;
    display.identifier = m_identifiers.value(&screen);
    display.name = screen.name();
    display.frame = screenRect(screen.geometry());
    display.scale = screen.devicePixelRatio();
    display.availableHeight = screen.availableGeometry().height();
    if (m_camera && m_camera->displayName == display.name)
        addCamera(*m_camera, display);
    return display;
}

} // namespace tembra
