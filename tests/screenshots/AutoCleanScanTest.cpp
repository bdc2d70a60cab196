#include "platform/linux/LinuxCaptureMarkers.h"
#include "platform/linux/LinuxFolderFiles.h"
#include "screenshots/ScreenshotAutoCleanScan.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/ScratchMount.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/mount.h>

using namespace tembra;
using namespace std::chrono_literals;

namespace {

const QString capture = QStringLiteral("Screenshot from 2026-11-21 10-15-22.png");
const QString photo = QStringLiteral("IMG_0042.png");

// Files that were made now, looked at ten days later.
class AutoCleanScanTest : public testing::Test {
protected:
    AutoCleanScanTest() {
        QDir().mkpath(at("root/sub/deeper"));
        QDir().mkpath(at("root/.hidden"));
        QDir().mkpath(at("outside"));
        QFile::link(at("root"), at("link"));
    }

    [[nodiscard]] QString at(const char *path) const { return m_scratch.filePath(QString::fromUtf8(path)); }
    [[nodiscard]] QString inRoot(const QString &name) const { return at("root/") + name; }
    [[nodiscard]] AutoCleanRequest request(const char *root = "root") const {
        return {.root = at(root), .includesSubfolders = true, .cutoff = m_now - 24h, .now = m_now};
    }
    // The paths below the root.
    [[nodiscard]] QStringList found(const AutoCleanRequest &request) const {
        QStringList paths;
        const auto candidates = m_scan.candidates(request).value_or(std::vector<AutoCleanCandidate>());
        for (const AutoCleanCandidate &candidate : candidates) {
            EXPECT_TRUE(candidate.path.startsWith(request.root + u'/')) << "the root's own spelling";
            paths += candidate.path.mid(request.root.size() + 1);
        }
        return paths;
    }
    [[nodiscard]] FileResource resource(const QString &path) const {
        return m_files.facts(path)->resource.value();
    }

    QTemporaryDir m_scratch{QDir::current().filePath(QStringLiteral("clean-XXXXXX"))};
    const Instant m_now = systemNow() + 240h;
    LinuxFileFactsReader m_files;
    LinuxFolderFiles m_folderFiles{m_files};
    LinuxCaptureMarkers m_markers;
    ScreenshotCaptureDetector m_detector{m_markers, m_folderFiles};
    ScreenshotAutoCleanScan m_scan{m_folderFiles, m_detector, [] { return QStringLiteral("Bild"); }};
};

} // namespace

