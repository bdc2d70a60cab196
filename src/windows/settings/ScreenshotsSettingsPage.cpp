#include "windows/settings/ScreenshotsSettingsPage.h"

#include "controls/TembraButton.h"
#include "controls/TembraDropdownPopup.h"
#include "controls/TembraSettingsRow.h"
#include "controls/TembraTextField.h"
#include "controls/TembraToggle.h"
#include "settings/FolderPath.h"

#include <QDir>
#include <QProcess>

#include <algorithm>

namespace tembra {

namespace {

// As QProcess::splitCommand takes it apart.
QString commandText(const QStringList &command) {
    QStringList words;
    for (QString word : command) {
        const bool hasSpace = std::any_of(word.cbegin(), word.cend(), [](QChar c) { return c.isSpace(); });
        const bool needsQuotes = word.isEmpty() || hasSpace || word.contains(u'"');
        word.replace(u'"', QStringLiteral("\"\"\""));
        words += needsQuotes ? u'"' + word + u'"' : word;
    }
    return words.join(u' ');
}

} // namespace

ScreenshotsSettingsPage::ScreenshotsSettingsPage(AppSettings &settings, Actions actions, QWidget *parent)
    : SettingsPage(tr("Screenshots"), settings, parent),
      m_actions(std::move(actions)),
      m_autoClean(settings, m_actions.autoClean) {
    addLocation();
    addReactions();
    addGrid();
    addAutoClean();
    refresh();
}

void ScreenshotsSettingsPage::addLocation() {
    addSection(tr("Location"));
    auto *choose = rowButton(tr("Choose…"));
    TembraSettingsRow *folder = addRow(tr("Screenshots folder"), choose);
    connect(choose, &QAbstractButton::clicked, this, &ScreenshotsSettingsPage::chooseFolder);
    auto *open = rowButton(tr("Open"));
    addRow(tr("Open Screenshots Folder"), open);
    connect(open, &QAbstractButton::clicked, this, [this] { m_actions.openFolder(); });
    onRefresh([this, folder, open] {
        folder->setDetail(folderText());
        open->setEnabled(state().hasFolderAccess);
    });
}

QString ScreenshotsSettingsPage::folderText() const {
    if (state().screenshotsFolder)
        return withHomeShort(*state().screenshotsFolder, QDir::homePath());
    return tr("No folder is chosen yet.");
}

void ScreenshotsSettingsPage::chooseFolder() {
    const auto chosen = m_actions.askForFolder(state().screenshotsFolder.value_or(QString()));
    if (!chosen)
        return;
    if (const auto changed = m_actions.changeFolder(*chosen); !changed)
        Q_EMIT failed(changed.error().message, changed.error().recoverySuggestion);
}

void ScreenshotsSettingsPage::addReactions() {
    addSection(tr("When a screenshot is taken"));
    addToggle(tr("Show a notification"), &AppSettingsState::screenshotNotifications,
              &AppSettings::setScreenshotNotifications);
    addToggle(tr("Copy to clipboard"), &AppSettingsState::automaticallyCopyScreenshots,
              &AppSettings::setAutomaticallyCopyScreenshots);
    addToggle(tr("Open in editor"), &AppSettingsState::automaticallyOpenEditor,
              &AppSettings::setAutomaticallyOpenEditor);
    auto *hide = new TembraToggle;
    setRowShown(addRow(tr("Hide the screenshot tool’s preview"), hide), m_actions.hasPreview());
    connect(hide, &QAbstractButton::clicked, this, &ScreenshotsSettingsPage::setPreviewHidden);
    onRefresh([this, hide] { hide->setChecked(state().screenshotPreviewDisabled); });
    addCommand();
}

void ScreenshotsSettingsPage::addCommand() {
    auto *command = new TembraTextField;
    command->setPlaceholderText(tr("None"));
    addRow(tr("Run a command"), command,
           tr("A program with its arguments. {} stands for the file, which else comes last."));
    connect(command, &QLineEdit::editingFinished, this, [this, command] {
        if (command->isModified())
            settings().setNewCaptureCommand(QProcess::splitCommand(command->text()));
        command->setModified(false);
    });
    onRefresh([this, command] {
        // What is being typed is not written over.
        if (!command->hasFocus() || !command->isModified())
            command->setText(commandText(state().newCaptureCommand));
    });
}

void ScreenshotsSettingsPage::setPreviewHidden(bool isHidden) {
    const auto changed = settings().setScreenshotPreviewDisabled(isHidden);
    refresh();
    if (!changed)
        Q_EMIT failed(tr("Couldn’t change the screenshot preview"), changed.error().message);
}

void ScreenshotsSettingsPage::addGrid() {
    addSection(tr("Grid"));
    addToggle(tr("Show file names"), &AppSettingsState::showFileNames, &AppSettings::setShowFileNames);
    addToggle(tr("Group by date"), &AppSettingsState::groupScreenshotsByDate,
              &AppSettings::setGroupScreenshotsByDate);
}

void ScreenshotsSettingsPage::addAutoClean() {
    addSection(tr("Auto-clean"));
    QStringList periods;
    for (const ScreenshotAutoCleanPeriod period : allScreenshotAutoCleanPeriods)
        periods += title(period);
    TembraDropdownPopup *popup = addChoice(
        tr("Move old screenshots to Trash"), periods,
        [](const AppSettingsState &state) {
            const auto *at = std::find(allScreenshotAutoCleanPeriods.begin(),
                                       allScreenshotAutoCleanPeriods.end(), state.screenshotAutoClean);
            return static_cast<int>(at - allScreenshotAutoCleanPeriods.begin());
        },
        [this](int index) {
            m_autoClean.request(allScreenshotAutoCleanPeriods.at(static_cast<size_t>(index)));
        });
    rows().back()->setDetail(
        tr("Moves old screenshots and recordings to Trash, including existing ones. Pinned items stay."));
    // Until the user has agreed the list shows what holds.
    m_autoClean.onSettled = [this] { refresh(); };
    m_autoClean.onFailed = [this](const QString &title, const QString &message) {
        Q_EMIT failed(title, message);
    };
    onRefresh([this, popup] { popup->setEnabled(state().hasFolderAccess); });
}

} // namespace tembra
