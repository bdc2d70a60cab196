#include "windows/settings/SettingsWindow.h"

#include "controls/ProgramIcon.h"
#include "controls/ShelfScroller.h"
#include "controls/TembraTextField.h"
#include "controls/Theme.h"
#include "controls/Typography.h"
#include "windows/settings/SettingsPage.h"
#include "windows/settings/SettingsSidebar.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

namespace tembra {

namespace {

constexpr QSize usualSize{700, 680};
constexpr QSize smallestSize{560, 300};
// For the title bar and the frame.
constexpr QSize aroundWindow{8, 40};
constexpr int sidebarWidth = 180;
constexpr int pageMargin = 28;
constexpr int pageTop = 24;
constexpr int searchMargin = 12;
constexpr int scrollerWidth = 10;
constexpr int pageGap = 22;

} // namespace

SettingsWindow::SettingsWindow(std::vector<SettingsPage *> pages, QWidget *parent)
    : QWidget(parent, Qt::Window),
      m_pages(std::move(pages)),
      m_sidebar(new SettingsSidebar),
      m_search(new TembraTextField),
      m_area(new QScrollArea),
      m_scroller(new ShelfScroller(*m_area->verticalScrollBar(), m_area)),
      m_nothingFound(new QLabel(tr("No setting has these words."))) {
    setWindowTitle(tr("Settings"));
    setWindowIcon(programIcon());
    Theme::setAppearance(*this, Appearance::desktop);
    setMinimumSize(smallestSize);
    resize(usualSize.boundedTo(screen()->availableSize() - aroundWindow));
    layOut();
    addPages();
    addShortcuts();
    connect(m_sidebar, &SettingsSidebar::chosen, this, [this] {
        const QSignalBlocker blocker(m_search);
        m_search->clear();
        showPages();
    });
    connect(m_search, &QLineEdit::textChanged, this, &SettingsWindow::showPages);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { followFocus(now); });
    showPages();
    m_sidebar->setFocus();
}

void SettingsWindow::layOut() {
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search in the settings"));
    auto *side = new QWidget(this);
    side->setFixedWidth(sidebarWidth);
    auto *sideRows = new QVBoxLayout(side);
    sideRows->setContentsMargins(0, searchMargin, 0, searchMargin);
    auto *searchRow = new QHBoxLayout;
    searchRow->setContentsMargins(searchMargin, 0, searchMargin, 6);
    searchRow->addWidget(m_search);
    sideRows->addLayout(searchRow);
    sideRows->addWidget(m_sidebar, 1);

    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->viewport()->setAutoFillBackground(false);
    m_area->installEventFilter(this);
    auto *columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(1);
    columns->addWidget(side);
    columns->addWidget(m_area, 1);
}

void SettingsWindow::addPages() {
    auto *content = new QWidget;
    content->setAutoFillBackground(false);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins(pageMargin, pageTop, pageMargin, pageMargin);
    rows->setSpacing(pageGap);
    for (SettingsPage *page : m_pages) {
        rows->addWidget(page);
        // Rows come and go.
        connect(page, &SettingsPage::refreshed, this, &SettingsWindow::showFound);
    }
    m_nothingFound->setFont(typography::font(typography::bodySize));
    rows->addWidget(m_nothingFound);
    rows->addStretch(1);
    m_area->setWidget(content);
    content->setAutoFillBackground(false);
}

void SettingsWindow::addShortcuts() {
    const auto add = [this](const QKeySequence &keys, auto act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    add(QKeySequence::Find, [this] { m_search->setFocus(Qt::ShortcutFocusReason); });
    add(QKeySequence::Close, [this] { close(); });
    for (const SettingsPageId page : allSettingsPages)
        add(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + static_cast<int>(page))),
            [this, page] { showPage(page); });
}

void SettingsWindow::showPage(SettingsPageId page) {
    m_search->clear();
    m_sidebar->setCurrentPage(page);
}

SettingsPageId SettingsWindow::currentPage() const {
    return m_sidebar->currentPage();
}

bool SettingsWindow::isShowing(SettingsPageId page) const {
    return isActiveWindow() && !isMinimized() && m_search->text().isEmpty() && currentPage() == page;
}

void SettingsWindow::search(const QString &text) {
    m_search->setText(text);
}

void SettingsWindow::refresh() {
    for (SettingsPage *page : m_pages)
        page->refresh();
}

void SettingsWindow::showPages() {
    const QStringList words = m_search->text().simplified().split(u' ', Qt::SkipEmptyParts);
    for (SettingsPage *page : m_pages)
        page->filter(words);
    showFound();
    m_area->verticalScrollBar()->setValue(0);
}

// Without words the current page, else every page on which something is found.
void SettingsWindow::showFound() {
    const bool isSearch = !m_search->text().trimmed().isEmpty();
    bool isAnyFound = false;
    for (const SettingsPageId id : allSettingsPages) {
        SettingsPage *page = m_pages.at(static_cast<size_t>(id));
        const bool isFound = page->isFound();
        m_sidebar->setPageFound(id, isFound);
        page->setVisible(isSearch ? isFound : id == currentPage());
        isAnyFound = isAnyFound || isFound;
    }
    m_nothingFound->setVisible(!isAnyFound);
}

void SettingsWindow::followFocus(QWidget *focused) {
    constexpr int margin = 24;
    if (focused && m_area->widget()->isAncestorOf(focused))
        m_area->ensureWidgetVisible(focused, margin, margin);
}

void SettingsWindow::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const Theme &theme = Theme::of(*this);
    painter.fillRect(rect(), theme.window);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const QRect side(isMirrored ? width() - sidebarWidth : 0, 0, sidebarWidth, height());
    painter.fillRect(side, theme.sidebar);
    painter.fillRect(QRect(isMirrored ? side.left() - 1 : side.right() + 1, 0, 1, height()), theme.edge);
}

void SettingsWindow::keyPressEvent(QKeyEvent *event) {
    if (event->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(event);
    if (m_search->text().isEmpty())
        close();
    else
        m_search->clear();
}

void SettingsWindow::changeEvent(QEvent *event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        Q_EMIT activated();
        refresh();
    }
    QWidget::changeEvent(event);
}

void SettingsWindow::closeEvent(QCloseEvent *event) {
    QWidget::closeEvent(event);
    Q_EMIT closed();
}

bool SettingsWindow::eventFilter(QObject *watched, QEvent *event) {
    if (watched == m_area && event->type() == QEvent::Resize) {
        const bool isMirrored = layoutDirection() == Qt::RightToLeft;
        m_scroller->setGeometry(isMirrored ? 0 : m_area->width() - scrollerWidth, 0, scrollerWidth,
                                m_area->height());
        m_scroller->raise();
    }
    if (watched == m_area && (event->type() == QEvent::Enter || event->type() == QEvent::Leave))
        m_scroller->setAreaActive(event->type() == QEvent::Enter);
    return QWidget::eventFilter(watched, event);
}

} // namespace tembra
