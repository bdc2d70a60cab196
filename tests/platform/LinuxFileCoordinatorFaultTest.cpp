#include "platform/CoordinatorFixture.h"
#include "support/FaultWalk.h"
#include "support/LostCalls.h"

#include <QDirIterator>

#include <algorithm>
#include <sys/xattr.h>
#include <unistd.h>

using namespace tembra;

namespace {

using LinuxFileCoordinatorWithoutExchange = CoordinatorFixture;

const QByteArray oldContent(90'000, 'o');
const QByteArray newContent(100'000, 'n');

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(none)");
}

QStringList filesIn(const QString &folder) {
    QStringList files;
    QDirIterator all(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext())
        files.append(QDir(folder).relativeFilePath(all.next()));
    files.sort();
    return files;
}

QStringList prepare(const QString &folder) {
    QDir(folder).mkpath(QStringLiteral("records"));
    const QString shot = writeFile(folder + QStringLiteral("/shot.png"), oldContent);
    ::setxattr(pathBytes(shot).constData(), "user.one", "1", 1, 0);
    return {folder};
}

QStringList prepareContested(const QString &folder) {
    writeFile(folder + QStringLiteral("/theirs"), "theirs");
    return prepare(folder) + QStringList{QStringLiteral("contested")};
}

// Every file holds all that it held before or all that it is to hold, and the records lead the screenshot.
void isOldOrNew(const FaultWalk::Run &run) {
    SCOPED_TRACE(run.description().constData());
    const auto holds = [&](const char *name, const QByteArray &content) {
        return contentOf(run.folder + QString::fromLatin1(name)) == content;
    };
    const bool hasOldShot = holds("/shot.png", oldContent);
    const bool hasRecord = holds("/records/1/record.json", newContent);
    const bool hasPending = holds("/records/1/pending.json", newContent);
    EXPECT_TRUE(hasOldShot || holds("/shot.png", newContent));
    EXPECT_TRUE(hasRecord || holds("/records/1/record.json", "(none)"));
    EXPECT_TRUE(hasPending || holds("/records/1/pending.json", "(none)"));
    EXPECT_TRUE(hasOldShot || hasRecord || hasPending);
    EXPECT_TRUE(run.wasKilled || run.exitCode == 1 || (hasRecord && !hasOldShot && !hasPending));
    EXPECT_TRUE(run.wasKilled || run.exitCode == 0 || run.wentWrong());
    const QStringList temporaries = filesIn(run.folder).filter(QStringLiteral(".tembra"));
    EXPECT_TRUE(temporaries.isEmpty() || !run.canTidy()) << qPrintable(temporaries.join(u' '));
}

// Neither the version that another program wrote meanwhile nor the name is ever missing.
void keepsTheirs(const FaultWalk::Run &run) {
    SCOPED_TRACE(run.description().constData());
    const QStringList files = filesIn(run.folder);
    EXPECT_TRUE(std::ranges::any_of(
        files, [&](const QString &file) { return contentOf(run.folder + u'/' + file) == "theirs"; }));
    EXPECT_TRUE(files.contains(QStringLiteral("shot.png")));
    if (!run.wentWrong()) {
        EXPECT_EQ(contentOf(run.folder + QStringLiteral("/shot.png")), "theirs");
        EXPECT_EQ(files, (QStringList{QStringLiteral("records/1/pending.json"), QStringLiteral("shot.png")}));
    }
}

} // namespace

TEST(LinuxFileCoordinatorFaults, leaveTheOldVersionOrTheNewOne) {
    const FaultWalk walk{
        .program = QStringLiteral(TEMBRA_COORDINATOR_STEPS), .prepare = prepare, .check = isOldOrNew};
    EXPECT_GE(walk.walk(), 16);
}

TEST(LinuxFileCoordinatorFaults, loseNothingOfAnotherProgram) {
    const FaultWalk walk{.program = QStringLiteral(TEMBRA_COORDINATOR_STEPS),
                         .prepare = prepareContested,
                         .check = keepsTheirs};
    EXPECT_GE(walk.walk(), 16);
}

TEST_F(LinuxFileCoordinatorWithoutExchange, stillReplacesOnlyWhatIsExpected) {
    const auto isRight = [this] {
        const auto write = [this](const char *content) {
            return [this, content] { writeFile(m_shot, content); };
        };
        return loseNewerCalls() && save() && contentOf("shot.png") == "new" &&
               codeOf(save()) == FileCoordinator::changed && contentOf("shot.png") == "new" &&
               (write("old")(), codeOf(saveWhile({write("theirs")})) == FileCoordinator::changed) &&
               contentOf("shot.png") == "theirs" && names() == m_onlyShot;
    };
    EXPECT_EXIT(::_exit(isRight() ? 0 : 1), testing::ExitedWithCode(0), "");
}
