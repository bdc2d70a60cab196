#pragma once

#include "settings/AppSettings.h"

#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QVBoxLayout;

namespace tembra {

class TembraButton;
class TembraDropdownPopup;
class TembraSettingsRow;
class TembraSettingsSection;
class TembraToggle;

// A page of the settings: a heading and sections of rows. What a row shows is always what the settings hold;
// what the user does there is put into the settings at once. Main thread.
class SettingsPage : public QWidget {
    Q_OBJECT

public:
    // Shows what holds now; whatever no setting tells is asked anew.
    void refresh();
    // Leaves only the rows that have every one of the words, or stand under a heading that has them; all with
    // no words.
    void filter(const QStringList &words);
    // Whether any row is left.
    [[nodiscard]] bool isFound() const { return m_isFound; }
    [[nodiscard]] const std::vector<TembraSettingsRow *> &rows() const { return m_rows; }

Q_SIGNALS:
    void refreshed();

protected:
    // The settings outlive the page.
    SettingsPage(const QString &heading, AppSettings &settings, QWidget *parent);

    [[nodiscard]] AppSettings &settings() { return m_settings; }
    [[nodiscard]] const AppSettingsState &state() const { return m_settings.state(); }

    // Rows that are added next stand in it.
    void addSection(const QString &heading = {});
    TembraSettingsRow *addRow(const QString &title, QWidget *control, const QString &detail = {});
    TembraToggle *addToggle(const QString &title, bool AppSettingsState::*field,
                            void (AppSettings::*set)(bool), const QString &detail = {});
    // The choices in the order of their numbers.
    TembraDropdownPopup *addChoice(const QString &title, const QStringList &choices,
                                   std::function<int(const AppSettingsState &)> current,
                                   std::function<void(int)> choose);
    // The control of a row that does something.
    [[nodiscard]] static TembraButton *rowButton(const QString &title);
    // A row that is not there unless it is said to be.
    void setRowShown(TembraSettingsRow *row, bool isShown);
    // Called with each refresh.
    void onRefresh(std::function<void()> show) { m_refreshes.push_back(std::move(show)); }

private:
    struct Section {
        TembraSettingsSection *view;
        QString heading;
        std::vector<TembraSettingsRow *> rows;
    };

    AppSettings &m_settings;
    const QString m_heading;
    QVBoxLayout *m_layout;
    std::vector<Section> m_sections;
    std::vector<TembraSettingsRow *> m_rows;
    std::vector<TembraSettingsRow *> m_absentRows;
    std::vector<std::function<void()>> m_refreshes;
    QStringList m_words;
    bool m_isFound = false;
};

} // namespace tembra
