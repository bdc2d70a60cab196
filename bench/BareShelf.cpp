#include "BareShelf.h"

#include <QEnterEvent>
#include <QPainter>

namespace tembra::bench {

namespace {

constexpr Qt::WindowFlags bareFlags = Qt::X11BypassWindowManagerHint | Qt::FramelessWindowHint;

} // namespace

class BareShelf::Strip final : public QWidget {
public:
    explicit Strip(QWidget &shelf) : QWidget(nullptr, bareFlags), m_shelf(shelf) {
        setGeometry(0, 0, 192, 12);
        show();
    }

protected:
    void enterEvent(QEnterEvent *) override { m_shelf.show(); }
    void leaveEvent(QEvent *) override { m_shelf.hide(); }

private:
    QWidget &m_shelf;
};

BareShelf::BareShelf(bool isTranslucent) : QWidget(nullptr, bareFlags) {
    setAttribute(Qt::WA_TranslucentBackground, isTranslucent);
    // As large as the shelf's window, below the strip.
    setGeometry(0, 20, 856, 324);
    winId();
    m_strip = std::make_unique<Strip>(*this);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(16);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        update();
        if (--m_framesLeft <= 0)
            m_timer.stop();
    });
}

QPoint BareShelf::strip() const {
    return m_strip->geometry().center();
}

void BareShelf::animate(int frames) {
    m_framesLeft = frames;
    m_timer.start();
}

void BareShelf::paintEvent(QPaintEvent *) {
    QPainter(this).fillRect(rect(), Qt::black);
}

} // namespace tembra::bench
