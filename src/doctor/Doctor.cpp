#include "doctor/Doctor.h"

#include "base/Background.h"
#include "doctor/DoctorFindings.h"
#include "settings/FolderPath.h"

#include <QCoreApplication>
#include <QDir>

namespace tembra {

namespace {

using State = Finding::State;

QString translated(const char *source) {
    return QCoreApplication::translate("Doctor", source);
}

// One folder on each volume, the first of those that are named.
QStringList onePerVolume(const QStringList &folders, const Volumes &volumes) {
    QStringList chosen;
    QStringList mountPoints;
    for (const QString &folder : folders) {
        const auto volume = volumes.volumeOf(folder);
        if (!volume || mountPoints.contains(volume->mountPoint))
            continue;
        mountPoints += volume->mountPoint;
        chosen += folder;
    }
    return chosen;
}

Finding panelFinding(bool isInPlace) {
    if (isInPlace)
        return {State::ok,
                translated(QT_TRANSLATE_NOOP("Doctor", "A window stands at the top edge of the screen.")),
                {}};
    return {State::broken,
            translated(QT_TRANSLATE_NOOP(
                "Doctor", "A window that was put at the top edge of the screen is not there.")),
            translated(QT_TRANSLATE_NOOP("Doctor",
                                         "Log in to another session of the desktop, for example on X11."))};
}

} // namespace

Doctor::Doctor(Services services)
    : m_services(std::move(services)),
      m_folderProbe(m_services.events, m_services.scheduler),
      m_panelProbe(m_services.panels, m_services.displays, m_services.scheduler) {}

void Doctor::examine(const DoctorSubject &subject, std::function<void(Checks)> told) {
    m_examinations.advance();
    m_folderProbe.cancel();
    m_panelProbe.cancel();
    m_subject = subject;
    m_told = std::move(told);
    m_desktop = m_services.desktop();
    performInBackground(m_services.queue, m_services.scheduler, m_examinations.ticket(), backgroundWork(),
                        [this](Background found) {
                            m_background = std::move(found);
                            probeFolder();
                        });
}

std::function<Doctor::Background()> Doctor::backgroundWork() const {
    // The work may outlive the doctor, but nothing of the platform.
    return [subject = m_subject, missing = m_desktop.missingLanguages, mounted = m_services.userVolumes(),
            makePreferences = m_services.preferences, own = m_services.folders,
            &recognizer = m_services.recognizer, &trash = m_services.trash, &volumes = m_services.volumes] {
        Background found;
        found.folder = folderFinding(subject);
        const auto preferences = makePreferences();
        found.tool =
            toolFinding(*preferences, ScreenshotDestination::read(*preferences, own), subject.folder);
        const QStringList wanted =
            subject.languages.isEmpty() ? recognizer.usualLanguages() : subject.languages;
        found.languages = languagesFinding(recognizer.installedLanguages(), wanted, missing);
        QStringList folders = subject.folder ? QStringList{*subject.folder} : QStringList();
        folders += own.home;
        folders += mounted;
        for (const QString &folder : onePerVolume(folders, volumes))
            found.trash.emplace_back(folder, trashFinding(trash, folder, own.trash));
        return found;
    };
}

void Doctor::probeFolder() {
    if (!m_subject.folder || m_background.folder.state != State::ok)
        return probePanel(
            {State::limited, translated(QT_TRANSLATE_NOOP("Doctor", "No folder was tried.")), {}});
    m_folderProbe.start(*m_subject.folder,
                        [this](bool wasNoticed) { probePanel(eventsFinding(wasNoticed)); });
}

Finding Doctor::eventsFinding(bool wereNoticed) const {
    if (!wereNoticed)
        return m_desktop.noFolderEvents;
    const auto volume = m_services.volumes.volumeOf(*m_subject.folder);
    if (volume && !volume->isLocal)
        return {State::limited,
                translated(QT_TRANSLATE_NOOP("Doctor",
                                             "The folder is on another machine, which does not tell what "
                                             "changes there: new captures are looked for now and then.")),
                {}};
    return {State::ok, translated(QT_TRANSLATE_NOOP("Doctor", "A new file in the folder was noticed.")), {}};
}

void Doctor::probePanel(const Finding &events) {
    m_panelProbe.start([this, events](bool isInPlace) { tell(events, panelFinding(isInPlace)); });
}

void Doctor::tell(const Finding &events, const Finding &panel) {
    const auto check = [](const char *id, const char *title, const Finding &finding) {
        return DoctorCheck{QString::fromLatin1(id), translated(title), finding};
    };
    Checks checks{
        check("folder", QT_TRANSLATE_NOOP("Doctor", "Screenshots folder"), m_background.folder),
        check("events", QT_TRANSLATE_NOOP("Doctor", "Changes in the folder"), events),
        check("tool", QT_TRANSLATE_NOOP("Doctor", "Screenshot tool"), m_background.tool),
        check("windows", QT_TRANSLATE_NOOP("Doctor", "Windows"), m_desktop.windows),
        check("panel", QT_TRANSLATE_NOOP("Doctor", "Place of the shelf"), panel),
        check("shortcut", QT_TRANSLATE_NOOP("Doctor", "Shortcut"),
              shortcutFinding(m_subject, m_desktop.shortcut)),
        check("clipboard", QT_TRANSLATE_NOOP("Doctor", "Clipboard"), m_desktop.clipboard),
        check("status-item", QT_TRANSLATE_NOOP("Doctor", "Status item"), m_desktop.statusItem),
        check("languages", QT_TRANSLATE_NOOP("Doctor", "Languages of Image to Text"), m_background.languages),
        check("command", QT_TRANSLATE_NOOP("Doctor", "Command for new captures"),
              commandFinding(m_subject.newCaptureCommand))};
    for (const auto &[folder, finding] : m_background.trash)
        checks.push_back({QStringLiteral("trash"),
                          translated(QT_TRANSLATE_NOOP("Doctor", "Trash for “%1”"))
                              .arg(withHomeShort(folder, QDir::homePath())),
                          finding});
    const auto told = std::exchange(m_told, {});
    told(std::move(checks));
}

} // namespace tembra
