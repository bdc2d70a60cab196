#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tembra {

// What is announced of the captures that arrived since the notification opened: a series while it stays open.
struct CaptureNotification {
    QString text;
    // How many, once there is more than one; else empty.
    QString detail;
    // Newest first, no more than can be shown.
    QStringList previews;
    int captureCount = 0;

    static constexpr int visiblePreviews = 3;

    [[nodiscard]] int overflow() const { return captureCount - static_cast<int>(previews.size()); }
    bool operator==(const CaptureNotification &) const = default;
};

// One capture, as far as its announcement goes.
struct CaptureNews {
    QString path;
    bool isRecording = false;
    // The first one since onboarding.
    bool isFirst = false;
};

// The announcement after `news` (newest first) joined the one that is showing; an empty one begins a series.
[[nodiscard]] CaptureNotification joined(const CaptureNotification &showing,
                                         const std::vector<CaptureNews> &news);

} // namespace tembra
