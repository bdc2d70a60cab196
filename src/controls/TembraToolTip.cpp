#include "controls/TembraToolTip.h"

#include "controls/ControlPainting.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QHelpEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>

namespace tembra {

namespace {

constexpr int sideMargin = 9;
constexpr int verticalMargin = 5;
constexpr int widest = 320;
constexpr qreal radius = 6;

// Shows a widget's tool tip in place of Qt's.
class ToolTipFilter final : public QObject {
public:
    explicit ToolTipFilter(QWidget &widget) : QObject(&widget), m_widget(widget) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override {
        switch (event->type()) {
        case QEvent::ToolTip:
            if (m_widget.toolTip().isEmpty())
                return false;
            show(static_cast<QHelpEvent *>(event)->globalPos());
            return true;
        case QEvent::Leave:
        case QEvent::Hide:
        case QEvent::KeyPress:
        case QEvent::MouseButtonPress:
        case QEvent::Wheel:
        case QEvent::WindowDeactivate:
        case QEvent::ToolTipChange:
            delete m_shown;
            return false;
        default:
            return false;
        }
    }

private:
    void show(const QPoint &pointer) {
        constexpr QPoint offset(2, 20);
        delete m_shown;
        m_shown = new TembraToolTip(m_widget.toolTip(), &m_widget);
        const QSize size = m_shown->sizeHint();
        const QRect available = m_widget.screen()->availableGeometry();
        QPoint place = pointer + offset;
        if (place.y() + size.height() > available.bottom())
            place.setY(pointer.y() - size.height() - offset.x());
        const int rightmost = std::max(available.left(), available.right() - size.width());
        place.setX(std::clamp(place.x(), available.left(), rightmost));
        m_shown->setGeometry(QRect(place, size));
        m_shown->show();
    }

    QWidget &m_widget;
    QPointer<TembraToolTip> m_shown;
};

} // namespace

void TembraToolTip::set(QWidget &widget, const QString &text) {
    constexpr char filterProperty[] = "tembraToolTip";
    if (!widget.property(filterProperty).toBool()) {
        widget.setProperty(filterProperty, true);
        new ToolTipFilter(widget);
    }
    if (text != widget.toolTip())
        widget.setToolTip(text);
}

TembraToolTip::TembraToolTip(const QString &text, QWidget *owner)
    : QWidget(owner, Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint), m_text(text) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(text);
    setFont(typography::font(typography::captionSize));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize TembraToolTip::sizeHint() const {
    const QRect room(0, 0, widest, 10'000);
    return QFontMetrics(font())
        .boundingRect(room, Qt::TextWordWrap, m_text)
        .size()
        .grownBy({sideMargin, verticalMargin, sideMargin, verticalMargin});
}

void TembraToolTip::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme &theme = Theme::of(*this);
    drawField(painter, rect(), radius, theme.toolTip, theme.popupBorder);
    painter.setPen(theme.toolTipText);
    painter.drawText(rect(), static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap, m_text);
}

} // namespace tembra
