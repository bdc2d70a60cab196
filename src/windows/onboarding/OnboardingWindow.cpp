#include "windows/onboarding/OnboardingWindow.h"

#include "controls/ProgramIcon.h"
#include "controls/SpokenNotice.h"
#include "controls/TembraButton.h"
#include "controls/TembraLinkButton.h"
#include "controls/TextLabel.h"
#include "controls/Theme.h"
#include "controls/Typography.h"
#include "windows/onboarding/OnboardingDots.h"
#include "windows/onboarding/OnboardingIllustration.h"

#include <QCloseEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace tembra {

namespace {

constexpr int textWidth = 400;
constexpr int pathWidth = 480;
constexpr int lineHeight = 21;

QLabel *makeLabel(QWidget *parent, int size, QFont::Weight weight) {
    auto *label = new QLabel(parent);
    label->setFont(typography::font(size, weight));
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void setColor(QLabel &label, const QColor &color) {
    QPalette colors = label.palette();
    colors.setColor(QPalette::WindowText, color);
    label.setPalette(colors);
}

void setTitle(QAbstractButton &button, const QString &title, bool isEnabled) {
    button.setText(title);
    button.setVisible(!title.isEmpty());
    button.setEnabled(isEnabled);
}

} // namespace

OnboardingWindow::OnboardingWindow()
    : m_illustration(new OnboardingIllustration(this)),
      m_heading(makeLabel(this, typography::displaySize, QFont::Bold)),
      m_text(makeLabel(this, typography::headlineSize, QFont::Normal)),
      m_path(makeLabel(this, typography::bodySize, QFont::DemiBold)),
      m_primary(new TembraButton(TembraButton::Kind::primary, TembraButton::Size::large, QString(), this)),
      m_secondary(new TembraButton(TembraButton::Kind::plain, TembraButton::Size::large, QString(), this)),
      m_link(new TembraLinkButton(QString(), this)),
      m_note(makeLabel(this, typography::bodySize, QFont::Normal)),
      m_dots(new OnboardingDots(this)) {
    makeHeading(*m_heading);
    setWindowTitle(QStringLiteral("Tembra"));
    setWindowIcon(programIcon());
    Theme::setAppearance(*this, Appearance::desktop);
    layOut();
    fitInto(QGuiApplication::primaryScreen()->availableSize());
    connectControls();
    applyColors();
}

void OnboardingWindow::layOut() {
    m_text->setTextFormat(Qt::RichText);
    m_text->setWordWrap(true);
    m_text->setFixedWidth(textWidth);
    m_note->setWordWrap(true);
    m_note->setFixedWidth(pathWidth);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    buttons->addStretch();
    buttons->addWidget(m_primary);
    buttons->addWidget(m_secondary);
    buttons->addStretch();

    auto *rows = new QVBoxLayout(this);
    rows->setSpacing(0);
    rows->addWidget(m_illustration, 0, Qt::AlignHCenter);
    rows->addWidget(m_heading);
    rows->addSpacing(8);
    rows->addWidget(m_text, 0, Qt::AlignHCenter);
    rows->addSpacing(12);
    rows->addWidget(m_path, 0, Qt::AlignHCenter);
    rows->addSpacing(14);
    rows->addLayout(buttons);
    rows->addWidget(m_link, 0, Qt::AlignHCenter);
    rows->addSpacing(10);
    rows->addWidget(m_note, 0, Qt::AlignHCenter);
    rows->addStretch();
    rows->addWidget(m_dots, 0, Qt::AlignHCenter);
}

// With large text little of a display may be left: the picture goes then, not the words.
void OnboardingWindow::fitInto(QSize room) {
    constexpr int titleBar = 40;
    const QSize size = contentSize.boundedTo({room.width(), room.height() - titleBar});
    const bool hasPicture = size.height() == contentSize.height();
    m_illustration->setVisible(hasPicture);
    m_heading->setContentsMargins(0, hasPicture ? 33 : 0, 0, 0);
    layout()->setContentsMargins(0, hasPicture ? 40 : 10, 0, hasPicture ? 26 : 10);
    setFixedSize(size);
}

void OnboardingWindow::connectControls() {
    connect(m_primary, &QAbstractButton::clicked, this, &OnboardingWindow::primaryRequested);
    connect(m_secondary, &QAbstractButton::clicked, this, &OnboardingWindow::secondaryRequested);
    connect(m_link, &QAbstractButton::clicked, this, &OnboardingWindow::linkRequested);
    connect(m_dots, &OnboardingDots::stepRequested, this, &OnboardingWindow::stepRequested);
    // Before the buttons, which would take the arrows for the way to the next button.
    addShortcut(Qt::Key_Left, -1);
    addShortcut(Qt::Key_Backspace, -1);
    addShortcut(Qt::Key_Right, 1);
}

void OnboardingWindow::addShortcut(const QKeySequence &key, int steps) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, [this, steps] { go(steps); });
}

