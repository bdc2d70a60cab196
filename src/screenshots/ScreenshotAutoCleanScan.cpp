#include "screenshots/ScreenshotAutoCleanScan.h"

#include "platform/FolderFiles.h"
#include "screenshots/CaptureCompleteness.h"
#include "screenshots/CaptureMedia.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "settings/FolderPath.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <utility>

namespace tembra {

namespace {

// Where the file system keeps no birth time, nothing tells that the file is older than its last change.
Instant creationDate(const FileFacts &facts) {
    return facts.createdAt.value_or(std::max(facts.modifiedAt, facts.changedAt));
}

// The names below the root, as its listing tells them, of what the user has protected there by path.
QSet<QByteArray> protectedNames(const AutoCleanRequest &request) {
    QSet<QString> paths = request.pinnedPaths;
    for (auto spared = request.gracePaths.cbegin(); spared != request.gracePaths.cend(); ++spared) {
        if (spared.value() > request.now)
            paths.insert(spared.key());
    }
    const QString root = withoutLinks(request.root) + u'/';
    QSet<QByteArray> names;
    for (const QString &path : std::as_const(paths)) {
        for (const QString &alias : {path, withoutLinks(path)}) {
            if (alias.startsWith(root))
                names.insert(QFile::encodeName(alias.sliced(root.size())));
        }
    }
    return names;
}

QSet<FileResource> protectedFiles(const AutoCleanRequest &request) {
    QSet<FileResource> files = request.pinnedFiles;
    for (auto spared = request.graceFiles.cbegin(); spared != request.graceFiles.cend(); ++spared) {
        if (spared.value() > request.now)
            files.insert(spared.key());
    }
    return files;
}

} // namespace

// One run over one folder.
class ScreenshotAutoCleanScan::Run {
public:
    Run(const ScreenshotCaptureDetector &detector, const AutoCleanRequest &request,
        const QString &customPrefix)
        : m_detector(detector),
          m_request(request),
          m_customPrefix(customPrefix),
          m_protectedNames(protectedNames(request)),
          m_protectedFiles(protectedFiles(request)) {}

    void visit(const FolderFiles::Listed &listed) {
        if (!CaptureMedia::mayBeMedia(listed.relativePath()))
            return;
        const std::string_view relative = listed.relativePath();
        const auto name = QByteArray::fromRawData(relative.data(), static_cast<qsizetype>(relative.size()));
        if (m_protectedNames.contains(name))
            return;
        if (const auto file = listed.open())
            judge(QFile::decodeName(name), **file);
    }

    [[nodiscard]] std::vector<AutoCleanCandidate> found() {
        std::ranges::sort(m_found, [](const AutoCleanCandidate &a, const AutoCleanCandidate &b) {
            return std::tie(a.createdAt, a.path) < std::tie(b.createdAt, b.path);
        });
        return std::move(m_found);
    }

private:
    void judge(const QString &name, const OpenFile &file) {
        const QStringView fileName = QStringView(name).sliced(name.lastIndexOf(u'/') + 1);
        const FileFacts facts = file.facts();
        if (!isOldEnough(facts, m_request) ||
            (facts.resource && m_protectedFiles.contains(*facts.resource)) ||
            !m_detector.isCapture(fileName, file, m_customPrefix))
            return;
        const auto stillFor = CaptureCompleteness::stillFor({.modifiedAt = facts.modifiedAt}, m_request.now);
        const bool isWhole =
            m_detector.isVideoName(fileName) ||
            CaptureCompleteness::isComplete(file, CaptureMedia::extension(fileName), false, stillFor);
        if (!isWhole)
            return;
        const QString path = m_request.root + u'/' + name;
        m_found.push_back({.path = path,
                           .identity = ScreenshotFileIdentity::of(path, facts),
                           .createdAt = creationDate(facts),
                           .modifiedAt = facts.modifiedAt,
                           .size = facts.size});
    }

    const ScreenshotCaptureDetector &m_detector;
    const AutoCleanRequest &m_request;
    const QString m_customPrefix;
    const QSet<QByteArray> m_protectedNames;
    const QSet<FileResource> m_protectedFiles;
    std::vector<AutoCleanCandidate> m_found;
};

ScreenshotAutoCleanScan::ScreenshotAutoCleanScan(const FolderFiles &files,
                                                 const ScreenshotCaptureDetector &detector,
                                                 std::function<QString()> customPrefix)
    : m_files(files), m_detector(detector), m_customPrefix(std::move(customPrefix)) {}

Result<std::vector<AutoCleanCandidate>>
ScreenshotAutoCleanScan::candidates(const AutoCleanRequest &request) const {
    Run run(m_detector, request, m_customPrefix());
    const auto subfolders = request.includesSubfolders ? FolderFiles::Subfolders::onSameMount
                                                       : FolderFiles::Subfolders::passedOver;
    return m_files
        .list(request.root, subfolders,
              [&](const FolderFiles::Listed &listed) {
                  run.visit(listed);
                  return !request.cancellation->isCancelled();
              })
        .map([&run] { return run.found(); });
}

bool ScreenshotAutoCleanScan::isOldEnough(const FileFacts &facts, const AutoCleanRequest &request) {
    const Instant createdAt = creationDate(facts);
    return createdAt < request.cutoff &&
           std::max({createdAt, facts.modifiedAt, facts.changedAt}) < request.now - settling;
}

bool ScreenshotAutoCleanScan::isSafeDescendant(const QString &path, const QString &root, int depth) {
    const QFileInfo file(path);
    const QString canonicalRoot = QFileInfo(root).canonicalFilePath();
    const QString canonicalFolder = QFileInfo(file.path()).canonicalFilePath();
    const QString fileName = file.fileName();
    if (canonicalRoot.isEmpty() || canonicalFolder.isEmpty() || fileName.isEmpty() || fileName == u"." ||
        fileName == u".." || file.isSymbolicLink())
        return false;
    const QString relative = QDir(canonicalRoot).relativeFilePath(canonicalFolder + u'/' + fileName);
    return relative != u"." && !relative.startsWith(u"../") && relative.count(u'/') < depth;
}

bool ScreenshotAutoCleanScan::isSafeDescendant(const QString &path, const QString &root, bool recursive) {
    return isSafeDescendant(path, root, recursive ? std::numeric_limits<int>::max() : 1);
}

} // namespace tembra
