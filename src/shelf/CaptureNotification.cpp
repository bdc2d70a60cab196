#include "shelf/CaptureNotification.h"

#include <QCoreApplication>

#include <algorithm>

namespace tembra {

namespace {

QString text(const std::vector<CaptureNews> &news, const QString &phrase) {
    if (std::ranges::any_of(news, &CaptureNews::isFirst))
        return QCoreApplication::translate("CaptureNotification", "Got it! First one caught");
    if (news.front().isRecording)
        return QCoreApplication::translate("CaptureNotification", "Got the recording");
    return phrase;
}

QString whatArrived(int count, bool hasRecording) {
    if (count == 1 && !hasRecording)
        return QCoreApplication::translate("CaptureNotification", "Screenshot saved");
    if (count <= 1)
        return {};
    return hasRecording
               ? QCoreApplication::translate("CaptureNotification", "%n captures", nullptr, count)
               : QCoreApplication::translate("CaptureNotification", "%n screenshots", nullptr, count);
}

} // namespace

QString CaptureNotification::detail() const {
    QString arrived = whatArrived(captureCount, hasRecording);
    switch (copyState) {
    case CopyState::none:
        break;
    case CopyState::copied:
        return arrived.isEmpty()
                   ? arrived
                   : QCoreApplication::translate("CaptureNotification", "%1 · copied").arg(arrived);
    case CopyState::postponed:
        return QCoreApplication::translate("CaptureNotification", "Copies when you open the shelf");
    }
    return arrived;
}

CaptureNotification joined(const CaptureNotification &showing, const std::vector<CaptureNews> &news,
                           const QString &phrase) {
    if (news.empty())
        return showing;
    CaptureNotification next;
    next.text = text(news, phrase);
    next.captureCount = showing.captureCount + static_cast<int>(news.size());
    next.hasRecording = showing.hasRecording || std::ranges::any_of(news, &CaptureNews::isRecording);
    for (const CaptureNews &capture : news)
        next.previews.append(capture.path);
    next.previews.append(showing.previews);
    next.previews = next.previews.mid(0, CaptureNotification::visiblePreviews);
    return next;
}

} // namespace tembra
