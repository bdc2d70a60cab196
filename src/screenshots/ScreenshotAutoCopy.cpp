#include "screenshots/ScreenshotAutoCopy.h"

#include "base/Background.h"
#include "base/MainThread.h"
#include "screenshots/CaptureMedia.h"
#include "screenshots/ScreenshotAutoCleanScan.h"
#include "settings/FolderPath.h"

#include <algorithm>
#include <ranges>
#include <utility>

namespace tembra {

namespace {

// The folder's own files and those of its immediate subfolders.
constexpr int deepest = 2;

QString received(const Shot &shot) {
    return shot.stamp + u' ' + shot.location;
}

} // namespace

ScreenshotAutoCopy::ScreenshotAutoCopy(Services services) : m_services(std::move(services)) {}

void ScreenshotAutoCopy::configure(bool enabled, const std::optional<QString> &folder, Instant now) {
    requireMainThread();
    const auto active = enabled && folder ? std::optional(withoutLinks(*folder)) : std::nullopt;
    if (active == m_folder)
        return;
    m_folder = active;
    m_generation.advance();
    m_series.clear();
    m_received.clear();
    m_outstanding = 0;
    m_isPostponed = false;
    m_enabledSince = now;
}

bool ScreenshotAutoCopy::qualifies(const Shot &shot) const {
    return m_folder && CaptureMedia::isImageExtension(CaptureMedia::extension(shot.location)) &&
           shot.createdAt > m_enabledSince && !m_received.contains(tembra::received(shot)) &&
           ScreenshotAutoCleanScan::isSafeDescendant(shot.location, *m_folder, deepest) &&
           m_services.isCapture(shot.location);
}

void ScreenshotAutoCopy::receive(const std::vector<Shot> &shots, bool continuingSeries) {
    requireMainThread();
    QStringList paths;
    for (const Shot &shot : shots) {
        if (!qualifies(shot))
            continue;
        m_received.insert(tembra::received(shot));
        paths.append(shot.location);
    }
    // A series that has ended is not continued by what joins a later notification.
    if (!continuingSeries && m_outstanding == 0)
        m_series.clear();
    if (paths.isEmpty())
        return;
    if (!continuingSeries) {
        m_generation.advance();
        m_series.clear();
        m_outstanding = 0;
    }
    // While images of the series are loading the clipboard is to stay as it was when the first of them came.
    if (m_outstanding == 0)
        m_changeCount = m_services.pasteboard.changeCount();
    m_isPostponed = false;
    for (const QString &path : std::as_const(paths)) {
        std::erase_if(m_series, [&path](const Image &image) { return image.path == path; });
        m_series.push_back({path, std::nullopt});
        load(path);
    }
}

void ScreenshotAutoCopy::load(const QString &path) {
    ++m_outstanding;
    performInBackground(
        m_services.queue, m_services.scheduler, m_generation.ticket(),
        [prepare = m_services.prepare, path] { return prepare(path); },
        [this, path](std::optional<Payload> payload) { received(path, std::move(payload)); });
}

void ScreenshotAutoCopy::received(const QString &path, std::optional<Payload> payload) {
    --m_outstanding;
    const auto image = std::ranges::find(m_series, path, &Image::path);
    if (image != m_series.end())
        image->payload = std::move(payload);
    if (m_outstanding > 0)
        return;
    // The user copied something else meanwhile.
    if (m_services.pasteboard.changeCount() != m_changeCount) {
        m_series.clear();
        return;
    }
    write();
}

void ScreenshotAutoCopy::write() {
    std::vector<Pasteboard::Item> items;
    for (const Image &image : m_series) {
        if (image.payload)
            items.push_back({image.path, image.payload->type, image.payload->data});
    }
    if (items.empty())
        return;
    m_isPostponed = !m_services.pasteboard.writeObjects(items);
    m_changeCount = m_services.pasteboard.changeCount();
    if (!m_isPostponed)
        keepLastData();
    if (onFinished)
        onFinished(m_isPostponed ? Outcome::postponed : Outcome::copied);
}

// Only the last image is pasted as one; the others of a long series need not be held.
void ScreenshotAutoCopy::keepLastData() {
    bool isLast = true;
    for (Image &image : std::views::reverse(m_series)) {
        if (image.payload && !std::exchange(isLast, false))
            image.payload->data.clear();
    }
}

void ScreenshotAutoCopy::writePostponed() {
    requireMainThread();
    if (!m_isPostponed)
        return;
    m_isPostponed = false;
    if (m_services.pasteboard.changeCount() == m_changeCount)
        write();
}

} // namespace tembra
