#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tembra {

// What is announced of the captures that arrived since the notification opened: a series while it stays open.
struct CaptureNotification {
    enum class CopyState {
        none,
        // The captures are on the clipboard.
        copied,
        // They will be when this program gets the focus.
        postponed
    };

    QString text;
    // Newest first, no more than can be shown.
    QStringList previews;
    int captureCount = 0;
    bool hasRecording = false;
    CopyState copyState = CopyState::none;
    // It tells of a removal.
    bool offersUndo = false;

    static constexpr int visiblePreviews = 3;

    // The line below the text; empty when there is nothing more to say.
    [[nodiscard]] QString detail() const;
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
// `phrase` acknowledges screenshots that have no words of their own.
[[nodiscard]] CaptureNotification joined(const CaptureNotification &showing,
                                         const std::vector<CaptureNews> &news, const QString &phrase);

} // namespace tembra
