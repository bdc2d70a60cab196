#pragma once

#include "doctor/DoctorCheck.h"
#include "windows/settings/SettingsPage.h"

class QLabel;

namespace tembra {

class TembraButton;

// What works on this desktop and what mends the rest, tried when the page is shown and again when the user
// asks.
class DoctorSettingsPage final : public SettingsPage {
    Q_OBJECT

public:
    // Tells what it finds later, on the main thread; only the last one who asked is told.
    using Examine = std::function<void(std::function<void(std::vector<DoctorCheck>)>)>;

    DoctorSettingsPage(AppSettings &settings, Examine examine, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void examine();
    void show(const std::vector<DoctorCheck> &checks);
    void showCheck(TembraSettingsRow &row, QLabel &state, const Finding &finding);
    [[nodiscard]] QString summary(const std::vector<DoctorCheck> &checks) const;

    const Examine m_examine;
    TembraSettingsRow *m_summary = nullptr;
    TembraButton *m_again = nullptr;
    // In the order of the checks; as many as there ever were.
    std::vector<std::pair<TembraSettingsRow *, QLabel *>> m_checkRows;
    bool m_isExamined = false;
};

} // namespace tembra
