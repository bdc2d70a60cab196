#include "base/QtScheduler.h"
#include "base/ThreadQueue.h"
#include "editor/documents/EditorDocuments.h"
#include "platform/Platform.h"
#include "platform/linux/InotifyFolderEvents.h"
#include "platform/linux/LinuxBookmarks.h"
#include "screenshots/FolderReader.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "support/Annotations.h"
#include "support/EventLoop.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/SessionServices.h"

#include <QDir>
#include <QTime>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

constexpr int captures = 24;

// A session on queues that are threads, with the folder's own events and in the system's time. Whatever it
// is doing, it can end.
class SessionOnThreads {
public:
    SessionOnThreads() {
        QDir().mkpath(folder);
        EXPECT_TRUE(settings.grantScreenshotsFolder(folder, false, false));
        session.refreshWatcher();
    }

    void writeCaptures() const {
        const QByteArray picture = pictureBytes("png");
        for (int i = 0; i < captures; ++i) {
            const QString time = QTime(10, 0).addSecs(i).toString(QStringLiteral("HHmmss"));
            writeFile(folder + QStringLiteral("/Screenshot_20261121_%1.png").arg(time), picture);
        }
    }
    [[nodiscard]] const std::vector<Shot> &shots() { return session.folderShelf().shots; }
    [[nodiscard]] QStringList files() const { return QDir(folder).entryList(QDir::Files, QDir::Name); }
    [[nodiscard]] QStringList shown() {
        QStringList names;
        for (const Shot &shot : shots())
            names += QFileInfo(shot.location).fileName();
        names.sort();
        return names;
    }
    // Something for each queue to do.
    void askForEverything() {
        session.copyScreenshots(shots());
        session.previewAutoClean(ScreenshotAutoCleanPeriod::oneDay,
                                 [this](const Result<int> &count) { previewed = count.value_or(-1); });
        QStringList paths;
        for (const Shot &shot : shots())
            paths += shot.location;
        session.clipboard.add(session.clipboard.importGeneration(), paths);
        session.clipboard.reconcileFiles();
        session.fileWatcher().scanNow();
    }

private:
    static AppSettings::Functions functions(const LinuxBookmarks &bookmarks) {
        return {.updateSystemFolder = [](const QString &) { return Result<void>(); },
                .thumbnailPreference = {[] { return std::nullopt; }, [](auto) { return Result<void>(); }},
                .createBookmark = [&bookmarks](const QString &file) { return bookmarks.create(file); },
                .resolvePinnedBookmark = [](const QByteArray &) -> Result<PinnedScreenshot::Resolved> {
                    return failure({.domain = Bookmarks::errorDomain, .code = Bookmarks::gone});
                },
                .bookmarkedFile = [](const QByteArray &) { return std::nullopt; }};
    }
    ShelfSessionServices services() {
        return {.scheduler = m_scheduler,
                .uptime = systemUptime,
                .now = systemNow,
                .defaults = parts.defaults,
                .files = parts.files,
                .references = parts.references,
                .volumes = parts.volumes,
                .folderEvents = m_events,
                .workspace = parts.workspace,
                .promises = parts.promises,
                .trash = parts.trash,
                .pasteboard = parts.pasteboard,
                .pictures = parts.pictures,
                .sounds = parts.sounds,
                .folders = m_folders,
                .autoCleanQueue = m_cleanQueue,
                .copyQueue = m_copyQueue,
                .clipboardQueue = m_trayQueue,
                .isCapture = [this](const QString &path) { return parts.detector.isCapture(path); },
                .folderTraversal = [](const QString &) { return true; },
                .autoCleanScan = std::make_shared<ScreenshotAutoCleanScan>(parts.folderFiles, parts.detector,
                                                                           [] { return QString(); })};
    }

public:
    SessionServices parts;
    const QString folder = parts.home.filePath(QStringLiteral("Screenshots"));
    std::optional<int> previewed;

private:
    const StandardFolders m_folders{.trash = {parts.trashFolder},
                                    .temporary = parts.home.filePath(QStringLiteral("temporary"))};
    QtScheduler m_scheduler;
    InotifyFolderEvents m_events{parts.files, m_scheduler};
    ThreadQueue m_scanQueue{QStringLiteral("scan")};
    ThreadQueue m_cleanQueue{QStringLiteral("clean")};
    ThreadQueue m_copyQueue{QStringLiteral("copy")};
    ThreadQueue m_trayQueue{QStringLiteral("tray")};
    const LinuxBookmarks m_bookmarks{parts.files, m_folders};

public:
    AppSettings settings{parts.defaults, FolderPreferences(),
                         ScreenshotFolderAccess(m_bookmarks, parts.files, m_folders), functions(m_bookmarks)};
    ShelfSession session{
        settings, services(),
        std::make_unique<FileWatcherService>(
            FileWatcherService::Services{m_events, m_scheduler, systemUptime, systemNow, m_scanQueue,
                                         parts.detector, [](const QString &) { return true; }},
            std::make_shared<FolderReader>(parts.folderFiles, parts.detector, [] { return QString(); }))};
};

