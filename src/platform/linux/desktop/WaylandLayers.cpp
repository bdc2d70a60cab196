#include "platform/linux/desktop/WaylandLayers.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <qpa/qplatformwindow.h>

#include <wayland-client-protocol.h>

namespace tembra {

namespace {

bool isMenuOrToolTip(const QWindow &window) {
    return window.type() == Qt::Popup || window.type() == Qt::ToolTip;
}

// The signal has another name in each of Qt's lines.
const char *vanishingSignal(const QObject &platformWindow) {
    const QMetaObject *const type = platformWindow.metaObject();
    return type->indexOfSignal("wlSurfaceDestroyed()") >= 0 ? SIGNAL(wlSurfaceDestroyed())
                                                            : SIGNAL(surfaceDestroyed());
}

} // namespace

WaylandLayers::WaylandLayers(std::shared_ptr<WaylandDisplay> display) : m_display(std::move(display)) {
    qGuiApp->installEventFilter(this);
}

WaylandLayers::~WaylandLayers() {
    // Menus before what they belong to.
    while (!m_layers.empty()) {
        dropRole(*m_layers.begin()->first);
        m_layers.erase(m_layers.begin());
    }
}

bool WaylandLayers::isPlaced(const QWindow &window) {
    // What hangs at the pointer while it drags is the compositor's to place.
    return window.flags().testFlag(Qt::BypassWindowManagerHint) && !window.inherits("QShapedPixmapWindow");
}

WaylandLayers::Layer &WaylandLayers::layer(QWindow &window) {
    const auto [entry, isNew] = m_layers.try_emplace(&window);
    if (isNew) {
        QObject::connect(&window, &QObject::destroyed, this, [this, key = &window] { m_layers.erase(key); });
    }
    return entry->second;
}

void WaylandLayers::setInputRegion(QWindow &window, const QRegion &region) {
    Layer &it = layer(window);
    if (it.inputRegion == region)
        return;
    it.inputRegion = region;
    if (it.role)
        shareInput();
}

bool WaylandLayers::isReady(QWindow &window) const {
    const auto found = m_layers.find(&window);
    return found != m_layers.end() && found->second.role && found->second.role->isReady();
}

void WaylandLayers::setKeyboard(QWindow &window, layer_shell::Keyboard keyboard) {
    Layer &it = layer(window);
    if (it.keyboard == keyboard)
        return;
    it.keyboard = keyboard;
    if (it.role)
        it.role->setKeyboard(keyboard);
}

bool WaylandLayers::eventFilter(QObject *receiver, QEvent *event) {
    if (receiver->isWidgetType()) {
        auto &widget = static_cast<QWidget &>(*receiver);
        if (event->type() == QEvent::Show && widget.isWindow() && widget.windowHandle())
            prepareMenu(widget);
        return false;
    }
    if (!receiver->isWindowType())
        return false;
    auto &window = static_cast<QWindow &>(*receiver);
    switch (event->type()) {
    case QEvent::Expose:
        exposed(window);
        break;
    case QEvent::Move:
    case QEvent::Resize:
        moved(window);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
        m_lastUsed = &window;
        break;
    default:
        break;
    }
    return false;
}

// The window may have been shown before as the menu of an ordinary one.
void WaylandLayers::prepareMenu(QWidget &menu) {
    QWindow &window = *menu.windowHandle();
    if (!isMenuOrToolTip(window))
        return;
    QWindow *const parent = parentOf(menu);
    const bool isOurs = parent && isPlaced(*parent);
    window.setFlag(Qt::BypassWindowManagerHint, isOurs);
    if (isOurs)
        layer(window).parent = parent;
}

QWindow *WaylandLayers::parentOf(const QWidget &menu) const {
    if (const QWidget *const owner = menu.parentWidget())
        return owner->window()->windowHandle();
    return m_lastUsed && m_lastUsed->isVisible() ? m_lastUsed.get() : QGuiApplication::focusWindow();
}

// Qt paints when it has heard that the window is exposed, and by then the surface needs its role.
void WaylandLayers::exposed(QWindow &window) {
    if (!isPlaced(window) || !window.isExposed())
        return;
    Layer &it = layer(window);
    wl_surface *const surface = WaylandDisplay::surface(window);
    if (it.role || !surface)
        return;
    followSurface(window, it);
    if (surface == it.spentSurface) {
        if (!it.parent && QGuiApplication::screenAt(window.geometry().center()))
            renewSurface(window);
        return;
    }
    it.surface = surface;
    it.spentSurface = surface;
    makeRole(window, it);
}

// Not at once: the window is being shown or moved just now.
void WaylandLayers::renewSurface(QWindow &window) {
    const auto renew = [shown = QPointer<QWindow>(&window)] {
        if (!shown || !shown->handle() || !shown->isVisible())
            return;
        shown->handle()->setVisible(false);
        shown->handle()->setVisible(true);
    };
    QMetaObject::invokeMethod(this, renew, Qt::QueuedConnection);
}

void WaylandLayers::followSurface(QWindow &window, Layer &it) {
    it.platformWindow = dynamic_cast<QObject *>(window.handle());
    if (it.platformWindow) {
        connect(it.platformWindow, vanishingSignal(*it.platformWindow), this, SLOT(surfaceVanishes()),
                Qt::UniqueConnection);
    }
}

void WaylandLayers::makeRole(QWindow &window, Layer &it) {
    const QRect place = window.geometry();
    if (it.parent) {
        const auto parent = m_layers.find(it.parent);
        if (parent == m_layers.end() || !parent->second.role)
            return;
        const QRect relative = place.translated(-it.parent->position());
        it.role =
            makePopupRole(*m_display, it.surface, *parent->second.role, relative, window.type() == Qt::Popup);
    } else {
        QScreen *const screen = QGuiApplication::screenAt(place.center());
        it.output = screen ? WaylandDisplay::output(*screen) : nullptr;
        if (!it.output)
            return;
        it.role = makeLayerRole(*m_display, it.surface, it.output,
                                place.translated(-screen->geometry().topLeft()), it.keyboard);
    }
    it.role->onClosed = [this, &window] { roleClosed(window); };
    shareInput();
}

void WaylandLayers::moved(QWindow &window) {
    const auto found = m_layers.find(&window);
    if (found == m_layers.end() || !found->second.role)
        return;
    const QRect place = window.geometry();
    if (QScreen *const screen = QGuiApplication::screenAt(place.center())) {
        // A layer stays on its output.
        if (!found->second.parent && WaylandDisplay::output(*screen) != found->second.output)
            return renewSurface(window);
        found->second.role->place(place.translated(-screen->geometry().topLeft()));
    }
    shareInput();
}

// Menus go before what they belong to.
void WaylandLayers::dropRole(QWindow &window) {
    for (auto &[other, it] : m_layers) {
        if (it.parent == &window && it.role)
            dropRole(*other);
    }
    const auto found = m_layers.find(&window);
    if (found == m_layers.end())
        return;
    found->second.role.reset();
    found->second.surface = nullptr;
    if (found->second.inputRegion)
        shareInput();
}

void WaylandLayers::surfaceVanishes() {
    for (auto &[window, it] : m_layers) {
        if (it.platformWindow != sender())
            continue;
        it.spentSurface = nullptr;
        if (it.role)
            dropRole(*window);
        return;
    }
}

// Not at once: the compositor's message is still being dealt with.
void WaylandLayers::roleClosed(QWindow &window) {
    if (!isMenuOrToolTip(window))
        return dropRole(window);
    const auto close = [menu = QPointer<QWindow>(&window)] {
        if (menu)
            menu->close();
    };
    QMetaObject::invokeMethod(this, close, Qt::QueuedConnection);
}

void WaylandLayers::shareInput() {
    for (const auto &[window, it] : m_layers) {
        if (it.role && !it.parent)
            applyInputRegion(it, inputRegionOf(*window, it));
    }
}

QRegion WaylandLayers::inputRegionOf(const QWindow &window, const Layer &it) const {
    if (it.inputRegion)
        return *it.inputRegion;
    QRegion left(QRect(QPoint(), window.size()));
    for (const auto &[other, its] : m_layers) {
        if (its.role && its.inputRegion)
            left -= its.inputRegion->translated(other->position() - window.position());
    }
    return left;
}

void WaylandLayers::applyInputRegion(const Layer &it, const QRegion &input) const {
    wl_region *const region = wl_compositor_create_region(m_display->compositor());
    for (const QRect &rect : input)
        wl_region_add(region, rect.x(), rect.y(), rect.width(), rect.height());
    wl_surface_set_input_region(it.surface, region);
    wl_surface_commit(it.surface);
    wl_region_destroy(region);
}

} // namespace tembra
