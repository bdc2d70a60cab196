#include "session/AutoCleanFixture.h"

#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <map>
#include <random>
#include <sys/stat.h>

using namespace tembra;
using namespace std::chrono_literals;

namespace {

constexpr int folderCount = 2000;
constexpr std::chrono::days period{30};
constexpr std::chrono::days longAgo{40};

enum class Kind { named, marked, signedByTool, recording, photo, unmarked, torn, text, hidden, count };
enum class Place { root, subfolder, deeper, hiddenFolder, otherRoot, count };
enum class Age { old, young, atCutoff, count };
enum class Protection {
    none,
    pinned,
    pinnedThenRenamed,
    restored,
    restoredThenRenamed,
    restoredLongAgo,
    count
};
// What happens to it after it was scanned.
enum class Event { none, replaced, swappedForLink, touched, pinned, removed, unmarked, count };

// A file as it was made, and what was done to it.
struct Made {
    Kind kind;
    Place place;
    Age age;
    bool isUnsettled;
    Protection protection;
    Event event;
    QString path;
    ino_t inode = 0;
};

ino_t inodeOf(const QString &path) {
    struct stat facts {};
    return ::lstat(QFile::encodeName(path).constData(), &facts) == 0 ? facts.st_ino : 0;
}

class AutoCleanOracleTest : public AutoCleanFixture {
protected:
    void SetUp() override { QDir().mkpath(path("Trash")); }

    // A choice that is the first one more often than not.
    template <class Choice>
    Choice pick(int percentOfFirst) {
        if (number(100) < percentOfFirst)
            return Choice{};
        return static_cast<Choice>(number(static_cast<int>(Choice::count)));
    }
    int number(int below) { return std::uniform_int_distribution(0, below - 1)(m_random); }

    // By the rules alone, in the words they are written in.
    [[nodiscard]] bool mustGo(const Made &file) const {
        const bool isCapture = file.kind == Kind::named || file.kind == Kind::marked ||
                               file.kind == Kind::signedByTool || file.kind == Kind::recording;
        const bool isInFolder =
            file.place == Place::root ||
            (parts.includesSubfolders && (file.place == Place::subfolder || file.place == Place::deeper));
        const bool isSpared =
            file.protection != Protection::none && file.protection != Protection::restoredLongAgo;
        return isCapture && isInFolder && file.age == Age::old && !file.isUnsettled && !isSpared &&
               file.event == Event::none;
    }

    QString nameOf(Kind kind) {
        const QString date = QDateTime(QDate(2020, 1, 1), QTime(0, 0), Qt::UTC)
                                 .addSecs(++m_serial)
                                 .toString(QStringLiteral("yyyy-MM-dd hh-mm-ss"));
        switch (kind) {
        case Kind::recording:
            return QStringLiteral("Screencast from %1.webm").arg(date);
        case Kind::marked:
        case Kind::signedByTool:
        case Kind::photo:
            return QStringLiteral("IMG %1.png").arg(date);
        case Kind::text:
            return QStringLiteral("Screenshot from %1.txt").arg(date);
        case Kind::hidden:
            return QStringLiteral(".Screenshot from %1.png").arg(date);
        default:
            return QStringLiteral("Screenshot from %1.png").arg(date);
        }
    }

    [[nodiscard]] QString folderOf(Place place) const {
        switch (place) {
        case Place::subfolder:
            return m_root + QStringLiteral("/sub/");
        case Place::deeper:
            return m_root + QStringLiteral("/sub/deeper/");
        case Place::hiddenFolder:
            return m_root + QStringLiteral("/.hidden/");
        case Place::otherRoot:
            return m_other + u'/';
        default:
            return m_root + u'/';
        }
    }

