#include "updates/AppUpdater.h"

#include "HttpsServer.h"
#include "Publisher.h"
#include "support/EventLoop.h"
#include "support/FakeWorkspace.h"
#include "support/Files.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"
#include "support/MemoryUserDefaults.h"
#include "support/ScratchMount.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

using namespace tembra;
using namespace std::chrono_literals;
using Kind = SettingsUpdateState::Kind;

namespace {

const QString automaticKey = QStringLiteral("SUEnableAutomaticChecks");
const QString feedPath = QStringLiteral("/updates/feed.xml");
const QString signaturePath = QStringLiteral("/updates/feed.xml.sig");
const QString filePath = QStringLiteral("/files/tembra_2.0_amd64.deb");
constexpr Instant startDate(1'800'000'000s);

// An updater of version 1.0 before a server that offers 2.0; time and background work are the test's.
class AppUpdaterTest : public testing::Test {
protected:
    static void SetUpTestSuite() { s_server = std::make_unique<HttpsServer>(); }
    static void TearDownTestSuite() { s_server.reset(); }

    AppUpdaterTest() {
        server.answers.clear();
        server.requests.clear();
        server.answers[filePath] = {.body = file};
        publish(feed());
    }

    [[nodiscard]] QByteArray feed(const QByteArray &version = "2.0") const {
        return R"(<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel><item>)"
               "<sparkle:version>" +
               version +
               "</sparkle:version><sparkle:releaseNotesLink>https://example.org/notes"
               R"(</sparkle:releaseNotesLink><enclosure sparkle:os="linux" url=")" +
               server.url(filePath).toUtf8() + R"(" length=")" + QByteArray::number(file.size()) +
               R"(" sparkle:edSignature=")" + publisher.signature(file) + R"("/></item></channel></rss>)";
    }
    void publish(const QByteArray &feed) const {
        server.answers[feedPath] = {.body = feed};
        server.answers[signaturePath] = {.body = publisher.signature(feed) + '\n'};
    }

