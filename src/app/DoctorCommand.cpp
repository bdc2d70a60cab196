#include "app/DoctorCommand.h"

#include "app/DoctorServices.h"
#include "base/ThreadQueue.h"
#include "platform/Platform.h"
#include "settings/AppSettings.h"
#include "settings/SettingsLoading.h"
#include "shortcut/ShortcutTitle.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>

namespace tembra {

namespace {

std::optional<QString> storedFolder(const Platform &platform) {
    ScreenshotFolderAccess access(*platform.bookmarks, *platform.fileFacts, platform.folders);
    const auto bookmark = platform.defaults->data(FolderPreferences().bookmarkKey);
    if (!bookmark)
        return std::nullopt;
    (void)access.restore(bookmark);
    return access.folder() ? access.folder() : access.lastKnownFolder(*bookmark);
}

// Only the running program knows whether its shortcut was granted.
void askForShortcut(DoctorSubject &subject) {
    const auto status =
        makeSingleInstance()->send(QStringLiteral("status"), {QStringLiteral("--json")}, false);
    subject.isShortcutTried = status.has_value();
    if (!status)
        return;
    const QJsonObject shortcut =
        QJsonDocument::fromJson(status->toUtf8()).object().value(QStringLiteral("shortcut")).toObject();
    const QString error = shortcut.value(QStringLiteral("error")).toString();
    if (!error.isEmpty())
        subject.shortcutError = error;
}

DoctorSubject storedSubject(const Platform &platform) {
    const AppSettingsState settings = loadSettings(*platform.defaults);
    DoctorSubject subject{.folder = storedFolder(platform),
                          .isShortcutOn = settings.shortcutEnabled,
                          .shortcutTitle = platformTitle(settings.activationShortcut),
                          .languages = settings.textRecognitionLanguages,
                          .newCaptureCommand = settings.newCaptureCommand};
    askForShortcut(subject);
    return subject;
}

} // namespace

DoctorReport examineDesktop(Scheduler &scheduler) {
    Platform platform = makePlatform(scheduler);
    ThreadQueue queue(QStringLiteral("Tembra.Doctor"));
    Doctor doctor(doctorServices(platform, scheduler, queue));
    DoctorReport report;
    QEventLoop loop;
    doctor.examine(storedSubject(platform), [&](std::vector<DoctorCheck> checks) {
        report.checks = std::move(checks);
        loop.quit();
    });
    loop.exec();
    return report;
}

} // namespace tembra
