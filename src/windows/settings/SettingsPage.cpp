#include "windows/settings/SettingsPage.h"

#include "controls/TembraButton.h"
#include "controls/TembraDropdownPopup.h"
#include "controls/TembraSettingsRow.h"
#include "controls/TembraSettingsSection.h"
#include "controls/TembraToggle.h"
#include "controls/TextLabel.h"
#include "controls/Typography.h"

#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace tembra {

namespace {

constexpr int sectionGap = 12;
constexpr int headingGap = 9;

bool hasAll(const QString &text, const QStringList &words) {
    return std::all_of(words.begin(), words.end(),
                       [&text](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace

SettingsPage::SettingsPage(const QString &heading, AppSettings &settings, QWidget *parent)
    : QWidget(parent), m_settings(settings), m_heading(heading), m_layout(new QVBoxLayout(this)) {
    setAccessibleName(heading);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(sectionGap);
    auto *label = new QLabel(this);
    makeHeading(*label);
    label->setText(heading);
    label->setFont(typography::font(typography::windowTitleSize, QFont::DemiBold));
    label->setContentsMargins(0, 0, 0, headingGap - sectionGap + 4);
    m_layout->addWidget(label);
    connect(&m_settings, &AppSettings::updates, this, [this] { refresh(); });
}

void SettingsPage::refresh() {
    for (const auto &show : m_refreshes)
        show();
    filter(m_words);
    Q_EMIT refreshed();
}

void SettingsPage::filter(const QStringList &words) {
    m_words = words;
    m_isFound = false;
    for (const Section &section : m_sections) {
        const QString headings = m_heading + u' ' + section.heading + u' ';
        bool isLeft = false;
        for (TembraSettingsRow *row : section.rows) {
            const bool isAbsent =
                std::find(m_absentRows.begin(), m_absentRows.end(), row) != m_absentRows.end();
            const bool isShown = !isAbsent && hasAll(headings + row->title() + u' ' + row->detail(), words);
            row->setHidden(!isShown);
            isLeft = isLeft || isShown;
        }
        section.view->setHidden(!isLeft);
        m_isFound = m_isFound || isLeft;
    }
}

void SettingsPage::addSection(const QString &heading) {
    auto *section = new TembraSettingsSection(heading, this);
    m_layout->addWidget(section);
    m_sections.push_back({section, heading, {}});
}

TembraSettingsRow *SettingsPage::addRow(const QString &title, QWidget *control, const QString &detail) {
    auto *row = new TembraSettingsRow(title, control, this);
    row->setDetail(detail);
    m_sections.back().view->addRow(row);
    m_sections.back().rows.push_back(row);
    m_rows.push_back(row);
    return row;
}

TembraToggle *SettingsPage::addToggle(const QString &title, bool AppSettingsState::*field,
                                      void (AppSettings::*set)(bool), const QString &detail) {
    auto *toggle = new TembraToggle;
    addRow(title, toggle, detail);
    onRefresh([this, toggle, field] { toggle->setChecked(state().*field); });
    connect(toggle, &QAbstractButton::clicked, this, [this, set](bool isOn) { (m_settings.*set)(isOn); });
    return toggle;
}

TembraDropdownPopup *SettingsPage::addChoice(const QString &title, const QStringList &choices,
                                             std::function<int(const AppSettingsState &)> current,
                                             std::function<void(int)> choose) {
    auto *popup = new TembraDropdownPopup(choices);
    addRow(title, popup);
    onRefresh([this, popup, current = std::move(current)] { popup->setCurrentIndex(current(state())); });
    connect(popup, &TembraDropdownPopup::chosen, this, std::move(choose));
    return popup;
}

TembraButton *SettingsPage::rowButton(const QString &title) {
    return new TembraButton(TembraButton::Kind::plain, TembraButton::Size::compact, title);
}

void SettingsPage::setRowShown(TembraSettingsRow *row, bool isShown) {
    std::erase(m_absentRows, row);
    if (!isShown)
        m_absentRows.push_back(row);
}

} // namespace tembra
