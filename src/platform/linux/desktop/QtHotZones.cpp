#include "platform/linux/desktop/QtHotZones.h"

#include "platform/linux/desktop/QtPanelWindows.h"

#include <QMouseEvent>
#include <QWidget>

namespace tembra {

namespace {

class ZoneWindow final : public QWidget {
public:
    explicit ZoneWindow(HotZones::Callbacks callbacks) : m_callbacks(std::move(callbacks)) {
        QtPanelWindows::applyPanelFlags(*this);
        setWindowFlag(Qt::WindowDoesNotAcceptFocus);
    }

    void forgetCallbacks() { m_callbacks = {}; }

protected:
    void enterEvent(QEnterEvent *) override { call(m_callbacks.onEnter); }
    void leaveEvent(QEvent *) override { call(m_callbacks.onLeave); }
    void mousePressEvent(QMouseEvent *event) override {
        if (event->button() == Qt::LeftButton)
            call(m_callbacks.onPress);
    }

private:
    // From a copy: the callback may drop the zone.
    static void call(const std::function<void()> &callback) {
        if (const std::function<void()> copy = callback)
            copy();
    }

    HotZones::Callbacks m_callbacks;
};

class QtHotZone final : public HotZones::Zone {
public:
    QtHotZone(const ScreenRect &rect, HotZones::Callbacks callbacks)
        : m_window(new ZoneWindow(std::move(callbacks))) {
        QtHotZone::setRect(rect);
        m_window->show();
    }

    // The window itself may be waiting for the callback that dropped the zone.
    ~QtHotZone() override {
        m_window->forgetCallbacks();
        m_window->hide();
        m_window->deleteLater();
    }

    void setRect(const ScreenRect &rect) override {
        m_window->setGeometry(QRectF(rect.x, rect.y, rect.width, rect.height).toAlignedRect());
    }

private:
    ZoneWindow *const m_window;
};

} // namespace

std::unique_ptr<HotZones::Zone> QtHotZones::add(const ScreenRect &rect, Callbacks callbacks) {
    return std::make_unique<QtHotZone>(rect, std::move(callbacks));
}

} // namespace tembra
