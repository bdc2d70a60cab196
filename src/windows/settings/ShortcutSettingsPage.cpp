#include "windows/settings/ShortcutSettingsPage.h"

#include "controls/TembraButton.h"
#include "controls/TembraSettingsRow.h"
#include "controls/TembraToggle.h"
#include "shortcut/ActivationShortcutControl.h"
#include "shortcut/ShortcutRecording.h"
#include "shortcut/ShortcutTitle.h"
#include "windows/settings/ShortcutRecorder.h"

#include <QClipboard>
#include <QGuiApplication>

namespace tembra {

ShortcutSettingsPage::ShortcutSettingsPage(AppSettings &settings, ActivationShortcutControl &control,
                                           const HotKeys &hotKeys, QWidget *parent)
    : SettingsPage(tr("Shortcut"), settings, parent), m_control(control) {
    addSection();
    if (m_control.isAvailable())
        addShortcut(hotKeys);
    else
        addCommand();
    refresh();
}

void ShortcutSettingsPage::addShortcut(const HotKeys &hotKeys) {
    addToggle(tr("Open the shelf with a shortcut"), &AppSettingsState::shortcutEnabled,
              &AppSettings::setShortcutEnabled, tr("It works in every program, and closes the shelf again."));
    m_recorder =
        new ShortcutRecorder([&hotKeys](const QKeyEvent &event) { return recordedShortcut(event, hotKeys); });
    m_shortcutRow = addRow(tr("Shortcut"), m_recorder, tr("Click, then press the combination you want."));
    connect(m_recorder, &ShortcutRecorder::recordingChanged, this, [this](bool isRecording) {
        m_control.setRecording(isRecording);
        m_shortcutRow->setProblem({});
    });
    connect(m_recorder, &ShortcutRecorder::recorded, this, &ShortcutSettingsPage::change);
    connect(m_recorder, &ShortcutRecorder::cleared, this, [this] { settings().setShortcutEnabled(false); });
    connect(&m_control, &ActivationShortcutControl::errorChanged, this, [this] { refresh(); });
    onRefresh([this] {
        m_recorder->setTitle(platformTitle(state().activationShortcut));
        if (!m_recorder->isRecording())
            m_shortcutRow->setProblem(m_control.error().value_or(QString()));
    });
}

void ShortcutSettingsPage::change(const ActivationShortcut &shortcut) {
    const auto changed = m_control.change(shortcut);
    refresh();
    if (!changed)
        m_shortcutRow->setProblem(changed.error().message);
}

void ShortcutSettingsPage::addCommand() {
    const QString command = QStringLiteral("tembra toggle");
    auto *copy = new TembraButton(TembraButton::Kind::plain, TembraButton::Size::compact, tr("Copy Command"));
    addRow(
        tr("Open the shelf with a shortcut"), copy,
        tr("This desktop keeps global shortcuts to itself. In its keyboard settings, add a shortcut for the "
           "command “%1”.")
            .arg(command));
    connect(copy, &QAbstractButton::clicked, this,
            [command] { QGuiApplication::clipboard()->setText(command); });
}

} // namespace tembra
