#include "Gallery.h"

#include "controls/DropZoneAppearance.h"
#include "controls/LoadingIndicator.h"
#include "controls/ShelfScroller.h"
#include "controls/TembraButton.h"
#include "controls/TembraCheckbox.h"
#include "controls/TembraDropdownPopup.h"
#include "controls/TembraLinkButton.h"
#include "controls/TembraSegment.h"
#include "controls/TembraSegmentedControl.h"
#include "controls/TembraSettingsRow.h"
#include "controls/TembraSettingsSection.h"
#include "controls/TembraTextField.h"
#include "controls/TembraToggle.h"
#include "controls/TembraToolTip.h"
#include "controls/TembraWindowHeader.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace tembra {

namespace {

enum class State { normal, hovered, pressed, focused, disabled };

void put(QWidget &control, State state) {
    auto *button = qobject_cast<QAbstractButton *>(&control);
    if (auto *segments = qobject_cast<TembraSegmentedControl *>(&control);
        segments && state != State::disabled)
        return put(segments->segment(state == State::focused ? 0 : 1), state);
    switch (state) {
    case State::normal:
        break;
    case State::hovered:
        control.setAttribute(Qt::WA_UnderMouse);
        break;
    case State::pressed:
        if (button)
            button->setDown(true);
        break;
    case State::focused: {
        QFocusEvent event(QEvent::FocusIn, Qt::TabFocusReason);
        QApplication::sendEvent(&control, &event);
        break;
    }
    case State::disabled:
        control.setEnabled(false);
        break;
    }
}

// Where files may be dropped, waiting for them or with some held over it.
class DropZone final : public QWidget {
public:
    explicit DropZone(bool isHighlighted) : m_isHighlighted(isHighlighted) { setFixedSize(180, 64); }

protected:
    void paintEvent(QPaintEvent *) override {
        QPainter painter(this);
        DropZoneAppearance::draw(painter, rect(), m_isHighlighted, false, QStringLiteral("Drop files here"));
    }

private:
    const bool m_isHighlighted;
};

QWidget *scrolledArea() {
    auto *area = new QWidget;
    area->setFixedSize(16, 64);
    auto *mirrored = new QScrollBar(Qt::Vertical, area);
    mirrored->hide();
    mirrored->setRange(0, 100);
    mirrored->setPageStep(100);
    auto *scroller = new ShelfScroller(*mirrored, area);
    scroller->setGeometry(0, 0, 16, 64);
    scroller->flash();
    return area;
}

} // namespace

Gallery::Gallery(Appearance appearance, QWidget *parent) : QWidget(parent) {
    Theme::setAppearance(*this, appearance);
    setFixedWidth(700);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 24);
    column->setSpacing(6);
    auto *header = new TembraWindowHeader(QStringLiteral("Screenshot 2026-11-21 at 10.15.22.png"));
    header->addLeading(new TembraButton(TembraButton::Kind::plain, TembraButton::Size::compact, tr("Undo")));
    header->addTrailing(
        new TembraButton(TembraButton::Kind::accent, TembraButton::Size::compact, tr("Save")));
    column->addWidget(header);
    addButtons();
    addChoices();
    addTexts();
    addSettings();
    column->addStretch();
}

void Gallery::addRowOf(const QList<QWidget *> &widgets) {
    auto *row = new QHBoxLayout;
    row->setContentsMargins(24, 0, 24, 0);
    row->setSpacing(8);
    for (QWidget *widget : widgets)
        row->addWidget(widget);
    row->addStretch();
    static_cast<QVBoxLayout *>(layout())->addLayout(row);
}

void Gallery::addStates(const std::function<QWidget *()> &make) {
    QList<QWidget *> row;
    for (const State state :
         {State::normal, State::hovered, State::pressed, State::focused, State::disabled}) {
        row.append(make());
        put(*row.last(), state);
    }
    addRowOf(row);
}

void Gallery::addButtons() {
    using Kind = TembraButton::Kind;
    using Size = TembraButton::Size;
    for (const auto &[kind, size, title] : {std::tuple(Kind::primary, Size::regular, tr("Open")),
                                            std::tuple(Kind::plain, Size::compact, tr("Choose…")),
                                            std::tuple(Kind::accent, Size::compact, tr("Save"))}) {
        addStates([kind = kind, size = size, title = title] { return new TembraButton(kind, size, title); });
    }
    addRowOf({new TembraButton(Kind::primary, Size::large, tr("Choose Folder")),
              new TembraToolTip(tr("A tool tip"), nullptr), new LoadingIndicator});
    addStates([] { return new TembraLinkButton(tr("Learn more")); });
}

void Gallery::addChoices() {
    for (const bool isOn : {false, true}) {
        addStates([isOn] {
            auto *toggle = new TembraToggle;
            toggle->setChecked(isOn);
            return toggle;
        });
        addStates([isOn] {
            auto *box = new TembraCheckbox(tr("Tick me"));
            box->setChecked(isOn);
            return box;
        });
    }
    addStates([] { return new TembraDropdownPopup({tr("Never"), tr("After a week")}); });
    addStates([] { return new TembraSegmentedControl({tr("Hover"), tr("Click")}); });
}

void Gallery::addTexts() {
    QList<QWidget *> fields;
    for (int index = 0; index < 4; ++index) {
        auto *field = new TembraTextField;
        field->setFixedWidth(136);
        fields.append(field);
        field->setPlaceholderText(tr("Placeholder"));
        if (index > 0)
            field->setText(tr("Some text"));
        field->setInvalid(index == 2);
        field->setEnabled(index != 3);
    }
    addRowOf(fields);
    addRowOf({new DropZone(false), new DropZone(true), scrolledArea()});
}

void Gallery::addSettings() {
    auto *section = new TembraSettingsSection(tr("When a screenshot is taken"));
    auto *on = new TembraToggle;
    on->setChecked(true);
    section->addRow(new TembraSettingsRow(tr("Show a notification"), on));
    section->addRow(new TembraSettingsRow(tr("Open in editor"), new TembraToggle));
    auto *row = new TembraSettingsRow(tr("Move old screenshots to Trash"),
                                      new TembraDropdownPopup({tr("Never"), tr("After 7 days")}));
    row->setDetail(tr("Moves old screenshots and recordings to Trash, including existing ones. "
                      "Pinned items stay."));
    section->addRow(row);
    auto *disabled = new TembraSettingsRow(
        tr("Screenshots folder"),
        new TembraButton(TembraButton::Kind::plain, TembraButton::Size::compact, tr("Choose…")));
    disabled->setDetail(QStringLiteral("~/Pictures/Screenshots"));
    disabled->setEnabled(false);
    section->addRow(disabled);
    auto *holder = new QVBoxLayout;
    holder->setContentsMargins(24, 8, 24, 0);
    holder->addWidget(section);
    static_cast<QVBoxLayout *>(layout())->addLayout(holder);
}

void Gallery::paintEvent(QPaintEvent *) {
    QPainter(this).fillRect(rect(), Theme::of(*this).window);
}

} // namespace tembra
