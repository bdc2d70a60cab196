#include "shelf/CaptureNotification.h"

#include <QCoreApplication>

#include <algorithm>

namespace tembra {

namespace {

QString text(const std::vector<CaptureNews> &news) {
    if (std::ranges::any_of(news, &CaptureNews::isFirst))
        return QCoreApplication::translate("CaptureNotification", "Got it! First one caught");
    if (news.front().isRecording)
        return QCoreApplication::translate("CaptureNotification", "Got the recording");
    return QCoreApplication::translate("CaptureNotification", "Screenshot saved");
}

} // namespace

CaptureNotification joined(const CaptureNotification &showing, const std::vector<CaptureNews> &news) {
    if (news.empty())
        return showing;
    CaptureNotification next;
    next.text = text(news);
    next.captureCount = showing.captureCount + static_cast<int>(news.size());
    for (const CaptureNews &capture : news)
        next.previews.append(capture.path);
    next.previews.append(showing.previews);
    next.previews = next.previews.mid(0, CaptureNotification::visiblePreviews);
    if (next.captureCount > 1)
        next.detail =
            QCoreApplication::translate("CaptureNotification", "%n captures", nullptr, next.captureCount);
    return next;
}

} // namespace tembra
