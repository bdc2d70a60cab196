#pragma once

#include "shelf/CaptureNotification.h"
#include "shelf/ShelfNotificationLifetime.h"

#include <functional>
#include <optional>

namespace tembra {

// Keeps the one notice that the collapsed shelf shows: captures, which join the series that is showing, and
// notices about the folder, which wait until nothing else shows. Main thread; owned by ShelfController.
class CaptureAnnouncer {
public:
    explicit CaptureAnnouncer(Scheduler &scheduler);

    // Whether a notice can be shown now: the shelf is closed.
    std::function<bool()> canShow;
    // Shows the notice, or with nothing takes away the one that shows.
    std::function<void(const std::optional<CaptureNotification> &)> onShow;

    void announceCaptures(const std::vector<CaptureNews> &news, const QString &phrase);
    // What became of the copies of the captures that show.
    void setCopyState(CaptureNotification::CopyState state);
    // Screenshots went to the Trash; the notice offers to bring them back.
    void announceRemoval(const QString &text);
    // A folder notice replaces one that still waits.
    void announceFolder(const QString &text);
    // What a waiting folder notice tells is no longer so.
    void forgetFolder();
    // While it is held, what shows does not end: the pointer rests on it, or drags from it. Its time begins
    // anew afterwards.
    void hold(bool isHeld);
    // The shelf opened: what shows ends, and what it said need not be said again.
    void dismiss();
    // The shelf closed: a folder notice that waited is shown.
    void flushFolderNotification();

    // Captures that arrive now join those that show.
    [[nodiscard]] bool isSeriesOpen() const { return m_showing && m_showing->captureCount > 0; }
    [[nodiscard]] const std::optional<CaptureNotification> &showing() const { return m_showing; }

private:
    void show(const CaptureNotification &notification, Scheduler::Duration duration);
    void beginTime();
    void end();

    ShelfNotificationLifetime m_lifetime;
    std::optional<CaptureNotification> m_showing;
    QString m_pendingFolderNotification;
    Scheduler::Duration m_duration{0};
    bool m_isHeld = false;
};

} // namespace tembra
