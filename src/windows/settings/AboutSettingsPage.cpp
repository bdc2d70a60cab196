#include "windows/settings/AboutSettingsPage.h"

#include "controls/TembraButton.h"
#include "controls/TembraSettingsRow.h"
#include "controls/TembraToggle.h"
#include "updates/AppUpdater.h"

#include <QCoreApplication>

namespace tembra {

namespace {

using Kind = SettingsUpdateState::Kind;

struct Component {
    const char *name;
    const char *licence;
};

constexpr Component components[]{
    {"Qt", "GNU LGPL 3"},
    {"Tesseract", "Apache License 2.0"},
    {"Leptonica", "BSD 2-Clause"},
    {"libsodium", "ISC"},
    {"libheif", "GNU LGPL 3"},
    {"libjpeg-turbo", "BSD 3-Clause, IJG"},
    {"libdeflate", "MIT"},
    {"libexif", "GNU LGPL 2.1"},
    {"OpenSSL", "Apache License 2.0"},
    {"GLib", "GNU LGPL 2.1"},
    {"libcanberra", "GNU LGPL 2.1"},
    {"XCB", "MIT"},
    {"Wayland", "MIT"},
    {"JSON for Modern C++", "MIT"},
    {"tl::expected", "CC0 1.0"},
    {"Inter", "SIL Open Font License 1.1"},
};

} // namespace

AboutSettingsPage::AboutSettingsPage(AppSettings &settings, AppUpdater &updater, QWidget *parent)
    : SettingsPage(tr("About"), settings, parent), m_updater(updater) {
    addProgram();
    addUpdates();
    addLicences();
    connect(&m_updater, &AppUpdater::changed, this, [this] { refresh(); });
    refresh();
}

void AboutSettingsPage::addProgram() {
    addSection();
    auto *quit = rowButton(tr("Quit Tembra"));
    addRow(QStringLiteral("Tembra"), quit, tr("Version %1").arg(QCoreApplication::applicationVersion()));
    quit->setAccessibleName(quit->text());
    connect(quit, &QAbstractButton::clicked, this, &AboutSettingsPage::quitRequested);
}

void AboutSettingsPage::addUpdates() {
    addSection(tr("Updates"));
    m_automatic = new TembraToggle;
    m_automaticRow = addRow(tr("Check for updates automatically"), m_automatic);
    connect(m_automatic, &QAbstractButton::clicked, this,
            [this](bool isOn) { m_updater.setAutomaticChecks(isOn); });
    m_update = rowButton(tr("Check Now"));
    m_updateRow = addRow(tr("Updates"), m_update);
    connect(m_update, &QAbstractButton::clicked, this, &AboutSettingsPage::actOnUpdate);
    onRefresh([this] { showUpdates(); });
}

void AboutSettingsPage::showUpdates() {
    const SettingsUpdateState state = m_updater.state();
    const bool isOffered = state.kind != Kind::notConfigured && state.kind != Kind::managedBySystem;
    setRowShown(m_automaticRow, isOffered);
    m_automatic->setChecked(m_updater.automaticChecks());
    const bool hasFailed = state.kind == Kind::failed;
    m_updateRow->setDetail(hasFailed ? QString() : updateText(state));
    m_updateRow->setProblem(hasFailed ? updateText(state) : QString());
    m_update->setText(state.kind == Kind::available ? tr("Download")
                      : state.kind == Kind::ready   ? tr("Install…")
                                                    : tr("Check Now"));
    m_update->setVisible(isOffered);
    m_update->setEnabled(state.kind == Kind::available || state.kind == Kind::ready || m_updater.canCheck());
    m_update->setAccessibleName(m_update->text());
}

void AboutSettingsPage::actOnUpdate() {
    switch (m_updater.state().kind) {
    case Kind::available:
        return m_updater.download();
    case Kind::ready:
        return m_updater.install();
    default:
        return m_updater.checkForUpdates();
    }
}

void AboutSettingsPage::addLicences() {
    addSection(tr("Made with"));
    for (const Component &component : components)
        addRow(QString::fromUtf8(component.name), nullptr, QString::fromUtf8(component.licence));
}

} // namespace tembra
