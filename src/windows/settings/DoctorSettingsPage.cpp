#include "windows/settings/DoctorSettingsPage.h"

#include "controls/TembraButton.h"
#include "controls/TembraSettingsRow.h"
#include "controls/Typography.h"

#include <QLabel>
#include <QPointer>

#include <algorithm>

namespace tembra {

namespace {

using State = Finding::State;

QString stateText(State state) {
    switch (state) {
    case State::ok:
        return DoctorSettingsPage::tr("Works");
    case State::limited:
        return DoctorSettingsPage::tr("In part");
    case State::broken:
        break;
    }
    return DoctorSettingsPage::tr("Does not work");
}

} // namespace

DoctorSettingsPage::DoctorSettingsPage(AppSettings &settings, Examine examine, QWidget *parent)
    : SettingsPage(tr("Doctor"), settings, parent), m_examine(std::move(examine)) {
    addSection();
    m_again = rowButton(tr("Check Again"));
    m_summary = addRow(tr("What works on this desktop"), m_again);
    m_again->setAccessibleName(m_again->text());
    connect(m_again, &QAbstractButton::clicked, this, &DoctorSettingsPage::examine);
    addSection(tr("Checks"));
    refresh();
}

void DoctorSettingsPage::showEvent(QShowEvent *event) {
    SettingsPage::showEvent(event);
    if (!std::exchange(m_isExamined, true))
        examine();
}

void DoctorSettingsPage::examine() {
    m_again->setEnabled(false);
    m_summary->setDetail(tr("Checking…"));
    // The window may be closed before.
    m_examine([page = QPointer(this)](const std::vector<DoctorCheck> &checks) {
        if (page)
            page->show(checks);
    });
}

void DoctorSettingsPage::show(const std::vector<DoctorCheck> &checks) {
    m_again->setEnabled(true);
    m_summary->setDetail(summary(checks));
    while (m_checkRows.size() < checks.size()) {
        auto *state = new QLabel;
        state->setFont(typography::font(typography::bodySize));
        m_checkRows.emplace_back(addRow(QString(), state), state);
    }
    for (std::size_t at = 0; at < m_checkRows.size(); ++at) {
        const auto &[row, state] = m_checkRows[at];
        setRowShown(row, at < checks.size());
        if (at >= checks.size())
            continue;
        row->setTitle(checks[at].title);
        showCheck(*row, *state, checks[at].finding);
    }
    refresh();
}

void DoctorSettingsPage::showCheck(TembraSettingsRow &row, QLabel &state, const Finding &finding) {
    const QString text = finding.remedy.isEmpty() ? finding.text : finding.text + u'\n' + finding.remedy;
    const bool isBroken = finding.state == State::broken;
    state.setText(stateText(finding.state));
    row.setDetail(isBroken ? QString() : text);
    row.setProblem(isBroken ? text : QString());
}

QString DoctorSettingsPage::summary(const std::vector<DoctorCheck> &checks) const {
    const auto count = [&checks](State state) {
        return static_cast<int>(
            std::ranges::count(checks, state, [](const DoctorCheck &check) { return check.finding.state; }));
    };
    if (const int broken = count(State::broken))
        return tr("%n things do not work.", nullptr, broken);
    if (const int limited = count(State::limited))
        return tr("Everything works, %n things in part.", nullptr, limited);
    return tr("Everything works.");
}

} // namespace tembra
