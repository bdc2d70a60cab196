#include "editor/chrome/EditorNumberControl.h"

#include "controls/TembraTextField.h"
#include "controls/TembraToolTip.h"
#include "editor/chrome/EditorFlatButton.h"
#include "editor/model/EditorNumber.h"

#include <QKeyEvent>
#include <QLocale>

#include <cstdlib>

namespace tembra {

namespace {

constexpr int fieldWidth = 64;

// As the field shows it; nothing where that is no number that a badge can have.
std::optional<std::int64_t> numberIn(const QString &text) {
    bool isNumber = false;
    const qlonglong number = QLocale().toLongLong(text.trimmed(), &isNumber);
    const bool isInRange = number != 0 && std::abs(number) <= EditorNumber::largest;
    return isNumber && isInRange ? std::optional<std::int64_t>(number) : std::nullopt;
}

QString textOf(std::int64_t number) {
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(static_cast<qlonglong>(number));
}

} // namespace

EditorNumberControl::EditorNumberControl(QWidget *parent)
    : EditorControlRow(parent), m_field(new TembraTextField(this)) {
    auto *less =
        new EditorFlatButton(QStringLiteral("−"), tr("Previous number"), EditorFlatButton::Mark::none, this);
    auto *more =
        new EditorFlatButton(QStringLiteral("+"), tr("Next number"), EditorFlatButton::Mark::none, this);
    m_field->setAccessibleName(tr("Number"));
    TembraToolTip::set(*m_field, tr("Number"));
    m_field->setFixedWidth(fieldWidth);
    m_field->setTextMargins(0, 0, 0, 0);
    m_field->setAlignment(Qt::AlignCenter);
    m_field->setMaxLength(5);
    m_field->installEventFilter(this);
    connect(m_field, &QLineEdit::returnPressed, this, &EditorNumberControl::apply);
    connect(m_field, &QLineEdit::textEdited, this,
            [this](const QString &text) { m_field->setInvalid(!numberIn(text)); });
    connect(less, &QAbstractButton::clicked, this, [this] { step(-1); });
    connect(more, &QAbstractButton::clicked, this, [this] { step(1); });
    for (const EditorFlatButton *button : {less, more})
        connect(button, &EditorFlatButton::stepped, this, &EditorNumberControl::step);
    add(less, 0);
    add(m_field, 1);
    add(more, 1);
    setTabOrder(less, m_field);
    setTabOrder(m_field, more);
    restore();
}

void EditorNumberControl::setNumber(std::int64_t number) {
    const bool isNew = number != m_number;
    m_number = number;
    if (isNew || !m_field->hasFocus())
        restore();
}

void EditorNumberControl::restore() {
    m_field->setText(textOf(m_number));
    m_field->setInvalid(false);
}

void EditorNumberControl::apply() {
    const std::optional<std::int64_t> number = numberIn(m_field->text());
    if (!number)
        return m_field->setInvalid(true);
    m_field->selectAll();
    if (*number != m_number)
        Q_EMIT chosen(*number);
}

void EditorNumberControl::step(int steps) {
    const std::int64_t next = m_number + steps;
    const bool passesZero = next == 0 || (next > 0) != (m_number > 0);
    const std::int64_t number = passesZero ? next + (steps > 0 ? 1 : -1) : next;
    if (std::abs(number) <= EditorNumber::largest)
        Q_EMIT chosen(number);
}

bool EditorNumberControl::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            restore();
    }
    if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Up:
            step(1);
            return true;
        case Qt::Key_Down:
            step(-1);
            return true;
        case Qt::Key_Escape:
            restore();
            m_field->clearFocus();
            Q_EMIT editingEnded();
            return true;
        default:
            break;
        }
    }
    return EditorControlRow::eventFilter(watched, event);
}

} // namespace tembra
