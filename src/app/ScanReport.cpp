#include "app/ScanReport.h"

#include "app/IsoDate.h"
#include "platform/FolderFiles.h"
#include "screenshots/CaptureCompleteness.h"
#include "screenshots/CaptureMedia.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "screenshots/ScreenshotTimeline.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace tembra {

namespace {

QString text(const char *source) {
    return QCoreApplication::translate("ScanReport", source);
}

// Looks at one file after another.
class Scanner {
public:
    Scanner(ScanReport &report, const ScreenshotCaptureDetector &detector, QString customPrefix, Instant now)
        : m_report(report), m_detector(detector), m_customPrefix(std::move(customPrefix)), m_now(now) {}

    void visit(const FolderFiles::Listed &listed) {
        const auto bytes = listed.relativePath();
        const QString path =
            m_report.folder + u'/' +
            QFile::decodeName(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
        const QStringView name = QStringView(path).sliced(path.lastIndexOf(u'/') + 1);
        const bool isVideo = m_detector.isVideoName(name);
        if (!isVideo && !m_detector.isImageName(name))
            return skip(path, text(QT_TRANSLATE_NOOP("ScanReport", "neither an image nor a recording")));
        const auto file = listed.open();
        if (!file)
            return skip(path, file.error().message);
        const auto reason = m_detector.classify(name, **file, m_customPrefix);
        if (!reason)
            return skip(
                path, text(QT_TRANSLATE_NOOP("ScanReport",
                                             "neither marker, metadata nor name say that it is a capture")));
        const Instant createdAt = (*file)->facts().createdAt.value_or(listed.version().modifiedAt);
        m_report.captures.push_back({.path = path,
                                     .isVideo = isVideo,
                                     .section = sectionOf(createdAt),
                                     .createdAt = createdAt,
                                     .isComplete = CaptureCompleteness::isComplete(
                                         **file, CaptureMedia::extension(name), isVideo,
                                         CaptureCompleteness::stillFor(listed.version(), m_now)),
                                     .because = rawValue(*reason)});
    }

private:
    void skip(const QString &path, const QString &because) { m_report.skipped.push_back({path, because}); }

    [[nodiscard]] QString sectionOf(Instant createdAt) const {
        const std::vector<Shot> one{Shot{.createdAt = createdAt}};
        return title(ScreenshotTimeline::sections(one, {}, m_now, QTimeZone::systemTimeZone()).front().kind);
    }

    ScanReport &m_report;
    const ScreenshotCaptureDetector &m_detector;
    const QString m_customPrefix;
    const Instant m_now;
};

} // namespace

Result<ScanReport> ScanReport::of(const QString &folder, bool includesSubfolders, const FolderFiles &files,
                                  const ScreenshotCaptureDetector &detector, const QString &customPrefix,
                                  Instant now) {
    ScanReport report{.folder = folder};
    Scanner scanner(report, detector, customPrefix, now);
    const auto listed = files.list(folder, FolderFiles::enteredIf(includesSubfolders),
                                   [&scanner](const FolderFiles::Listed &file) {
                                       scanner.visit(file);
                                       return true;
                                   });
    if (!listed)
        return failure(listed.error());
    std::ranges::sort(report.captures, [](const Capture &a, const Capture &b) {
        return a.createdAt != b.createdAt ? a.createdAt > b.createdAt : a.path > b.path;
    });
    std::ranges::sort(report.skipped, {}, &Skipped::path);
    return report;
}

QByteArray ScanReport::toJson() const {
    QJsonArray captureList;
    for (const Capture &capture : captures)
        captureList.append(QJsonObject{
            {QStringLiteral("path"), capture.path},
            {QStringLiteral("kind"), capture.isVideo ? QStringLiteral("video") : QStringLiteral("image")},
            {QStringLiteral("section"), capture.section},
            {QStringLiteral("createdAt"), isoDate(capture.createdAt)},
            {QStringLiteral("complete"), capture.isComplete},
            {QStringLiteral("because"), capture.because}});
    QJsonArray skippedList;
    for (const Skipped &file : skipped)
        skippedList.append(
            QJsonObject{{QStringLiteral("path"), file.path}, {QStringLiteral("because"), file.because}});
    return QJsonDocument(QJsonObject{{QStringLiteral("folder"), folder},
                                     {QStringLiteral("captures"), captureList},
                                     {QStringLiteral("skipped"), skippedList}})
        .toJson();
}

QString ScanReport::toText() const {
    QString lines;
    for (const Capture &capture : captures)
        lines +=
            QStringLiteral("%1\t%2\t%3\t%4%5\n")
                .arg(capture.section, isoDate(capture.createdAt), capture.because, capture.path,
                     capture.isComplete ? QString() : text(QT_TRANSLATE_NOOP("ScanReport", " (not whole)")));
    for (const Skipped &file : skipped)
        lines += QStringLiteral("-\t\t%1\t%2\n").arg(file.because, file.path);
    return lines;
}

} // namespace tembra