TEST_F(AutoCleanScanTest, takesWholeOldCapturesThatNothingProtects) {
    struct Case {
        const char *what;
        bool isTaken;
        QString name = capture;
        std::function<void(const QString &path, AutoCleanRequest &)> prepare = [](const QString &,
                                                                                  AutoCleanRequest &) {};
        QByteArray content = pictureBytes("png");
    };
    const auto created = [this](auto date) {
        return [=, this](const QString &path, AutoCleanRequest &request) {
            ASSERT_TRUE(m_files.recordCreationDate(path, date(request)));
        };
    };
    const auto marked = [this](bool mark) {
        return [=, this](const QString &path, AutoCleanRequest &) {
            ASSERT_TRUE(m_markers.setMarker(path, mark));
        };
    };
    // All of a file's dates but its last change are long ago, and that is the settling time ago.
    const auto changedAgo = [this](std::chrono::nanoseconds more) {
        return [=, this](const QString &path, AutoCleanRequest &request) {
            ASSERT_TRUE(m_files.recordCreationDate(path, m_now - 4800h));
            setModified(path, m_now - 4800h);
            request.now = m_files.facts(path)->changedAt + 60s + more;
            request.cutoff = request.now;
        };
    };
    const auto modified = [this](std::chrono::nanoseconds ago) {
        return [=, this](const QString &path, AutoCleanRequest &) { setModified(path, m_now - ago); };
    };
    const Case cases[]{
        {"an old capture", true},
        {"made exactly at the cutoff", false, capture, created([](const auto &r) { return r.cutoff; })},
        {"made just before the cutoff", true, capture, created([](const auto &r) { return r.cutoff - 1ns; })},
        {"made 60 s ago, all being old", false, capture,
         [this](const QString &path, AutoCleanRequest &request) {
             ASSERT_TRUE(m_files.recordCreationDate(path, m_now - 60s));
             request.cutoff = m_now;
         }},
        {"written 60 s ago", false, capture, modified(60s)},
        {"written longer ago", true, capture, modified(60s + 1ns)},
        {"written in the future", false, capture, modified(-24h)},
        {"changed 60 s ago", false, capture, changedAgo(0ns)},
        {"changed longer ago", true, capture, changedAgo(1ns)},
        {"a photo", false, photo},
        {"a photo that is marked", true, photo, marked(true)},
        {"a capture that is marked as none", false, capture, marked(false)},
        {"no media", false, QStringLiteral("Screenshot from 2026-11-21 10-15-22.txt")},
        {"a name that the user chose", true, QStringLiteral("Bild 2026-11-21 10.15.22.png")},
        {"half an image", false, capture, [](auto &&...) {}, pictureBytes("png").chopped(20)},
        {"a recording", true, QStringLiteral("Screencast from 2026-11-21 10-15-22.webm")},
        {"below the root", true, QStringLiteral("sub/deeper/") + capture},
        {"below a root without subfolders", false, QStringLiteral("sub/") + capture,
         [](const QString &, AutoCleanRequest &request) { request.includesSubfolders = false; }},
        {"hidden", false, u'.' + capture},
        {"in a hidden folder", false, QStringLiteral(".hidden/") + capture},
        {"pinned", false, capture,
         [](const QString &path, AutoCleanRequest &request) { request.pinnedPaths = {path}; }},
        {"pinned through a link to the root", false, capture,
         [this](const QString &, AutoCleanRequest &request) {
             request.pinnedPaths = {at("link/") + capture};
         }},
        {"pinned in a root that is reached through a link", false, capture,
         [this](const QString &path, AutoCleanRequest &request) {
             request.root = at("link");
             request.pinnedPaths = {path};
         }},
        {"pinned under another name", false, capture,
         [this](const QString &path, AutoCleanRequest &request) { request.pinnedFiles = {resource(path)}; }},
        {"spared", false, capture,
         [this](const QString &path, AutoCleanRequest &request) {
             request.gracePaths = {{path, m_now + 1ns}};
         }},
        {"spared through a link to the root", false, capture,
         [this](const QString &, AutoCleanRequest &request) {
             request.gracePaths = {{at("link/") + capture, m_now + 1ns}};
         }},
        {"spared under another name", false, capture,
         [this](const QString &path, AutoCleanRequest &request) {
             request.graceFiles = {{resource(path), m_now + 1ns}};
         }},
        {"spared until now", true, capture,
         [this](const QString &path, AutoCleanRequest &request) {
             request.gracePaths = {{path, m_now}};
             request.graceFiles = {{resource(path), m_now}};
         }},
    };
    for (const Case &c : cases) {
        const QString path = writeFile(inRoot(c.name), c.content);
        AutoCleanRequest asked = request();
        c.prepare(path, asked);
        EXPECT_EQ(found(asked), c.isTaken ? QStringList(c.name) : QStringList()) << c.what;
        QFile::remove(path);
    }
}

TEST_F(AutoCleanScanTest, followsNoLinkButThatToTheRoot) {
    writeFile(inRoot(capture), pictureBytes("png"));
    writeFile(at("outside/") + capture, pictureBytes("png"));
    QFile::link(at("outside/") + capture, inRoot(QStringLiteral("Screenshot from 2026-11-21 10-15-23.png")));
    QFile::link(at("outside"), inRoot(QStringLiteral("elsewhere")));
    QFile::link(at("root"), inRoot(QStringLiteral("round")));
    EXPECT_EQ(found(request()), QStringList(capture));
    EXPECT_EQ(found(request("link")), QStringList(capture));
}