    void write(const Made &file) {
        const QByteArray &png = file.kind == Kind::signedByTool ? m_signedPng : m_png;
        writeFile(file.path, file.kind == Kind::torn ? png.chopped(20) : png);
        if (file.kind == Kind::marked || file.kind == Kind::unmarked) {
            EXPECT_TRUE(parts.markers.setMarker(file.path, file.kind == Kind::marked));
        }
        if (file.age != Age::young) {
            const auto age = file.age == Age::old ? longAgo : period;
            EXPECT_TRUE(m_files.recordCreationDate(file.path, m_now - age));
        }
        if (file.isUnsettled)
            setModified(file.path, m_now - 30s);
    }

    void protect(Made &file) {
        switch (file.protection) {
        case Protection::none:
            return;
        case Protection::pinned:
        case Protection::pinnedThenRenamed:
            EXPECT_TRUE(m_settings->setScreenshotsPinned({file.path}, true));
            break;
        case Protection::restoredLongAgo:
            m_settings->protectRestoredScreenshots({file.path}, m_now - 31 * 24h);
            break;
        default:
            m_settings->protectRestoredScreenshots({file.path}, m_now);
        }
        if (file.protection == Protection::pinnedThenRenamed ||
            file.protection == Protection::restoredThenRenamed) {
            const QString renamed = folderOf(file.place) + nameOf(file.kind);
            EXPECT_TRUE(QFile::rename(file.path, renamed));
            file.path = renamed;
        }
    }

    Made make() {
        Made file{.kind = pick<Kind>(40),
                  .place = pick<Place>(40),
                  .age = pick<Age>(60),
                  .isUnsettled = number(10) == 0,
                  .protection = pick<Protection>(60),
                  .event = pick<Event>(70)};
        file.path = folderOf(file.place) + nameOf(file.kind);
        write(file);
        protect(file);
        file.inode = inodeOf(file.path);
        return file;
    }

    // What somebody else does meanwhile.
    void happen(Made &file) {
        switch (file.event) {
        case Event::replaced: {
            const QString other = m_scratch + QStringLiteral("/.other.png");
            Made replacement = file;
            replacement.path = other;
            write(replacement);
            file.inode = inodeOf(other);
            EXPECT_EQ(
                ::rename(QFile::encodeName(other).constData(), QFile::encodeName(file.path).constData()), 0);
            return;
        }
        case Event::swappedForLink: {
            // The very file, but out of the root and reached through a link.
            const QString away = m_scratch + u'/' + QFileInfo(file.path).fileName();
            EXPECT_TRUE(QFile::rename(file.path, away) && QFile::link(away, file.path));
            file.path = away;
            return;
        }
        case Event::touched:
            return setModified(file.path, m_now);
        case Event::pinned:
            EXPECT_TRUE(m_settings->setScreenshotsPinned({file.path}, true));
            return;
        case Event::removed:
            EXPECT_TRUE(QFile::remove(file.path));
            return;
        case Event::unmarked:
            EXPECT_TRUE(parts.markers.setMarker(file.path, false));
            return;
        default:
            return;
        }
    }

    // Sometimes a whole folder is taken away and a link leads to it.
    void swapSubfolder(std::vector<Made> &files) {
        const QString moved = m_other + QStringLiteral("/moved");
        if (number(8) != 0 || !QDir().rename(m_root + QStringLiteral("/sub"), moved) ||
            !QFile::link(moved, m_root + QStringLiteral("/sub")))
            return;
        for (Made &file : files) {
            if (file.place != Place::subfolder && file.place != Place::deeper)
                continue;
            if (file.event != Event::swappedForLink)
                file.path.replace(m_root + QStringLiteral("/sub"), moved);
            if (file.event == Event::none)
                file.event = Event::swappedForLink;
        }
    }

    void furnish(int folder) {
        m_scratch = path("folders") + u'/' + QString::number(folder);
        m_root = m_scratch + QStringLiteral("/shots");
        m_other = m_scratch + QStringLiteral("/shots other");
        for (const auto *name : {"/shots/sub/deeper", "/shots/.hidden", "/shots other"})
            QDir().mkpath(m_scratch + QString::fromUtf8(name));
        QString given = m_root;
        if (number(4) == 0) {
            given = m_scratch + QStringLiteral("/given");
            QFile::link(m_root, given);
        }
        parts.includesSubfolders = number(4) != 0;
        openFolder(given, Period::thirtyDays);
    }

