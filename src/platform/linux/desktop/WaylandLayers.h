#pragma once

#include "platform/linux/desktop/WaylandDisplay.h"
#include "platform/linux/desktop/WaylandRole.h"

#include <QObject>
#include <QPointer>
#include <QRegion>

#include <map>
#include <memory>
#include <optional>

QT_BEGIN_NAMESPACE
class QWidget;
class QWindow;
QT_END_NAMESPACE

namespace tembra {

// Gives the windows that ask to be left alone by window management (Qt::BypassWindowManagerHint) their place
// over all others, where their geometry says, and their menus and tool tips theirs. Qt leaves such windows
// without a role when QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT is set. Main thread, screen points.
class WaylandLayers final : public QObject {
    Q_OBJECT

public:
    explicit WaylandLayers(std::shared_ptr<WaylandDisplay> display);
    ~WaylandLayers() override;

    // The part of the window, in its own points, that takes the pointer. Windows that were never told let
    // those have it that were, in whatever order the compositor stacks them.
    void setInputRegion(QWindow &window, const QRegion &region);
    // The compositor lets it be drawn where it was put.
    [[nodiscard]] bool isReady(QWindow &window) const;
    void setKeyboard(QWindow &window, layer_shell::Keyboard keyboard);
    // Whether the window is one of these, or a menu of one: where it lies is known then.
    [[nodiscard]] static bool isPlaced(const QWindow &window);

    bool eventFilter(QObject *receiver, QEvent *event) override;

private Q_SLOTS:
    void surfaceVanishes();

private:
    struct Layer {
        wl_surface *surface = nullptr;
        // Has had a role, or was drawn without one: it can never have another.
        wl_surface *spentSurface = nullptr;
        wl_output *output = nullptr;
        // Lives as long as the window has its surface.
        QPointer<QObject> platformWindow;
        QPointer<QWindow> parent;
        std::unique_ptr<WaylandRole> role;
        std::optional<QRegion> inputRegion;
        layer_shell::Keyboard keyboard = layer_shell::Keyboard::none;
    };

    Layer &layer(QWindow &window);
    void prepareMenu(QWidget &menu);
    // The window that a menu without a parent belongs to.
    [[nodiscard]] QWindow *parentOf(const QWidget &menu) const;
    void exposed(QWindow &window);
    void moved(QWindow &window);
    void renewSurface(QWindow &window);
    void followSurface(QWindow &window, Layer &layer);
    void makeRole(QWindow &window, Layer &layer);
    void dropRole(QWindow &window);
    void roleClosed(QWindow &window);
    void shareInput();
    [[nodiscard]] QRegion inputRegionOf(const QWindow &window, const Layer &layer) const;
    void applyInputRegion(const Layer &layer, const QRegion &input) const;

    const std::shared_ptr<WaylandDisplay> m_display;
    std::map<QWindow *, Layer> m_layers;
    QPointer<QWindow> m_lastUsed;
};

} // namespace tembra
