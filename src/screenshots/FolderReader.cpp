#include "screenshots/FolderReader.h"

#include "screenshots/CaptureCompleteness.h"
#include "screenshots/CaptureMedia.h"
#include "screenshots/ScreenshotTimeline.h"
#include "screenshots/VideoCompleteness.h"

#include <QFile>

#include <algorithm>

namespace tembra {

using namespace std::chrono_literals;

namespace {

// A file that was made longer ago than this was moved here, it is no new capture.
constexpr auto fresh = 2min;

QStringView lastPart(QStringView path) {
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

} // namespace

FolderReader::FolderReader(const FolderFiles &files, const ScreenshotCaptureDetector &detector,
                           std::function<QString()> customPrefix)
    : m_files(files), m_detector(detector), m_askCustomPrefix(std::move(customPrefix)) {}

FolderScanResult FolderReader::readFolder(const FolderScanRequest &request) {
    begin(request);
    FolderScanResult result;
    const auto isCancelled = [&request] { return request.cancellation && *request.cancellation; };
    const auto subfolders = FolderFiles::enteredIf(request.includesSubfolders);
    const auto listed = m_files.list(request.folder, subfolders, [&](const FolderFiles::Listed &file) {
        visit(file, request);
        return !isCancelled();
    });
    if (!listed) {
        result.error = listed.error();
        return result;
    }
    // What a listing that was broken off has not met may still be there.
    if (isCancelled())
        return result;
    std::erase_if(m_entries, [this](const auto &entry) { return entry.second.lastScan != m_scan; });
    collect(request, result);
    return result;
}

// What was judged of another folder, or by other names, is of no use.
void FolderReader::begin(const FolderScanRequest &request) {
    const QString customPrefix = m_askCustomPrefix();
    if (request.folder != m_folder || customPrefix != m_customPrefix)
        m_entries.clear();
    m_folder = request.folder;
    m_customPrefix = customPrefix;
    ++m_scan;
}

void FolderReader::visit(const FolderFiles::Listed &listed, const FolderScanRequest &request) {
    if (!CaptureMedia::mayBeMedia(listed.relativePath()))
        return;
    auto found = m_entries.find(listed.relativePath());
    const bool isKnown = found != m_entries.end();
    if (!isKnown)
        found = m_entries.try_emplace(std::string(listed.relativePath())).first;
    Entry &entry = found->second;
    entry.lastScan = m_scan;
    const bool isSame = isKnown && entry.version == listed.version();
    const bool isSettled = entry.verdict == Verdict::notCapture || entry.verdict == Verdict::complete ||
                           entry.retries >= retryBudget;
    if (isSame && isSettled)
        return;
    // Time alone may make a young version whole: looking at it often, as in a busy folder, does not count.
    const auto youth = entry.verdict == Verdict::unfinishedVideo ? VideoCompleteness::abandoned
                                                                 : CaptureCompleteness::justWritten;
    const bool counts = isSame && CaptureCompleteness::stillFor(entry.version, request.now) > youth;
    entry.retries = counts ? entry.retries + 1 : 0;
    entry.version = listed.version();
    judge(entry, listed, request);
}

void FolderReader::judge(Entry &entry, const FolderFiles::Listed &listed, const FolderScanRequest &request) {
    entry.verdict = Verdict::notCapture;
    const QByteArray relativePath(listed.relativePath().data(),
                                  static_cast<qsizetype>(listed.relativePath().size()));
    const QString location = request.folder + u'/' + QFile::decodeName(relativePath);
    const QStringView fileName = lastPart(location);
    const bool isMedia = m_detector.isImageName(fileName) || m_detector.isVideoName(fileName);
    if (!isMedia)
        return;
    const auto file = listed.open();
    if (!file || !m_detector.classify(fileName, **file, m_customPrefix))
        return;
    entry.verdict = verdict(**file, fileName, entry.version, request.now);
    if (entry.verdict != Verdict::complete)
        return;
    const FileFacts facts = (*file)->facts();
    entry.shot = {.location = location,
                  .identity = ScreenshotFileIdentity::of(location, facts),
                  .stamp = Shot::stampOf(entry.version),
                  .createdAt = facts.createdAt.value_or(entry.version.modifiedAt)};
    entry.isFresh = std::max(entry.shot.createdAt, entry.version.modifiedAt) > request.now - fresh;
}

FolderReader::Verdict FolderReader::verdict(const OpenFile &file, QStringView fileName,
                                            const FileVersion &version, Instant now) const {
    const bool isVideo = m_detector.isVideoName(fileName);
    if (CaptureCompleteness::isComplete(file, CaptureMedia::extension(fileName), isVideo,
                                        CaptureCompleteness::stillFor(version, now)))
        return Verdict::complete;
    return isVideo ? Verdict::unfinishedVideo : Verdict::unfinishedImage;
}

void FolderReader::collect(const FolderScanRequest &request, FolderScanResult &result) {
    std::vector<const Shot *> shown;
    shown.reserve(m_entries.size());
    for (auto &[path, entry] : m_entries) {
        const bool isComplete = entry.verdict == Verdict::complete;
        const bool wasComplete = std::exchange(entry.wasComplete, entry.wasComplete || isComplete);
        if (isComplete && !request.dismissed.contains(entry.shot.stamp)) {
            shown.push_back(&entry.shot);
            if (entry.isFresh && !wasComplete)
                result.arrivals.push_back(entry.shot);
        }
        const bool isAwaited = entry.retries < retryBudget;
        result.hasUnfinishedImages |= isAwaited && entry.verdict == Verdict::unfinishedImage;
        result.hasUnfinishedVideos |= isAwaited && entry.verdict == Verdict::unfinishedVideo;
    }
    const auto isShownBefore = [](const Shot *a, const Shot *b) {
        return ScreenshotTimeline::isShownBefore(*a, *b);
    };
    std::ranges::sort(shown, isShownBefore);
    result.shots.reserve(shown.size());
    for (const Shot *shot : shown)
        result.shots.push_back(*shot);
    std::ranges::sort(result.arrivals, ScreenshotTimeline::isShownBefore);
}

} // namespace tembra
