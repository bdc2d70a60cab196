#include "platform/TrashFixture.h"
#include "support/LostCalls.h"

#include <QDirIterator>

#include <algorithm>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace tembra;

namespace {

// Three files, two of which share their name, on their way to the Trash or back, and a process that is killed
// on it.
class Batch {
public:
    explicit Batch(bool restores) : m_restores(restores) {
        QDir().mkpath(path("shots/sub"));
        for (const char *name : {"shots/a.png", "shots/sub/a.png", "shots/sub/b.png"})
            m_originals.append(writeFile(path(name), name));
        if (!restores)
            return;
        LinuxTrash trash(m_reader, path("Trash"));
        for (const QString &original : m_originals)
            m_trashed.append(trash.moveToTrash(original, m_guard).value_or(QString()));
        QDir().rmdir(path("shots/sub"));
    }

    // Moves what is not yet moved; gives whether that worked.
    bool run(const TrashSteps &onStep) const {
        LinuxTrash trash(m_reader, path("Trash"), systemNow, onStep);
        bool works = true;
        for (qsizetype i = 0; i < m_originals.size(); ++i) {
            if (m_restores && QFile::exists(m_trashed.at(i)))
                works = trash.restore(m_trashed.at(i), m_originals.at(i), m_guard) && works;
            else if (!m_restores && QFile::exists(m_originals.at(i)))
                works = trash.moveToTrash(m_originals.at(i), m_guard) && works;
        }
        return works;
    }
    // In a process that is killed at that step; gives whether it was.
    [[nodiscard]] bool isKilledAt(int step) const {
        const pid_t child = ::fork();
        if (child == 0) {
            int steps = 0;
            const bool works = run([&](const char *) {
                if (++steps == step)
                    ::kill(::getpid(), SIGKILL);
            });
            ::_exit(works ? 0 : 1);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
        return WIFSIGNALED(status);
    }
    // The bytes of every file in either place. Each file holds the name it had.
    [[nodiscard]] QByteArray contents(const char *where) const {
        QByteArrayList found;
        QDirIterator files(path(where), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.fileName().endsWith(QStringLiteral(".trashinfo")) && file.open(QIODevice::ReadOnly))
                found.append(file.readAll());
        }
        std::ranges::sort(found);
        return found.join(' ');
    }

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    const bool m_restores;
    QTemporaryDir m_folder;
    const LinuxFileFactsReader m_reader;
    const Trash::Guard m_guard{.root = path("shots")};
    QStringList m_originals;
    QStringList m_trashed;
};

using LinuxTrashWithoutNewerCalls = TrashFixture;

class LinuxTrashKilled : public testing::TestWithParam<bool> {};

INSTANTIATE_TEST_SUITE_P(On, LinuxTrashKilled, testing::Bool(),
                         [](const auto &restores) { return restores.param ? "TheWayBack" : "TheWayThere"; });

} // namespace

TEST_P(LinuxTrashKilled, leavesEveryFileInOnePlaceAndGoesOnAfterwards) {
    const QByteArray all = "shots/a.png shots/sub/a.png shots/sub/b.png";
    int steps = 0;
    bool isKilled = true;
    while (isKilled) {
        const Batch batch(GetParam());
        isKilled = batch.isKilledAt(++steps);
        EXPECT_EQ(batch.contents("."), all) << "killed at step " << steps;
        EXPECT_TRUE(batch.run([](const char *) {})) << "killed at step " << steps;
        EXPECT_EQ(batch.contents(GetParam() ? "shots" : "Trash/files"), all) << "killed at step " << steps;
    }
    EXPECT_GT(steps, 12);
}

TEST_F(LinuxTrashWithoutNewerCalls, stillReplacesNothingAndFollowsNoLink) {
    const auto isRight = [this] {
        if (!loseNewerCalls())
            return false;
        const QString file = writeFile(path("shots/sub/a.png"), "first");
        QFile::link(path("shots/sub"), path("shots/link"));
        const bool isRefused =
            codeOf(m_trash.moveToTrash(path("shots/link/a.png"), guard())) == Trash::outsideRoot;
        const auto first = m_trash.moveToTrash(file, guard());
        QFile::remove(path("data/Trash/info/a.png.trashinfo"));
        const auto second = m_trash.moveToTrash(writeFile(file, "second"), guard());
        writeFile(file, "third");
        return isRefused && first && second && contentOf(*first) == "first" &&
               contentOf(*second) == "second" &&
               codeOf(m_trash.restore(*first, file, guard())) == Trash::occupied && QFile::remove(file) &&
               m_trash.restore(*second, file, guard()) && contentOf(file) == "second";
    };
    EXPECT_EXIT(::_exit(isRight() ? 0 : 1), testing::ExitedWithCode(0), "");
}
