#include "shelf/CaptureAnnouncer.h"

#include <utility>

namespace tembra {

using namespace std::chrono_literals;

namespace {

// Long enough to read a short line and to move the pointer to it.
constexpr auto captureDuration = 3s;
constexpr auto folderDuration = 5s;

} // namespace

CaptureAnnouncer::CaptureAnnouncer(Scheduler &scheduler) : m_lifetime(scheduler) {}

void CaptureAnnouncer::announceCaptures(const std::vector<CaptureNews> &news, const QString &phrase) {
    if (news.empty() || !canShow())
        return;
    const bool isSeries = isSeriesOpen();
    // A folder notice that has to give way is shown again afterwards.
    if (m_showing && !isSeries && !m_showing->offersUndo)
        m_pendingFolderNotification = m_showing->text;
    show(joined(isSeries ? *m_showing : CaptureNotification(), news, phrase), captureDuration);
}

void CaptureAnnouncer::setCopyState(CaptureNotification::CopyState state) {
    if (!isSeriesOpen())
        return;
    m_showing->copyState = state;
    onShow(m_showing);
}

void CaptureAnnouncer::announceFolder(const QString &text) {
    m_pendingFolderNotification = text;
    flushFolderNotification();
}

void CaptureAnnouncer::announceRemoval(const QString &text) {
    if (canShow() && !m_showing)
        show({.text = text, .offersUndo = true}, folderDuration);
}

void CaptureAnnouncer::forgetFolder() {
    m_pendingFolderNotification.clear();
}

void CaptureAnnouncer::flushFolderNotification() {
    if (m_pendingFolderNotification.isEmpty() || m_showing || !canShow())
        return;
    show({.text = std::exchange(m_pendingFolderNotification, QString())}, folderDuration);
}

void CaptureAnnouncer::dismiss() {
    if (m_showing)
        end();
}

void CaptureAnnouncer::show(const CaptureNotification &notification, Scheduler::Duration duration) {
    m_showing = notification;
    m_duration = duration;
    onShow(m_showing);
    if (!m_isHeld)
        beginTime();
}

void CaptureAnnouncer::beginTime() {
    m_lifetime.begin(m_duration, [this] {
        end();
        flushFolderNotification();
    });
}

void CaptureAnnouncer::hold(bool isHeld) {
    m_isHeld = isHeld && m_showing;
    if (m_isHeld)
        m_lifetime.end();
    else if (m_showing)
        beginTime();
}

void CaptureAnnouncer::end() {
    m_lifetime.end();
    m_isHeld = false;
    m_showing.reset();
    onShow(m_showing);
}

} // namespace tembra