TEST_F(AutoCleanScanTest, entersNoOtherMount) {
    const ScratchMount disk(QStringLiteral("tmpfs"));
    if (!disk.problem().isEmpty())
        GTEST_SKIP() << qPrintable(disk.problem());
    writeFile(at("outside/") + capture, pictureBytes("png"));
    ASSERT_EQ(::mount(QFile::encodeName(at("outside")).constData(),
                      QFile::encodeName(at("root/sub")).constData(), nullptr, MS_BIND, nullptr),
              0);
    ASSERT_TRUE(QFile::exists(at("root/sub/") + capture));
    EXPECT_EQ(found(request()), QStringList());
    ::umount(QFile::encodeName(at("root/sub")).constData());
}

TEST_F(AutoCleanScanTest, tellsOldestFirstUntilItIsCancelled) {
    for (const int number : {2, 3, 1}) {
        const QString name = QStringLiteral("Screenshot from 2026-11-21 10-15-0%1.png").arg(number);
        ASSERT_TRUE(m_files.recordCreationDate(writeFile(inRoot(name), pictureBytes("png")),
                                               m_now - std::chrono::days(40 - number)));
    }
    const QStringList names = found(request());
    ASSERT_EQ(names.size(), 3);
    EXPECT_TRUE(std::ranges::is_sorted(names));

    const auto cancelled = std::make_shared<AutoCleanCancellation>();
    cancelled->cancel();
    AutoCleanRequest asked = request();
    asked.cancellation = cancelled;
    EXPECT_LE(found(asked).size(), 1);
    EXPECT_FALSE(m_scan.candidates(request("missing")));
}

TEST_F(AutoCleanScanTest, knowsWhatLiesSafelyBeneathTheRoot) {
    writeFile(inRoot(capture));
    writeFile(at("root/sub/deeper/") + capture);
    writeFile(at("outside/") + capture);
    QFile::link(inRoot(capture), at("root/linked.png"));
    QFile::link(at("outside"), at("root/out"));
    QFile::link(at("root/sub"), at("root/in"));
    constexpr int anyDepth = 100;
    struct Case {
        QString path;
        const char *root;
        int depth;
        bool isSafe;
    };
    for (const Case &c : {Case{inRoot(capture), "root", 1, true},
                          {at("root/sub/x.png"), "root", 1, false},
                          {at("root/sub/x.png"), "root", 2, true},
                          {at("root/sub/deeper/x.png"), "root", 2, false},
                          {at("root/sub/deeper/x.png"), "root", anyDepth, true},
                          {at("root/../outside/") + capture, "root", anyDepth, false},
                          {at("root/sub/../") + capture, "root", 1, true},
                          {at("outside/") + capture, "root", anyDepth, false},
                          {at("rootless.png"), "root", anyDepth, false},
                          {at("root/linked.png"), "root", 1, false},
                          {at("root/out/") + capture, "root", anyDepth, false},
                          {at("root/in/deeper/") + capture, "root", anyDepth, true},
                          {at("link/") + capture, "root", 1, true},
                          {inRoot(capture), "link", 1, true},
                          {at("root"), "root", anyDepth, false},
                          {m_scratch.path(), "root", anyDepth, false},
                          {at("root/"), "root", anyDepth, false},
                          {at("root/.."), "root", anyDepth, false},
                          {at("root/gone/x.png"), "root", anyDepth, false},
                          {inRoot(capture), "missing", anyDepth, false},
                          {inRoot(capture), "", 2, true}})
        EXPECT_EQ(ScreenshotAutoCleanScan::isSafeDescendant(c.path, at(c.root), c.depth), c.isSafe)
            << qPrintable(c.path) << " in " << c.root << " to " << c.depth;
}
