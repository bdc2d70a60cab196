#include "editor/chrome/EditorNameField.h"

#include "controls/ControlPainting.h"
#include "controls/FocusRing.h"
#include "controls/TembraToolTip.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QFocusEvent>
#include <QPainter>

#include <algorithm>

namespace tembra {

namespace {

constexpr int bodyHeight = 28;
constexpr int sideMargin = 12;
constexpr int dotDiameter = 6;
constexpr int dotGap = 7;
constexpr int leastWhileEditing = 160;
// What a line edit leaves free on each side of its text.
constexpr int editMargin = 2;
constexpr qreal radius = 7;

// Paints itself only while it is edited; the field around it shows the name otherwise.
class NameEdit final : public QLineEdit {
public:
    explicit NameEdit(EditorNameField *field) : QLineEdit(field), m_field(*field) {}

protected:
    void paintEvent(QPaintEvent *event) override {
        if (m_field.isEditing())
            QLineEdit::paintEvent(event);
    }

private:
    const EditorNameField &m_field;
};

} // namespace

EditorNameField::EditorNameField(QWidget *parent) : QWidget(parent), m_edit(new NameEdit(this)) {
    setFont(typography::font(typography::bodySize));
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::IBeamCursor);
    setFocusProxy(m_edit);
    // The extension follows the name in every language.
    setLayoutDirection(Qt::LeftToRight);
    m_edit->setFont(font());
    m_edit->setFrame(false);
    m_edit->setAccessibleName(tr("File name"));
    m_edit->setMaxLength(255);
    m_edit->installEventFilter(this);
    QPalette clear = m_edit->palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    m_edit->setPalette(clear);
    connect(m_edit, &QLineEdit::returnPressed, this, &EditorNameField::accept);
    connect(m_edit, &QLineEdit::textEdited, this, &EditorNameField::sizeHintChanged);
}

void EditorNameField::setName(const QString &baseName, const QString &extension) {
    m_name = baseName;
    m_extension = extension;
    TembraToolTip::set(*this, baseName + dottedExtension());
    if (!isEditing())
        restore();
    Q_EMIT sizeHintChanged();
}

void EditorNameField::setDirty(bool isDirty) {
    m_isDirty = isDirty;
    m_edit->setAccessibleDescription(isDirty ? tr("Edited") : QString());
    layOut();
    Q_EMIT sizeHintChanged();
}

QString EditorNameField::dottedExtension() const {
    return m_extension.isEmpty() ? QString() : u'.' + m_extension;
}

int EditorNameField::dotRoom() const {
    return m_isDirty ? dotDiameter + dotGap : 0;
}

QSize EditorNameField::sizeHint() const {
    const QFontMetrics metrics(font());
    const int name = metrics.horizontalAdvance(isEditing() ? m_edit->text() : m_name) + 1;
    const int room = isEditing() ? std::max(name + 8, leastWhileEditing) : name;
    const int width = 2 * sideMargin + dotRoom() + room + metrics.horizontalAdvance(dottedExtension());
    return QSize(width, bodyHeight).grownBy({ringMargin, ringMargin, ringMargin, ringMargin});
}

EditorNameField::Layout EditorNameField::arrangement() const {
    const QFontMetrics metrics(font());
    const QRect inner = controlBody(*this).toRect().adjusted(sideMargin, 0, -sideMargin, 0);
    const int extension = metrics.horizontalAdvance(dottedExtension());
    const int room = std::max(0, inner.width() - dotRoom() - extension);
    const QString shown = metrics.elidedText(m_name, Qt::ElideMiddle, room);
    const int name = isEditing() ? room : std::min(room, metrics.horizontalAdvance(shown) + 1);
    const int x = inner.left() + dotRoom() + std::max(0, (room - name) / 2);
    return {{x - dotRoom(), inner.center().y() + 1 - dotDiameter / 2, dotDiameter, dotDiameter},
            {x, inner.top(), name, inner.height()},
            shown,
            {x + name, inner.top(), extension + 1, inner.height()}};
}

void EditorNameField::layOut() {
    m_edit->setGeometry(arrangement().name.adjusted(-editMargin, 1, editMargin, 0));
    update();
}

void EditorNameField::resizeEvent(QResizeEvent *) {
    layOut();
}

void EditorNameField::mousePressEvent(QMouseEvent *) {
    m_edit->setFocus(Qt::MouseFocusReason);
}

void EditorNameField::accept() {
    const QString name = m_edit->text();
    if (name != m_name)
        Q_EMIT renameRequested(name.trimmed());
    m_edit->clearFocus();
}

void EditorNameField::cancelEditing() {
    if (!m_isEditing)
        return;
    m_edit->clearFocus();
    // In a window that is not active nobody is told of the focus.
    if (m_isEditing)
        endEditing();
}

void EditorNameField::restore() {
    m_edit->setText(m_name);
    m_edit->setCursorPosition(0);
    layOut();
}

void EditorNameField::beginEditing() {
    if (m_isEditing)
        return;
    m_isEditing = true;
    restore();
    // After the press that leads here has put the cursor to its place.
    QMetaObject::invokeMethod(m_edit, &QLineEdit::selectAll, Qt::QueuedConnection);
    Q_EMIT sizeHintChanged();
}

void EditorNameField::endEditing() {
    m_isEditing = false;
    restore();
    Q_EMIT sizeHintChanged();
    Q_EMIT editingEnded();
}

bool EditorNameField::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
            break;
        m_edit->clearFocus();
        return true;
    case QEvent::FocusIn:
        beginEditing();
        break;
    case QEvent::FocusOut: {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        // What comes between, a menu or another window, leaves what was typed.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            endEditing();
        break;
    }
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void EditorNameField::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme &theme = Theme::of(*this);
    const QRectF body = controlBody(*this);
    drawField(painter, body, radius, theme.field,
              isEditing() || underMouse() ? theme.fieldBorder : theme.controlBorder);
    if (isEditing())
        drawFocusRing(painter, body, radius, theme.focusRing);
    const Layout places = arrangement();
    if (m_isDirty) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme.unsaved);
        painter.drawEllipse(places.dot);
    }
    painter.setPen(theme.secondaryText);
    painter.drawText(places.extension, Qt::AlignLeft | Qt::AlignVCenter, dottedExtension());
    if (isEditing())
        return;
    painter.setPen(theme.text);
    painter.drawText(places.name, Qt::AlignLeft | Qt::AlignVCenter, places.shown);
}

} // namespace tembra
