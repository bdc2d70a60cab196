#include "shelf/ShelfHeader.h"

#include "controls/Palette.h"
#include "controls/SpokenNotice.h"
#include "controls/TembraButton.h"
#include "controls/TembraToolTip.h"
#include "recognition/model/OCRInput.h"
#include "shelf/ShelfButton.h"

#include <QPainter>
#include <QStyle>

namespace tembra {

namespace {

constexpr QPoint groupOrigin{18, 6};
constexpr int groupInset = 3;
constexpr int buttonSpacing = 4;
constexpr int settingsInset = 10;
constexpr qreal groupRadius = 10;

Icon iconOf(ShelfTab tab) {
    switch (tab) {
    case ShelfTab::screenshots:
        return Icon::photo;
    case ShelfTab::imageToText:
        return Icon::textViewfinder;
    case ShelfTab::fileTray:
        return Icon::folder;
    }
    Q_UNREACHABLE();
}

QString nameOf(ShelfTab tab) {
    switch (tab) {
    case ShelfTab::screenshots:
        return ShelfHeader::tr("Screenshots");
    case ShelfTab::imageToText:
        return ShelfHeader::tr("Image to Text");
    case ShelfTab::fileTray:
        return ShelfHeader::tr("File Tray");
    }
    Q_UNREACHABLE();
}

} // namespace

ShelfHeader::ShelfHeader(QWidget *parent)
    : QWidget(parent),
      m_undo(new TembraButton(TembraButton::Kind::plain, this)),
      m_settings(new ShelfButton(ShelfButton::Kind::command, Icon::gear, tr("Settings"), this)) {
    connect(m_settings, &ShelfButton::clicked, this, &ShelfHeader::settingsClicked);
    m_settings->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_settings, &QWidget::customContextMenuRequested, this, [this] {
        const QPoint below(0, m_settings->height() + buttonSpacing);
        Q_EMIT programMenuRequested(m_settings->mapToGlobal(below));
    });
    m_undo->setText(tr("Undo"));
    m_undo->setFocusPolicy(Qt::TabFocus);
    m_undo->hide();
    connect(m_undo, &TembraButton::clicked, this, &ShelfHeader::undoClicked);
}

void ShelfHeader::offerUndo(const std::optional<QString> &actionName) {
    if (actionName && m_undo->isHidden())
        SpokenNotice::say(*this, tr("%1. Undo takes it back.").arg(*actionName));
    m_undo->setVisible(actionName.has_value());
    TembraToolTip::set(*m_undo, actionName ? tr("Undo %1").arg(*actionName) : QString());
    m_undo->setAccessibleName(m_undo->toolTip());
    placeButtons();
}

void ShelfHeader::placeButtons() {
    m_settings->resize(m_settings->sizeHint());
    m_undo->resize(m_undo->sizeHint());
    const int settingsLeft = width() - settingsInset - m_settings->width();
    place(*m_settings, {settingsLeft, (height - m_settings->height()) / 2});
    place(*m_undo, {settingsLeft - buttonSpacing - m_undo->width(), (height - m_undo->height()) / 2});
    QPoint at = groupOrigin + QPoint(groupInset, groupInset);
    for (ShelfButton *button : m_buttons) {
        place(*button, at);
        at.rx() += button->width() + buttonSpacing;
    }
}

// From the leading edge.
void ShelfHeader::place(QWidget &control, QPoint position) const {
    control.setGeometry(QStyle::visualRect(layoutDirection(), rect(), {position, control.size()}));
}

void ShelfHeader::resizeEvent(QResizeEvent *) {
    placeButtons();
}

void ShelfHeader::apply(const std::vector<ShelfTab> &tabs, ShelfTab active) {
    if (tabs != m_tabs) {
        m_tabs = tabs;
        build();
    }
    for (std::size_t i = 0; i < m_tabs.size(); ++i)
        m_buttons[i]->setChecked(m_tabs[i] == active);
}

void ShelfHeader::build() {
    for (ShelfButton *button : m_buttons)
        button->deleteLater();
    m_buttons.clear();
    for (const ShelfTab tab : m_tabs) {
        auto *button = new ShelfButton(ShelfButton::Kind::tab, iconOf(tab), nameOf(tab), this);
        button->show();
        connect(button, &ShelfButton::clicked, this, [this, tab] { Q_EMIT tabClicked(tab); });
        connect(button, &ShelfButton::entered, this, [this, tab] { Q_EMIT tabHovered(tab); });
        connect(button, &ShelfButton::left, this, [this, tab] { Q_EMIT tabLeft(tab); });
        m_buttons.push_back(button);
        if (tab == ShelfTab::screenshots)
            continue;
        button->setAcceptDrops(true);
        if (tab == ShelfTab::imageToText)
            button->canReceive = OCRInput::canRead;
        connect(button, &ShelfButton::draggedOver, this, [this, tab] { Q_EMIT tabDraggedOver(tab); });
        connect(button, &ShelfButton::dropped, this,
                [this, tab](const QMimeData *content) { Q_EMIT droppedOn(tab, content); });
    }
    placeButtons();
    arrangeForKeyboard();
    update();
}

// For Tab and for assistive programs in the order in which they are read.
void ShelfHeader::arrangeForKeyboard() {
    std::vector<QWidget *> order(m_buttons.begin(), m_buttons.end());
    order.insert(order.end(), {m_undo, m_settings});
    for (std::size_t i = 0; i < order.size(); ++i) {
        order[i]->raise();
        if (i > 0)
            setTabOrder(order[i - 1], order[i]);
    }
}

QRect ShelfHeader::group() const {
    const int count = static_cast<int>(m_tabs.size());
    const QSize button = ShelfButton::fieldSize;
    const QSize size(count * button.width() + (count - 1) * buttonSpacing + 2 * groupInset,
                     button.height() + 2 * groupInset);
    return QStyle::visualRect(layoutDirection(), rect(), {groupOrigin, size});
}

void ShelfHeader::paintEvent(QPaintEvent *) {
    if (m_tabs.empty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::group);
    painter.drawRoundedRect(group(), groupRadius, groupRadius);
}

} // namespace tembra
