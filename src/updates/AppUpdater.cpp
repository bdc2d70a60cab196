#include "updates/AppUpdater.h"

#include "base/Background.h"
#include "base/MainThread.h"
#include "updates/UpdateDownloader.h"
#include "updates/UpdateFailure.h"
#include "updates/UpdateFeed.h"
#include "updates/UpdateSchedule.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QNetworkAccessManager>

#include <algorithm>
#include <utility>

namespace tembra {

namespace {

using Kind = SettingsUpdateState::Kind;

// The start of the program has better things to do.
constexpr Scheduler::Duration pauseAtStart = std::chrono::seconds(20);
constexpr Scheduler::Duration pauseAfterFailure = std::chrono::hours(1);
constexpr Scheduler::Duration scheduleTolerance = std::chrono::minutes(5);
// A download is shown in steps that can be seen.
constexpr double progressStep = 0.01;

QString text(const char *source) {
    return QCoreApplication::translate("Updates", source);
}

} // namespace

AppUpdater::AppUpdater(const Services &services, UpdateConfiguration configuration, QObject *parent)
    : QObject(parent), m_services(services), m_configuration(std::move(configuration)) {
    updateSchedule::preserveExistingAutomaticChecks(m_services.defaults);
    m_state.lastCheck = updateSchedule::lastCheck(m_services.defaults);
}

AppUpdater::~AppUpdater() = default;

void AppUpdater::start() {
    requireMainThread();
    if (m_configuration.isPackageManaged) {
        become(Kind::managedBySystem);
        return;
    }
    m_automaticChecks = updateSchedule::automaticChecksAtStart(m_services.defaults);
    const auto started = publisher();
    if (!started) {
        qWarning("Updater could not start: %s", qUtf8Printable(started.error().message));
        if (m_configuration.feedUrl.isEmpty() && m_configuration.publicKey.isEmpty())
            become(Kind::notConfigured);
        else
            fail(started.error().message);
        return;
    }
    m_publisher = *started;
    // Timers may stand still while the machine sleeps.
    m_observation = m_services.workspace.observe([this](Workspace::Event event) {
        if (event == Workspace::Event::didWake)
            scheduleCheck();
    });
    scheduleCheck();
    Q_EMIT changed();
}

Result<UpdateSignature> AppUpdater::publisher() const {
    const QUrl feed(m_configuration.feedUrl, QUrl::StrictMode);
    if (m_configuration.feedUrl.isEmpty())
        return updateFailure(text(QT_TRANSLATE_NOOP("Updates", "No address of a list of updates is set.")));
    if (!feed.isValid() || feed.scheme() != u"https" || feed.host().isEmpty())
        return updateFailure(
            text(QT_TRANSLATE_NOOP("Updates", "The address of the list of updates is not a secure one.")));
    if (!UpdateVersion::parse(m_configuration.currentVersion))
        return updateFailure(text(QT_TRANSLATE_NOOP("Updates", "The version of this copy is not known.")));
    return UpdateSignature::withKey(m_configuration.publicKey);
}

void AppUpdater::scheduleCheck() {
    m_nextCheck.cancel();
    if (!m_publisher || !m_automaticChecks)
        return;
    const auto wait = std::max(updateSchedule::delay(m_state.lastCheck, m_services.now()), pauseAtStart);
    m_nextCheck = m_services.scheduler.schedule(
        wait, [this] { check(false); }, scheduleTolerance);
}

void AppUpdater::setAutomaticChecks(bool on) {
    requireMainThread();
    updateSchedule::setAutomaticChecks(m_services.defaults, on);
    if (std::exchange(m_automaticChecks, on) == on)
        return;
    scheduleCheck();
    Q_EMIT changed();
}

void AppUpdater::checkForUpdates() {
    requireMainThread();
    check(true);
}

void AppUpdater::check(bool byUser) {
    if (!canCheck()) {
        // What is going on may be a download of hours.
        if (!byUser)
            m_nextCheck = m_services.scheduler.schedule(
                updateSchedule::interval, [this] { check(false); }, scheduleTolerance);
        return;
    }
    m_isInSession = true;
    m_nextCheck.cancel();
    m_feed = std::make_unique<UpdateFeed>(
        network(), m_services.scheduler, *m_publisher, m_configuration.extraAuthorities,
        [this, byUser](const Result<Appcast> &feed) { receive(feed, byUser); });
    become(Kind::checking);
    m_feed->read(QUrl(m_configuration.feedUrl, QUrl::StrictMode));
}

void AppUpdater::receive(Result<Appcast> feed, bool byUser) {
    m_feed.reset();
    m_isInSession = false;
    if (feed && !updateSchedule::acceptList(m_services.defaults, feed->publishedAt))
        feed = updateFailure(
            text(QT_TRANSLATE_NOOP("Updates", "The list of updates is older than one seen before.")));
    if (feed) {
        updateSchedule::setLastCheck(m_services.defaults, m_services.now());
        m_state.lastCheck = updateSchedule::lastCheck(m_services.defaults);
        scheduleCheck();
        takeOffer(*feed);
    } else {
        retryLater();
        // What was found before is still there when nobody has asked.
        if (byUser || !(m_ready || m_offer))
            fail(feed.error().message);
        else
            become(m_ready ? Kind::ready : Kind::available);
    }
    if (byUser || (feed && m_state.kind == Kind::available))
        Q_EMIT ended();
}

void AppUpdater::takeOffer(const Appcast &feed) {
    m_offer = feed.bestFor({.current = *UpdateVersion::parse(m_configuration.currentVersion),
                            .architecture = m_configuration.architecture,
                            .systemVersion = m_configuration.systemVersion});
    if (m_ready && (m_offer != m_ready->item || !QFileInfo::exists(m_ready->path)))
        m_ready.reset();
    if (!m_offer)
        UpdateDownloader::clear(folder());
    become(m_ready ? Kind::ready : m_offer ? Kind::available : Kind::upToDate);
}

// The network may not be there yet.
void AppUpdater::retryLater() {
    if (m_automaticChecks)
        m_nextCheck = m_services.scheduler.schedule(
            pauseAfterFailure, [this] { check(false); }, scheduleTolerance);
}

void AppUpdater::download() {
    requireMainThread();
    if (!canCheck() || !m_offer)
        return;
    if (m_ready)
        return become(Kind::ready);
    m_isInSession = true;
    m_downloader = std::make_unique<UpdateDownloader>(
        UpdateDownloader::Services{network(), m_services.scheduler, m_services.queue}, *m_publisher, *m_offer,
        folder(), m_configuration.extraAuthorities);
    m_downloader->onProgress = [this](double progress) {
        if (progress < m_state.progress + progressStep)
            return;
        m_state.progress = progress;
        Q_EMIT changed();
    };
    become(Kind::downloading);
    m_downloader->start([this](const Result<QString> &path) { receiveFile(path); });
}

void AppUpdater::receiveFile(const Result<QString> &path) {
    m_downloader.reset();
    m_isInSession = false;
    if (path) {
        m_ready = Ready{*m_offer, *path};
        become(Kind::ready);
    } else {
        fail(path.error().message);
    }
    Q_EMIT ended();
}

void AppUpdater::install() {
    requireMainThread();
    if (!canCheck() || !m_ready)
        return;
    m_isInSession = true;
    Q_EMIT changed();
    performInBackground(
        m_services.queue, m_services.scheduler, m_generation.ticket(),
        [publisher = *m_publisher, ready = *m_ready] {
            return publisher.checkFile(ready.path, ready.item.length, ready.item.signature);
        },
        [this](const Result<void> &verified) { openReady(verified); });
}

void AppUpdater::openReady(const Result<void> &verified) {
    m_isInSession = false;
    const auto opened = verified ? m_services.workspace.open({m_ready->path}, {}) : verified;
    if (!verified) {
        // Whoever changed it, it is not the publisher's any more.
        UpdateDownloader::clear(folder());
        m_ready.reset();
    }
    if (opened)
        return become(Kind::ready);
    fail(opened.error().message);
    Q_EMIT ended();
}

UpdateStatus AppUpdater::status() const {
    return {updateStateName(m_state.kind), m_state.version, m_automaticChecks};
}

void AppUpdater::become(Kind kind) {
    SettingsUpdateState state{.kind = kind};
    const bool isAboutOffer = kind == Kind::available || kind == Kind::downloading || kind == Kind::ready;
    if (m_offer && isAboutOffer) {
        state.version = m_offer->shownVersion;
        state.releaseNotes = m_offer->releaseNotes;
    }
    show(std::move(state));
}

void AppUpdater::fail(const QString &sentence) {
    SettingsUpdateState state{.kind = Kind::failed, .failure = sentence};
    if (m_offer) {
        state.version = m_offer->shownVersion;
        state.releaseNotes = m_offer->releaseNotes;
    }
    show(std::move(state));
}

void AppUpdater::show(SettingsUpdateState state) {
    state.lastCheck = m_state.lastCheck;
    m_state = std::move(state);
    Q_EMIT changed();
}

QString AppUpdater::folder() const {
    return m_configuration.cacheFolder + QStringLiteral("/updates");
}

QNetworkAccessManager &AppUpdater::network() {
    if (!m_network) {
        m_network = std::make_unique<QNetworkAccessManager>();
        m_network->setAutoDeleteReplies(false);
    }
    return *m_network;
}

} // namespace tembra
