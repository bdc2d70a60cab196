#include "windows/onboarding/OnboardingFlow.h"

#include "base/MainThread.h"
#include "settings/AppSettings.h"
#include "settings/FolderPath.h"

#include <QFileInfo>

#include <algorithm>

namespace tembra {

namespace {

// Enough for the miniature on every display.
constexpr double captureSide = 80;
constexpr double captureScale = 2;

// One that is not there yet can be made.
bool isUsable(const QString &folder) {
    const QFileInfo info(folder);
    return !info.exists() || (info.isDir() && info.isReadable() && info.isWritable());
}

} // namespace

OnboardingFlow::OnboardingFlow(AppSettings &settings, std::unique_ptr<DesktopScreenshots> desktop,
                               Thumbnails &thumbnails, QString home, Hooks hooks)
    : m_settings(settings),
      m_desktop(std::move(desktop)),
      m_thumbnails(thumbnails),
      m_home(std::move(home)),
      m_hooks(std::move(hooks)) {
    connect(&m_settings, &AppSettings::updates, this, &OnboardingFlow::applySettings);
}

void OnboardingFlow::begin() {
    requireMainThread();
    // In the middle of the folder's step the user goes on there.
    if (m_state.folder != OnboardingState::Folder::asking)
        return refreshPath();
    const OnboardingStep from = onboardingStep(m_settings.state(), m_settings.isFolderAccessLost());
    // Somebody who closed the window beyond the first step has read the introduction.
    if (from == OnboardingStep::firstScreenshot && m_state.reached < from)
        enterFirstScreenshot();
    else if (from > m_state.step && from < OnboardingStep::firstScreenshot)
        m_state.step = from;
    m_state.reached = std::max(m_state.reached, m_state.step);
    refreshPath();
}

void OnboardingFlow::receiveDestination(const ScreenshotDestination &destination) {
    m_destination = destination;
    refreshPath();
}

void OnboardingFlow::primary() {
    requireMainThread();
    if (isBusy())
        return;
    switch (m_state.step) {
    case OnboardingStep::introduction:
        return show(OnboardingStep::folder);
    case OnboardingStep::folder:
        if (m_state.folder == OnboardingState::Folder::offeringMove)
            return moveScreenshots();
        if (m_state.isChosen)
            return show(OnboardingStep::firstScreenshot);
        if (const auto suggested = suggestion())
            return useFolder(*suggested);
        return chooseFolder();
    case OnboardingStep::firstScreenshot:
        if (m_state.hasCaught)
            Q_EMIT finished();
        return;
    case OnboardingStep::done:
        return;
    }
}

void OnboardingFlow::secondary() {
    requireMainThread();
    if (m_state.step != OnboardingStep::folder || isBusy())
        return;
    if (m_state.folder == OnboardingState::Folder::offeringMove)
        enterFirstScreenshot();
    else
        chooseFolder();
}

void OnboardingFlow::skip() {
    requireMainThread();
    if (m_state.step == OnboardingStep::firstScreenshot)
        Q_EMIT finished();
}

void OnboardingFlow::show(OnboardingStep step) {
    requireMainThread();
    if (isBusy())
        return;
    // Before a folder is chosen there is nothing to wait for.
    if (step == OnboardingStep::firstScreenshot && !m_settings.state().hasFolderAccess)
        return;
    m_state.step = step;
    m_state.reached = std::max(m_state.reached, step);
    m_state.folder = OnboardingState::Folder::asking;
    m_state.note.clear();
    refreshPath();
    // It may have come while another step was shown.
    const bool isCaught = m_settings.state().hasCaughtFirstScreenshot;
    if (step == OnboardingStep::firstScreenshot && isCaught && !m_state.hasCaught)
        receiveCapture();
}

void OnboardingFlow::applySettings(const AppSettingsState &settings) {
    if (settings.hasCompletedOnboarding)
        return;
    const bool isWaiting = m_state.step == OnboardingStep::firstScreenshot;
    // The folder may have been chosen in the shelf.
    if (settings.hasFolderAccess && !isWaiting && !m_state.isChosen && !m_isAccepting && !isBusy())
        enterFirstScreenshot();
    else if (isWaiting && settings.hasCaughtFirstScreenshot && !m_state.hasCaught)
        receiveCapture();
    else if (!m_isAccepting)
        refreshPath();
}

void OnboardingFlow::enterFirstScreenshot() {
    m_state.step = OnboardingStep::firstScreenshot;
    m_state.reached = OnboardingStep::firstScreenshot;
    m_state.folder = OnboardingState::Folder::asking;
    m_state.hasCaught = false;
    m_state.capture = {};
    m_captureRequest.reset();
    m_settings.beginOnboarding();
    refreshPath();
}

void OnboardingFlow::chooseFolder() {
    if (const auto chosen = m_hooks.pickFolder())
        useFolder(*chosen);
}

void OnboardingFlow::useFolder(const QString &folder) {
    Result<void> accepted;
    if (!QFileInfo::exists(folder))
        accepted = DesktopScreenshotOrganizer::createFolder(folder);
    const bool isTheTools = m_destination && m_destination->kind == ScreenshotDestination::Kind::folder &&
                            isSameFolder(m_destination->folder, folder);
    if (accepted) {
        m_isAccepting = true;
        accepted = m_hooks.acceptFolder(folder, isTheTools);
        m_isAccepting = false;
    }
    if (!accepted)
        return fail(accepted.error());
    m_state.note.clear();
    lookOnDesktop(folder);
}

void OnboardingFlow::lookOnDesktop(const QString &folder) {
    if (isSameFolder(folder, m_desktop->folder()))
        return enterFirstScreenshot();
    m_state.folder = OnboardingState::Folder::looking;
    refreshPath();
    m_desktop->count([this](int count) {
        if (count == 0)
            return enterFirstScreenshot();
        m_state.folder = OnboardingState::Folder::offeringMove;
        m_state.screenshotsOnDesktop = count;
        Q_EMIT changed();
    });
}

void OnboardingFlow::moveScreenshots() {
    const auto &folder = m_settings.state().screenshotsFolder;
    if (!folder)
        return enterFirstScreenshot();
    m_state.folder = OnboardingState::Folder::moving;
    m_hooks.suspendFolder();
    m_desktop->moveTo(*folder, [this](const Result<DesktopScreenshots::Report> &report) { moved(report); });
    Q_EMIT changed();
}

void OnboardingFlow::moved(const Result<DesktopScreenshots::Report> &report) {
    m_hooks.resumeFolder();
    enterFirstScreenshot();
    if (!report)
        return fail(report.error());
    QStringList sentences;
    if (report->moved > 0)
        sentences += tr("%n screenshots were moved from the Desktop.", nullptr, report->moved);
    if (report->failed > 0)
        sentences +=
            tr("%n screenshots could not be moved and stay on the Desktop.", nullptr, report->failed);
    say(sentences.join(u' '));
}

void OnboardingFlow::receiveCapture() {
    m_state.hasCaught = true;
    m_state.note.clear();
    const QString path = m_hooks.latestCapture();
    if (!path.isEmpty())
        m_captureRequest = m_thumbnails.request(path, captureSide, captureScale,
                                                [this](const Result<Thumbnails::Thumbnail> &thumbnail) {
                                                    if (!thumbnail)
                                                        return;
                                                    m_state.capture = thumbnail->image;
                                                    Q_EMIT changed();
                                                });
    Q_EMIT changed();
}

void OnboardingFlow::fail(const Error &error) {
    m_state.isFailure = true;
    m_state.note =
        error.recoverySuggestion.isEmpty() ? error.message : error.message + u' ' + error.recoverySuggestion;
    Q_EMIT changed();
}

void OnboardingFlow::say(const QString &note) {
    m_state.isFailure = false;
    m_state.note = note;
    Q_EMIT changed();
}

void OnboardingFlow::refreshPath() {
    const AppSettingsState &settings = m_settings.state();
    m_state.isChosen = settings.hasFolderAccess && settings.screenshotsFolder;
    m_state.path = withHomeShort(
        m_state.isChosen ? *settings.screenshotsFolder : suggestion().value_or(QString()), m_home);
    Q_EMIT changed();
}

std::optional<QString> OnboardingFlow::suggestion() const {
    if (!m_destination || m_destination->kind != ScreenshotDestination::Kind::folder ||
        !isUsable(m_destination->folder))
        return std::nullopt;
    return m_destination->folder;
}

bool OnboardingFlow::isBusy() const {
    return m_state.folder == OnboardingState::Folder::looking ||
           m_state.folder == OnboardingState::Folder::moving;
}

} // namespace tembra
