#include "app/CaptureCommand.h"

#include "support/EventLoop.h"
#include "support/Files.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace tembra;

TEST(CaptureCommand, putsTheFileWhereItIsWanted) {
    const QString file = u"/a/b c.png"_s;
    EXPECT_EQ(CaptureCommand::arguments({u"upload"_s}, file), QStringList{file});
    EXPECT_EQ(CaptureCommand::arguments({u"mv"_s, u"-n"_s, u"{}"_s, u"/x"_s}, file),
              (QStringList{u"-n"_s, file, u"/x"_s}));
    EXPECT_EQ(CaptureCommand::arguments({u"sh"_s, u"a{}b"_s}, file), (QStringList{u"a{}b"_s, file}))
        << "a part of a word is left alone";
}

// No shell reads a file's name.
TEST(CaptureCommand, handsTheFileToTheProgramAsItIs) {
    const QTemporaryDir folder;
    const QString capture = folder.filePath(u"$(touch evil); \"a\" 'b'.png"_s);
    writeFile(capture, "x");
    const QString copy = folder.filePath(u"copy.png"_s);
    CaptureCommand command;
    command.run({u"cp"_s, u"{}"_s, copy}, capture);
    EXPECT_TRUE(eventually([&] { return !command.isBusy(); }));
    EXPECT_TRUE(QFile::exists(copy));
    EXPECT_FALSE(QFile::exists(folder.filePath(u"evil"_s)));
}

TEST(CaptureCommand, runsOneAfterTheOther) {
    const QTemporaryDir folder;
    const QString log = folder.filePath(u"log"_s);
    CaptureCommand command;
    const QString script = u"echo begin >>\"$1\"; echo end >>\"$1\""_s;
    for (int i = 0; i < 5; ++i)
        command.run({u"sh"_s, u"-c"_s, script, u"sh"_s, log}, u"/a.png"_s);
    const auto lines = [&log] {
        QFile file(log);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    EXPECT_TRUE(eventually([&] { return !command.isBusy(); }));
    EXPECT_EQ(lines(), QByteArray("begin\nend\n").repeated(5));
}

TEST(CaptureCommand, tellsOnceOfACommandThatCannotBeRun) {
    QStringList told;
    CaptureCommand command;
    command.onFailed = [&told](const QString &sentence) { told += sentence; };
    const QStringList missing{u"/nowhere/upload"_s};
    command.run({}, u"/a.png"_s);
    command.run(missing, u"/a.png"_s);
    command.run(missing, u"/b.png"_s);
    command.run({u"/nowhere/else"_s}, u"/c.png"_s);
    ASSERT_TRUE(eventually([&] { return told.size() == 2; }));
    EXPECT_TRUE(told.constFirst().contains(missing.constFirst()));
}
