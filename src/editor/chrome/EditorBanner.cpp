#include "editor/chrome/EditorBanner.h"

#include "controls/SpokenNotice.h"
#include "controls/TembraButton.h"
#include "controls/Theme.h"
#include "controls/Typography.h"
#include "editor/chrome/AccessibleEditorChrome.h"
#include "editor/chrome/EditorIconButton.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>

#include <utility>

namespace tembra {

namespace {

constexpr int markSide = 18;
constexpr int markMargin = 16;

} // namespace

EditorBanner::EditorBanner(QWidget *parent)
    : QWidget(parent), m_layout(new QHBoxLayout(this)), m_text(new QLabel(this)) {
    installAccessibleEditorChrome();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    m_text->setFont(typography::font(typography::bodySize));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    auto *close = new EditorIconButton(Icon::close, EditorIconButton::Size::small, tr("Dismiss"), this);
    connect(close, &QAbstractButton::clicked, this, &EditorBanner::dismiss);
    m_layout->setContentsMargins(markMargin + markSide + 10, 6, 10, 7);
    m_layout->setSpacing(2);
    m_layout->addWidget(m_text, 1);
    m_layout->addSpacing(8);
    m_layout->addWidget(close, 0, Qt::AlignVCenter);
    hide();
}

QString EditorBanner::text() const {
    return isHidden() ? QString() : m_text->text();
}

void EditorBanner::present(const EditorBannerMessage &message) {
    m_isError = message.isError;
    m_text->setText(message.text);
    setAccessibleName(message.text);
    takeActions(message.actions);
    show();
    update();
    SpokenNotice::readAgain(*this);
}

void EditorBanner::takeActions(const std::vector<EditorBannerMessage::Action> &actions) {
    // One of them may be what leads here.
    for (QWidget *action : std::exchange(m_actions, {})) {
        action->hide();
        action->deleteLater();
    }
    for (const auto &[title, perform] : actions) {
        auto *button = new TembraButton(TembraButton::Kind::plain, TembraButton::Size::compact, title, this);
        // A click leaves the keyboard to what is being drawn.
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QAbstractButton::clicked, this, [this, perform = perform] {
            dismiss();
            if (perform)
                perform();
        });
        // Before the button that dismisses.
        m_layout->insertWidget(m_layout->count() - 1, button, 0, Qt::AlignVCenter);
        m_actions.push_back(button);
    }
}

void EditorBanner::dismiss() {
    if (isHidden())
        return;
    // What is hidden would hand the keyboard to the next control, where it is not expected.
    QWidget *focused = window()->focusWidget();
    if (focused && isAncestorOf(focused))
        focused->clearFocus();
    hide();
    Q_EMIT dismissed();
}

void EditorBanner::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        update();
}

void EditorBanner::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape)
        dismiss();
    else
        QWidget::keyPressEvent(event);
}

void EditorBanner::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const Theme &theme = Theme::of(*this);
    const QColor ink = m_isError ? theme.invalid : theme.accent;
    QColor tint = ink;
    tint.setAlphaF(0.14F);
    painter.fillRect(rect(), theme.header);
    painter.fillRect(rect(), tint);
    painter.fillRect(QRect(0, height() - 1, width(), 1), theme.edge);
    const QRect mark(markMargin, 0, markSide, height() - 1);
    drawIcon(painter, m_isError ? Icon::warning : Icon::info,
             QStyle::visualRect(layoutDirection(), rect(), mark), markSide, ink);
}

} // namespace tembra
