#include "app/SettingsPresenting.h"

#include "app/Alert.h"
#include "app/DoctorServices.h"
#include "base/Background.h"
#include "session/ShelfSession.h"
#include "shelf/FolderChooser.h"
#include "shelf/ShelfController.h"
#include "shortcut/ShortcutTitle.h"

namespace tembra {

namespace {

using Services = SettingsPresenting::Services;

ScreenshotsSettingsPage::Actions screenshotActions(const Services &services) {
    ShelfController &shelf = services.shelf;
    ShelfSession &session = shelf.session();
    return {
        .askForFolder =
            [](const QString &suggested) {
                return askForScreenshotsFolder(suggested, FolderChoice::stopsAutoClean);
            },
        .changeFolder = [&shelf](const QString &folder) { return shelf.changeScreenshotFolder(folder); },
        .openFolder = [&shelf] { shelf.revealFolder(); },
        .hasPreview = [make = services.platform.screenCapturePreferences] { return make()->hasThumbnail(); },
        .autoClean = {.preview =
                          [&session](ScreenshotAutoCleanPeriod period, auto completion) {
                              session.previewAutoClean(period, std::move(completion));
                          },
                      .enable =
                          [&session](ScreenshotAutoCleanPeriod period) { session.enableAutoClean(period); },
                      .ask = {}}};
}

ImageToTextSettingsPage::Actions textActions(const Services &services, const Generation &life) {
    const TextRecognizer &recognizer = *services.platform.textRecognizer;
    return {.listLanguages =
                [&recognizer, &life, &queue = services.queue, &scheduler = services.scheduler](auto told) {
                    performInBackground(
                        queue, scheduler, life.ticket(),
                        [&recognizer] { return recognizer.installedLanguages(); }, std::move(told));
                },
            .usualLanguages = [&recognizer] { return recognizer.usualLanguages(); }};
}

// What the settings hold now, and what became of it.
DoctorSubject doctorSubject(const AppSettings &settings, const ActivationShortcutControl &shortcut) {
    const AppSettingsState &state = settings.state();
    return {.folder = state.screenshotsFolder ? state.screenshotsFolder : settings.lostScreenshotsFolder(),
            .isShortcutOn = state.shortcutEnabled,
            .shortcutTitle = platformTitle(state.activationShortcut),
            .shortcutError = shortcut.error(),
            .languages = state.textRecognitionLanguages,
            .newCaptureCommand = state.newCaptureCommand};
}

SettingsWindowController::Services windowServices(const Services &services, const Generation &life,
                                                  Doctor &doctor) {
    return {.settings = services.settings,
            .defaults = *services.platform.defaults,
            .loginItem = services.platform.loginItem,
            .shortcut = services.shelf.shortcut(),
            .hotKeys = *services.platform.hotKeys,
            .updater = services.updater,
            .screenshots = screenshotActions(services),
            .imageToText = textActions(services, life),
            .examine = [&doctor, &settings = services.settings, &shortcut = services.shelf.shortcut()](
                           auto told) { doctor.examine(doctorSubject(settings, shortcut), std::move(told)); },
            .onError = showAlert,
            .onQuit = services.onQuit};
}

} // namespace

SettingsPresenting::SettingsPresenting(const Services &services)
    : m_shelf(services.shelf),
      m_doctor(doctorServices(services.platform, services.scheduler, services.queue)),
      m_controller(windowServices(services, m_life, m_doctor)) {
    m_shelf.onShowSettings = [this] { show(std::nullopt); };
    m_shelf.onShowScreenshotSettings = [this] { show(SettingsPageId::screenshots); };
    TextRecognizer &recognizer = *services.platform.textRecognizer;
    recognizer.setLanguages(services.settings.state().textRecognitionLanguages);
    QObject::connect(&services.settings, &AppSettings::updates, &m_controller,
                     [&recognizer](const AppSettingsState &state) {
                         recognizer.setLanguages(state.textRecognitionLanguages);
                     });
}

SettingsPresenting::~SettingsPresenting() {
    m_shelf.onShowSettings = {};
    m_shelf.onShowScreenshotSettings = {};
}

} // namespace tembra