// The editor's documents in the same manner.
class DocumentsOnThreads {
public:
    void open(const QString &name) {
        const QString path = m_home.filePath(name);
        if (!QFile::exists(path))
            writeFile(path, pictureBytes("png", QSize(640, 480)));
        const auto facts = m_platform.fileFacts->facts(path);
        documents.open({.location = path, .identity = ScreenshotFileIdentity::of(path, *facts)},
                       {.available = QSizeF(64, 64)});
    }
    void drawAndSave() {
        ScreenshotEditDocument &edits = documents.current()->edits;
        edits.apply({annotationOfKind(ScreenshotAnnotation::Kind::blur)}, edits.cropRect(),
                    QStringLiteral("Draw"));
        documents.save();
        documents.copyImage();
        documents.checkFile();
    }

private:
    const QTemporaryDir m_home;
    QtScheduler m_scheduler;
    FakePasteboard m_pasteboard;
    Platform m_platform = makeHeadlessPlatform(m_scheduler);

public:
    // Outlives the queue that it works on.
    std::unique_ptr<ScreenshotEditStore> store;

private:
    ThreadQueue m_io{QStringLiteral("io")};
    ThreadQueue m_images{QStringLiteral("images")};
    EditorImageCopies m_copies{m_home.filePath(QStringLiteral("copies")),
                               {m_pasteboard, *m_platform.fileCoordinator, m_io, m_scheduler}};
    ScreenshotEditStore &makeStore() {
        store = std::make_unique<ScreenshotEditStore>(
            m_home.filePath(QStringLiteral("edits")),
            ScreenshotEditServices{.files = *m_platform.fileFacts,
                                   .bookmarks = *m_platform.bookmarks,
                                   .references = *m_platform.fileReferences,
                                   .coordinator = *m_platform.fileCoordinator,
                                   .thumbnails = *m_platform.thumbnailCache,
                                   .queue = m_io,
                                   .scheduler = m_scheduler});
        return *store;
    }

public:
    EditorDocuments documents{
        {makeStore(), m_copies, *m_platform.fileCoordinator, *m_platform.fileFacts, m_io, m_images,
         m_scheduler},
        {.beginSave = [](const Shot &) {},
         .finishWrite = [](const std::optional<QString> &) {},
         .trash = [](const QString &, const ScreenshotFileIdentity &) { return Result<void>(); }}};
};

void takeTurns(int count) {
    (void)eventually([count]() mutable { return count-- == 0; });
}

} // namespace

TEST(Queues, whatIsAskedOfAllOfThemAtOnceIsAnswered) {
    SessionOnThreads running;
    running.writeCaptures();
    ASSERT_TRUE(eventually([&] { return running.shots().size() == captures; }));
    running.askForEverything();
    const std::vector<Shot> half(running.shots().begin(), running.shots().begin() + captures / 2);
    running.session.removeScreenshots(half);
    EXPECT_TRUE(QFile::rename(running.shots().back().location,
                              running.folder + QStringLiteral("/Screenshot_20261121_120000.png")));
    EXPECT_TRUE(eventually([&] {
        return running.files().size() == captures / 2 && running.shown() == running.files() &&
               running.previewed && running.parts.pasteboard.items.size() > 0 &&
               running.session.clipboard.entries().size() == captures / 2;
    }));
    EXPECT_EQ(running.previewed, 0);
}

TEST(Queues, mayEndWithWhateverIsUnderWay) {
    for (int turns = 0; turns < 12; ++turns) {
        SessionOnThreads running;
        running.writeCaptures();
        running.askForEverything();
        takeTurns(turns);
        running.askForEverything();
    }
}

TEST(Queues, savesGoOnWhileOtherDocumentsAreOpened) {
    DocumentsOnThreads editor;
    const auto isShown = [&](const QString &name) {
        return eventually([&] {
            return editor.documents.current() && editor.documents.name() == name &&
                   editor.documents.image().width() == 640;
        });
    };
    for (const QString &name : {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("a")}) {
        editor.open(name + QStringLiteral(".png"));
        ASSERT_TRUE(isShown(name));
        editor.drawAndSave();
    }
    EXPECT_TRUE(eventually([&] { return editor.documents.canClose(); }));
    EXPECT_EQ(editor.store->badges().size(), 2);
}

TEST(Queues, theEditorMayEndWithWhateverIsUnderWay) {
    for (int turns = 0; turns < 6; ++turns) {
        DocumentsOnThreads editor;
        editor.open(QStringLiteral("a.png"));
        ASSERT_TRUE(eventually([&] { return editor.documents.current() != nullptr; }));
        editor.drawAndSave();
        takeTurns(turns);
        editor.open(QStringLiteral("b.png"));
    }
}