    // Where each file is that is in the folders or in the Trash.
    [[nodiscard]] std::multimap<ino_t, QString> census() const {
        std::multimap<ino_t, QString> found;
        for (const QString &top : {m_scratch, parts.trashFolder + QStringLiteral("/files")}) {
            QDirIterator files(top, QDir::Files | QDir::Hidden | QDir::NoSymLinks,
                               QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QString file = files.next();
                found.emplace(inodeOf(file), file);
            }
        }
        return found;
    }

    void check(const std::vector<Made> &files, int folder) {
        const auto found = census();
        qsizetype expectedInTrash = 0;
        for (const Made &file : files) {
            const auto places = found.count(file.inode);
            const bool goes = mustGo(file);
            expectedInTrash += goes ? 1 : 0;
            ASSERT_EQ(places, file.event == Event::removed ? 0U : 1U) << qPrintable(file.path);
            if (places == 0)
                continue;
            const QString where = found.find(file.inode)->second;
            ASSERT_EQ(where.startsWith(parts.trashFolder), goes)
                << "folder " << folder << ", " << qPrintable(file.path) << ", kind "
                << static_cast<int>(file.kind) << ", age " << static_cast<int>(file.age) << ", protection "
                << static_cast<int>(file.protection) << ", event " << static_cast<int>(file.event);
            ASSERT_TRUE(goes || where == file.path) << qPrintable(where) << " was " << qPrintable(file.path);
        }
        ASSERT_EQ(trashed().size(), expectedInTrash);
        m_moved += static_cast<int>(expectedInTrash);
    }

    std::mt19937 m_random{20261121};
    int m_serial = 0;
    int m_moved = 0;
    Instant m_now{};
    QString m_scratch;
    QString m_root;
    QString m_other;
    const QByteArray m_png = pictureBytes("png", {4, 3});
    // The text "Software" ahead of the picture; nobody looks at the checksum.
    const QByteArray m_signedPng =
        QByteArray(m_png).insert(33, QByteArray("\0\0\0\x19"
                                                "tEXtSoftware\0gnome-screenshot\0\0\0\0",
                                                37));
};

} // namespace

TEST_F(AutoCleanOracleTest, movesWhatTheRulesSayAndNothingElse) {
    int fileCount = 0;
    for (int folder = 0; folder < folderCount && !HasFatalFailure(); ++folder) {
        furnish(folder);
        m_now = parts.now();
        std::vector<Made> files;
        for (int count = 2 + number(7); count > 0; --count)
            files.push_back(make());
        QFile::link(m_other, m_root + QStringLiteral("/linked"));
        fileCount += static_cast<int>(files.size());
        if (number(4) == 0) {
            // The shelf may know the files or not.
            session->isRunning = false;
            session->refreshWatcher();
            parts.scheduler.advance(1s);
            queue.runAll();
            parts.scheduler.settle();
            session->isRunning = true;
        }

        session->runAutoCleanCheck(m_now, false);
        parts.autoCleanQueue.runAll();
        // Removed last: no file is made then that could get the number of one that is gone.
        std::ranges::stable_partition(files, [](const Made &file) { return file.event != Event::removed; });
        std::ranges::for_each(files, [this](Made &file) { happen(file); });
        swapSubfolder(files);
        parts.scheduler.settle();

        check(files, folder);
        QDir(parts.trashFolder + QStringLiteral("/files")).removeRecursively();
        QDir(parts.trashFolder + QStringLiteral("/info")).removeRecursively();
        QDir(m_scratch).removeRecursively();
    }
    RecordProperty("folders", folderCount);
    RecordProperty("files", fileCount);
    RecordProperty("moved", m_moved);
    EXPECT_GT(m_moved, fileCount / 20);
}
