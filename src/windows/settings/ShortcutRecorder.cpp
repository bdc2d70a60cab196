#include "windows/settings/ShortcutRecorder.h"

#include "controls/ControlPainting.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QKeyEvent>
#include <QPainter>

#include <cmath>

namespace tembra {

namespace {

constexpr int bodyHeight = 27;
constexpr int sideMargin = 12;
constexpr int smallestWidth = 120;
constexpr qreal radius = 7;

bool hasModifiers(const QKeyEvent &event) {
    return event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

} // namespace

ShortcutRecorder::ShortcutRecorder(Make make, QWidget *parent)
    : PaintedButton(parent), m_make(std::move(make)) {
    setFont(typography::font(typography::itemSize));
    connect(this, &QAbstractButton::clicked, this, [this] { setRecording(true); });
}

void ShortcutRecorder::setTitle(const QString &title) {
    m_title = title;
    setText(shownText());
    // The name is that of its row.
    setAccessibleDescription(shownText());
    updateGeometry();
    update();
}

QString ShortcutRecorder::shownText() const {
    return m_isRecording ? tr("Press a combination…") : m_title;
}

void ShortcutRecorder::setRecording(bool isRecording) {
    if (isRecording == m_isRecording)
        return;
    m_isRecording = isRecording;
    setTitle(m_title);
    // Every key is ours then, also one that moves the focus or is another program's shortcut.
    if (isRecording)
        grabKeyboard();
    else
        releaseKeyboard();
    Q_EMIT recordingChanged(isRecording);
}

bool ShortcutRecorder::event(QEvent *event) {
    if (!m_isRecording)
        return PaintedButton::event(event);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept();
        return true;
    case QEvent::KeyPress:
        take(*static_cast<QKeyEvent *>(event)); // NOLINT(cppcoreguidelines-pro-type-static-cast-downcast)
        event->accept();
        return true;
    case QEvent::KeyRelease:
        event->accept();
        return true;
    default:
        return PaintedButton::event(event);
    }
}

void ShortcutRecorder::take(const QKeyEvent &event) {
    if (event.isAutoRepeat())
        return;
    if (!hasModifiers(event)) {
        if (event.key() == Qt::Key_Escape)
            return setRecording(false);
        if (event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete) {
            setRecording(false);
            Q_EMIT cleared();
            return;
        }
    }
    const auto shortcut = m_make(event);
    if (!shortcut || !shortcut->isValid())
        return;
    setRecording(false);
    Q_EMIT recorded(*shortcut);
}

void ShortcutRecorder::focusOutEvent(QFocusEvent *event) {
    setRecording(false);
    PaintedButton::focusOutEvent(event);
}

void ShortcutRecorder::hideEvent(QHideEvent *event) {
    setRecording(false);
    PaintedButton::hideEvent(event);
}

QSize ShortcutRecorder::bodySize() const {
    const double width = std::ceil(QFontMetricsF(font()).horizontalAdvance(shownText()));
    return {std::max(smallestWidth, static_cast<int>(width) + 2 * sideMargin), bodyHeight};
}

PaintedButton::Outline ShortcutRecorder::paint(QPainter &painter, const Theme &theme) {
    const QRectF body = controlBody(*this);
    const QColor fill = isDown() ? theme.controlPressed : isHovered() ? theme.controlHovered : theme.control;
    drawField(painter, body, radius, m_isRecording ? theme.field : fill,
              m_isRecording ? theme.accent : theme.controlBorder);
    painter.setFont(font());
    painter.setPen(m_isRecording ? theme.secondaryText : theme.text);
    painter.drawText(body, Qt::AlignCenter, shownText());
    return {body, radius};
}

} // namespace tembra