void OnboardingWindow::go(int steps) {
    const int target = static_cast<int>(m_state.step) + steps;
    if (target >= 0 && target <= static_cast<int>(m_state.reached) && target < onboardingStepCount &&
        !m_page.isBusy)
        Q_EMIT stepRequested(static_cast<OnboardingStep>(target));
}

void OnboardingWindow::apply(const OnboardingState &state) {
    const QString headingBefore = m_page.heading;
    const bool wasBusy = m_page.isBusy;
    m_state = state;
    m_page = OnboardingPage::of(state);
    m_illustration->show(m_page.scene, state.capture);
    m_heading->setText(m_page.heading);
    setText(m_page.text);
    const QFontMetrics metrics(m_path->font());
    m_path->setText(metrics.elidedText(m_page.path, Qt::ElideMiddle, pathWidth));
    m_path->setAccessibleName(m_page.path);
    m_path->setVisible(!m_page.path.isEmpty());
    m_note->setText(m_page.note);
    m_note->setVisible(!m_page.note.isEmpty());
    setTitle(*m_primary, m_page.primary, !m_page.isBusy);
    setTitle(*m_secondary, m_page.secondary, !m_page.isBusy);
    setTitle(*m_link, m_page.link, !m_page.isBusy);
    m_dots->show(state.step, m_page.isBusy ? state.step : state.reached);
    m_dots->setEnabled(!m_page.isBusy);
    applyColors();
    if (m_page.heading != headingBefore && isVisible())
        SpokenNotice::say(*this, m_page.heading + u'\n' + m_page.text);
    if (m_page.heading != headingBefore || m_page.isBusy != wasBusy)
        focusDefault();
}

void OnboardingWindow::setText(const QString &text) {
    m_text->setText(QStringLiteral("<p style=\"line-height: %1px; text-align: center\">%2</p>")
                        .arg(lineHeight)
                        .arg(text.toHtmlEscaped()));
    m_text->setAccessibleName(text);
    // What follows stays in its place, whether one line or two.
    m_text->setFixedHeight(std::max(2 * lineHeight, m_text->heightForWidth(textWidth)));
}

void OnboardingWindow::focusDefault() {
    QWidget *wanted = m_page.primary.isEmpty() ? static_cast<QWidget *>(m_link) : m_primary;
    wanted->setFocus(Qt::OtherFocusReason);
}

void OnboardingWindow::applyColors() {
    const Theme &theme = Theme::of(*this);
    setColor(*m_heading, theme.text);
    setColor(*m_text, theme.secondaryText);
    setColor(*m_path, theme.text);
    setColor(*m_note, m_page.isFailure ? theme.invalid : theme.secondaryText);
}

void OnboardingWindow::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyColors();
}

void OnboardingWindow::present() {
    if (!isVisible()) {
        const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
        const QRect room = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
        fitInto(room.size());
        move(room.center() - rect().center());
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void OnboardingWindow::restartAnimation() {
    m_illustration->restart();
}

void OnboardingWindow::closeEvent(QCloseEvent *event) {
    event->accept();
    Q_EMIT closed();
}

void OnboardingWindow::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!m_page.primary.isEmpty() && !m_page.isBusy)
            m_primary->click();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace tembra