    AppUpdater &start() {
        updater = std::make_unique<AppUpdater>(
            AppUpdater::Services{defaults, scheduler, scheduler.wallClock(startDate), workspace, queue},
            configuration);
        updater->start();
        return *updater;
    }
    // Until the session that is in progress has ended.
    void settle() {
        // Both ends of the connection wait in this loop, so it must not sleep between their turns.
        QTimer deadline;
        deadline.setSingleShot(true);
        deadline.start(20s);
        while (true) {
            queue.runAll();
            scheduler.settle();
            if (updater->canCheck())
                return;
            ASSERT_TRUE(deadline.isActive()) << updateStateName(updater->state().kind).toStdString();
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
    void check() {
        updater->checkForUpdates();
        settle();
    }
    void download() {
        updater->download();
        settle();
    }
    [[nodiscard]] QString path(const QString &name = {}) const {
        return cache.filePath(QStringLiteral("cache/updates")) + (name.isEmpty() ? name : u'/' + name);
    }
    [[nodiscard]] QStringList kept() const { return QDir(path()).entryList(QDir::Files | QDir::Hidden); }

    static inline std::unique_ptr<HttpsServer> s_server;
    HttpsServer &server = *s_server;
    const Publisher publisher;
    const QByteArray file = QByteArray("an update\n").repeated(100'000);
    QTemporaryDir cache;
    ManualScheduler scheduler;
    ManualQueue queue;
    MemoryUserDefaults defaults;
    FakeWorkspace workspace;
    UpdateConfiguration configuration{.feedUrl = server.url(feedPath),
                                      .publicKey = QString::fromLatin1(publisher.publicKey()),
                                      .currentVersion = QStringLiteral("1.0"),
                                      .cacheFolder = cache.filePath(QStringLiteral("cache")),
                                      .architecture = QStringLiteral("x86_64"),
                                      .systemVersion = QStringLiteral("6.1"),
                                      .extraAuthorities = server.certificate()};
    std::unique_ptr<AppUpdater> updater;
};

QByteArray withFlippedByte(QByteArray bytes) {
    bytes[bytes.size() / 2] = char(bytes[bytes.size() / 2] ^ 1);
    return bytes;
}

} // namespace

TEST_F(AppUpdaterTest, aVerifiedUpdateIsHandedToTheDesktop) {
    start();
    check();
    EXPECT_EQ(updater->state(),
              (SettingsUpdateState{.kind = Kind::available,
                                   .version = QStringLiteral("2.0"),
                                   .releaseNotes = QUrl(QStringLiteral("https://example.org/notes")),
                                   .lastCheck = startDate}));
    EXPECT_FALSE(server.requests.contains(filePath)) << "nothing is fetched unasked";

    double progress = 0;
    QObject::connect(updater.get(), &AppUpdater::changed, [&] {
        EXPECT_GE(updater->state().progress, updater->state().kind == Kind::downloading ? progress : 0);
        progress = std::max(progress, updater->state().progress);
    });
    download();
    ASSERT_EQ(updater->state().kind, Kind::ready);
    EXPECT_GT(progress, 0.9);
    ASSERT_EQ(kept(), QStringList(QStringLiteral("tembra_2.0_amd64.deb")));
    EXPECT_EQ(QFile(path()).permissions() & 0x0077, 0) << "for nobody else";
    EXPECT_TRUE(workspace.opened.isEmpty());

    check();
    EXPECT_EQ(updater->state().kind, Kind::ready) << "what is there is not fetched again";
    updater->install();
    settle();
    EXPECT_EQ(workspace.opened, QStringList(path(QStringLiteral("tembra_2.0_amd64.deb"))));
    EXPECT_EQ(updater->state().kind, Kind::ready);
}

TEST_F(AppUpdaterTest, whatChangedOnTheDiskIsNotOpened) {
    start();
    check();
    download();
    const QString update = path(kept().constFirst());
    QFile(update).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    writeFile(update, withFlippedByte(file));
    updater->install();
    settle();
    EXPECT_EQ(updater->state().kind, Kind::failed);
    EXPECT_TRUE(workspace.opened.isEmpty());
    EXPECT_TRUE(kept().isEmpty());

    download();
    EXPECT_EQ(updater->state().kind, Kind::ready) << "it can be fetched again";
    workspace.openRefusal = failure({{}, 1, QStringLiteral("No program opens it."), {}});
    updater->install();
    settle();
    EXPECT_EQ(updater->state().failure, QStringLiteral("No program opens it."));
}

TEST_F(AppUpdaterTest, onlyTheFeedOfThePublisherIsUsed) {
    const Publisher other;
    const struct {
        const char *name;
        std::function<void()> spoil;
        Kind kind;
        const char *sentence = "";
    } cases[]{
        {"as published", [] {}, Kind::available, "Tembra 2.0 is available."},
        {"moved to another place",
         [&] {
             server.answers[QStringLiteral("/elsewhere")] = server.answers[feedPath];
             server.answers[feedPath] = {.status = 302, .location = "/elsewhere"};
         },
         Kind::available, "Tembra 2.0 is available."},
        {"the same version", [&] { publish(feed("1.0")); }, Kind::upToDate, "Tembra is up to date."},
        {"an older version", [&] { publish(feed("0.9")); }, Kind::upToDate, "Tembra is up to date."},
        {"no signature", [&] { server.answers.erase(signaturePath); }, Kind::failed, "answer 404"},
        {"signed by another",
         [&] { server.answers[signaturePath].body = other.signature(server.answers[feedPath].body); },
         Kind::failed, "not signed"},
        {"no signature but something", [&] { server.answers[signaturePath].body = "?"; }, Kind::failed,
         "not signed"},
        {"a flipped byte", [&] { server.answers[feedPath].body = withFlippedByte(feed()); }, Kind::failed,
         "not signed"},
        {"signed, but hostile", [&] { publish("<!DOCTYPE x [<!ENTITY a 'b'>]><rss>&a;</rss>"); },
         Kind::failed, "cannot be read"},
        {"not there", [&] { server.answers.erase(feedPath); }, Kind::failed, "answer 404"},
        {"sent away from HTTPS",
         [&] {
             server.answers[feedPath] = {.status = 301,
                                         .location = server.url(filePath).toUtf8().replace("https", "http")};
         },
         Kind::failed, "not secure"},
        {"sent in a circle",
         [&] { server.answers[feedPath] = {.status = 302, .location = feedPath.toUtf8()}; }, Kind::failed,
         "from one place to another"},
        {"endless", [&] { publish(feed() + QByteArray(Appcast::mostBytes, ' ')); }, Kind::failed,
         "more than it announced"},
    };
    for (const auto &c : cases) {
        publish(feed());
        c.spoil();
        start();
        check();
        EXPECT_EQ(updater->state().kind, c.kind) << c.name;
        EXPECT_TRUE(updateText(updater->state()).contains(QString::fromUtf8(c.sentence)))
            << c.name << ": " << updateText(updater->state()).toStdString();
    }
}

TEST_F(AppUpdaterTest, aServerThatNobodyVouchesForIsNotTrusted) {
    const UpdateConfiguration trusted = configuration;
    configuration.extraAuthorities.clear();
    start();
    check();
    EXPECT_TRUE(updater->state().failure.contains(QStringLiteral("cannot be trusted")));

    configuration = trusted;
    // The same server by an address that its certificate does not name.
    configuration.feedUrl = server.url(feedPath, QStringLiteral("127.0.0.2"));
    start();
    check();
    EXPECT_TRUE(updater->state().failure.contains(QStringLiteral("cannot be trusted"))) << "another name";
    EXPECT_TRUE(server.requests.isEmpty());
}

TEST_F(AppUpdaterTest, whatIsNotTheAnnouncedFileIsDeleted) {
    const struct {
        const char *name;
        HttpsServer::Answer answer;
        const char *sentence;
    } cases[]{
        {"a flipped byte", {.body = withFlippedByte(file)}, "not signed"},
        {"longer", {.body = file + "x"}, "more than it announced"},
        {"longer, without a word", {.body = file + "x", .announced = -1}, "more than it announced"},
        {"shorter", {.body = file.chopped(1)}, "not complete"},
        {"cut off", {.body = file.chopped(1), .announced = file.size()}, "connection"},
        {"gone", {.status = 410}, "answer 410"},
        {"sent away from HTTPS", {.status = 307, .location = "http://127.0.0.1/x"}, "not secure"},
    };
    start();
    check();
    for (const auto &c : cases) {
        server.answers[filePath] = c.answer;
        download();
        EXPECT_EQ(updater->state().kind, Kind::failed) << c.name;
        EXPECT_TRUE(updater->state().failure.contains(QString::fromUtf8(c.sentence)))
            << c.name << ": " << updater->state().failure.toStdString();
        EXPECT_TRUE(kept().isEmpty()) << c.name;
    }
}

TEST_F(AppUpdaterTest, anUpdateThatCannotBeSavedIsFetchedAgain) {
    const ScratchMount disk(QStringLiteral("ext4"));
    if (!disk.problem().isEmpty())
        GTEST_SKIP() << qPrintable(disk.problem());
    configuration.cacheFolder = disk.path() + QStringLiteral("/cache");
    start();
    check();
    const auto expectRefusal = [this] {
        download();
        EXPECT_EQ(updater->state().failure, QStringLiteral("The update cannot be saved on this disk."));
    };
    QFile filler(configuration.cacheFolder);
    ASSERT_TRUE(filler.open(QIODevice::WriteOnly));
    expectRefusal();
    // Now where the folder is to be made there is room for it, and for a part of the update.
    ASSERT_TRUE(filler.rename(disk.path() + QStringLiteral("/filler")) &&
                filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) > 0) {
    }
    ASSERT_TRUE(filler.resize(filler.size() - file.size() / 2));
    expectRefusal();
    const QDir folder(configuration.cacheFolder + QStringLiteral("/updates"));
    EXPECT_TRUE(folder.exists() && folder.entryList(QDir::Files | QDir::Hidden).isEmpty());
    ASSERT_TRUE(filler.remove());
    download();
    EXPECT_EQ(updater->state().kind, Kind::ready);
}

TEST_F(AppUpdaterTest, emptiesItsFolderAndNotWhatALinkInItsPlaceLeadsTo) {
    const QString mine = cache.filePath(QStringLiteral("mine"));
    ASSERT_TRUE(QDir().mkdir(mine) && QDir().mkdir(configuration.cacheFolder) && QFile::link(mine, path()));
    writeFile(mine + QStringLiteral("/letter"));
    start();
    check();
    download();
    EXPECT_EQ(updater->state().kind, Kind::ready);
    EXPECT_EQ(QDir(mine).entryList(QDir::Files | QDir::Hidden), QStringList(QStringLiteral("letter")));
}

TEST_F(AppUpdaterTest, anOfferOutlastsWhatFailsUnasked) {
    defaults.setBoolean(automaticKey, true);
    start();
    check();
    server.answers[feedPath] = {.status = 503};
    const auto checkUnaskedAfter = [this](std::chrono::hours pause) {
        server.requests.clear();
        scheduler.advance(pause);
        settle();
        EXPECT_EQ(server.requests.count(feedPath), 1);
    };
    checkUnaskedAfter(24h);
    EXPECT_EQ(updater->state().kind, Kind::available);
    publish(feed());
    download();
    // What is due while an update is looked at waits for another day.
    updater->install();
    server.requests.clear();
    scheduler.advance(24h);
    EXPECT_TRUE(server.requests.isEmpty());
    settle();
    server.answers[feedPath] = {.status = 503};
    checkUnaskedAfter(1h);
    EXPECT_EQ(updater->state().kind, Kind::ready);
    configuration.feedUrl = QStringLiteral("https://127.0.0.1:1/");
    start();
    check();
    EXPECT_TRUE(updater->state().failure.startsWith(QStringLiteral("The update server cannot be reached")));
}

TEST_F(AppUpdaterTest, whatWasFetchedIsHandedOverOnlyWhileItIsThereAndTheNewest) {
    start();
    check();
    download();
    ASSERT_TRUE(QFile::remove(path(kept().constFirst())));
    updater->install();
    settle();
    EXPECT_EQ(updater->state().failure, QStringLiteral("The update cannot be read."));
    download();
    ASSERT_TRUE(QFile::remove(path(kept().constFirst())));
    check();
    EXPECT_EQ(updater->state().kind, Kind::available);
    download();
    publish(feed("3.0"));
    check();
    EXPECT_EQ(updater->state().kind, Kind::available);
    EXPECT_EQ(updater->state().version, QStringLiteral("3.0"));
    updater->install();
    settle();
    EXPECT_TRUE(workspace.opened.isEmpty());
}

TEST_F(AppUpdaterTest, aServerThatFallsSilentIsGivenUp) {
    start();
    for (const bool beforeTheHead : {true, false}) {
        publish(feed());
        server.answers[feedPath].hangs = true;
        server.answers[feedPath].announced = 5000;
        if (beforeTheHead)
            server.answers[feedPath].body.clear();
        server.requests.clear();
        updater->checkForUpdates();
        ASSERT_TRUE(eventually([this] { return !server.requests.isEmpty(); }));
        EXPECT_FALSE(updater->canCheck());
        scheduler.advance(61s);
        EXPECT_EQ(updater->state().failure, QStringLiteral("The update server did not answer in time."));
    }

    publish(feed());
    check();
    server.answers[filePath] = {.body = file.first(100), .announced = file.size(), .hangs = true};
    updater->download();
    ASSERT_TRUE(eventually([this] { return server.requests.contains(filePath); }));
    EXPECT_EQ(kept().size(), 1);
    scheduler.advance(31s);
    EXPECT_EQ(updater->state().kind, Kind::failed);
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(AppUpdaterTest, aSessionInProgressIsNotDisturbed) {
    start();
    updater->checkForUpdates();
    EXPECT_EQ(updater->state().kind, Kind::checking);
    EXPECT_FALSE(updater->canCheck());
    check();
    EXPECT_EQ(server.requests, (QStringList{feedPath, signaturePath}));
    updater->download();
    updater->download();
    updater->checkForUpdates();
    updater->install();
    EXPECT_EQ(updater->state().kind, Kind::downloading);
    updater.reset();
    EXPECT_TRUE(kept().isEmpty()) << "the end of the program leaves nothing half";
}

TEST_F(AppUpdaterTest, whatCannotStartChecksNothing) {
    const UpdateConfiguration whole = configuration;
    const struct {
        const char *name;
        std::function<void()> spoil;
        Kind kind;
    } cases[]{
        {"nothing was set",
         [&] {
             configuration.feedUrl.clear();
             configuration.publicKey.clear();
         },
         Kind::notConfigured},
        {"no key", [&] { configuration.publicKey.clear(); }, Kind::failed},
        {"half a key", [&] { configuration.publicKey.chop(8); }, Kind::failed},
        {"plain HTTP",
         [&] { configuration.feedUrl.replace(QStringLiteral("https"), QStringLiteral("http")); },
         Kind::failed},
        {"no address", [&] { configuration.feedUrl = QStringLiteral("updates"); }, Kind::failed},
        {"the system updates", [&] { configuration.isPackageManaged = true; }, Kind::managedBySystem},
    };
    defaults.setBoolean(automaticKey, true);
    for (const auto &c : cases) {
        configuration = whole;
        c.spoil();
        start();
        updater->checkForUpdates();
        scheduler.advance(48h);
        EXPECT_EQ(updater->state().kind, c.kind) << c.name;
        EXPECT_FALSE(updateText(updater->state()).isEmpty()) << c.name;
        EXPECT_FALSE(updater->canCheck()) << c.name;
    }
    EXPECT_TRUE(server.requests.isEmpty());
    EXPECT_EQ(scheduler.pendingCount(), 0);
}

TEST_F(AppUpdaterTest, checksByItselfOnceADayAcrossRestarts) {
    defaults.setBoolean(automaticKey, true);
    const auto feeds = [this] { return server.requests.count(feedPath); };
    start();
    scheduler.advance(21s);
    settle();
    EXPECT_EQ(feeds(), 1);
    EXPECT_EQ(updater->state().kind, Kind::available);
    scheduler.advance(12h);
    start();
    workspace.raise(Workspace::Event::didWake);
    scheduler.advance(11h);
    EXPECT_EQ(feeds(), 1);
    scheduler.advance(1h);
    settle();
    EXPECT_EQ(feeds(), 2);
    updater->setAutomaticChecks(false);
    scheduler.advance(72h);
    EXPECT_EQ(feeds(), 2);
    updater->setAutomaticChecks(true);
    scheduler.advance(21s);
    settle();
    EXPECT_EQ(feeds(), 3);
}

TEST_F(AppUpdaterTest, theToolSignsWhatTheUpdaterTakes) {
    const auto run = [](const QStringList &arguments) {
        QProcess tool;
        tool.start(QStringLiteral(TEMBRA_SIGN), arguments);
        tool.waitForFinished();
        return tool.exitCode() == 0 ? tool.readAllStandardOutput().trimmed() : QByteArray();
    };
    const QString key = cache.filePath(QStringLiteral("key"));
    const QString list = writeFile(cache.filePath(QStringLiteral("feed.xml")), feed());
    configuration.publicKey = QString::fromLatin1(run({QStringLiteral("keygen"), key}));
    EXPECT_TRUE(run({QStringLiteral("keygen"), key}).isEmpty()) << "a key is never written over";
    server.answers[signaturePath].body = run({QStringLiteral("sign"), key, list});
    start();
    check();
    EXPECT_EQ(updater->state().kind, Kind::available) << updater->state().failure.toStdString();
}

TEST_F(AppUpdaterTest, aListOlderThanOneSeenBeforeIsRefused) {
    const auto dated = [this](const char *date, const char *version) {
        publish(feed(version).replace("<channel>", QByteArray("<channel><pubDate>") + date + "</pubDate>"));
    };
    dated("Sat, 21 Nov 2026 10:00:00 +0000", "1.0");
    start();
    check();
    EXPECT_EQ(updater->state().kind, Kind::upToDate);
    dated("Fri, 20 Nov 2026 10:00:00 +0000", "2.0");
    check();
    EXPECT_EQ(updater->state().kind, Kind::failed);
    publish(feed());
    check();
    EXPECT_EQ(updater->state().kind, Kind::failed) << "nor one that does not say how old it is";
    dated("Sun, 22 Nov 2026 10:00:00 +0000", "2.0");
    check();
    EXPECT_EQ(updater->state().kind, Kind::available);
}
