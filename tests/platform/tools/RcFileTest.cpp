#include "platform/linux/tools/RcFile.h"

#include "platform/tools/Session.h"

#include <gtest/gtest.h>

using namespace tembra;

namespace {

class RcFileTest : public testing::Test {
protected:
    [[nodiscard]] RcFile file(const QByteArray &content) const {
        return RcFile::read(session.write(name, content)).value();
    }
    [[nodiscard]] QByteArray saved(const RcFile &file) const {
        EXPECT_TRUE(file.save());
        return session.read(name);
    }

    const Session session;
    const QString name = QStringLiteral("rc");
};

} // namespace

TEST_F(RcFileTest, findsEntries) {
    using Entry = std::optional<RcFile::Entry>;
    struct Case {
        const char *name;
        QByteArray content;
        Entry entry;
    };
    const Case cases[]{
        {"plain", "[G]\nk=v\n", Entry({"v", ""})},
        {"blanks around", " [G] \n k = v w \n", Entry({"v w", ""})},
        {"equals sign in the value", "[G]\nk=a=b", Entry({"a=b", ""})},
        {"empty value", "[G]\nk=\n", Entry({"", ""})},
        {"last of several", "[G]\nk=1\n[H]\nk=2\n[G]\nk=3\n", Entry({"3", ""})},
        {"flags of the key", "[G]\nk[$e]=v\n", Entry({"v", "$e"})},
        {"flags of key and group", "[G][$i]\nk[$e]=v\n", Entry({"v", "$e$i"})},
        {"carriage returns", "[G]\r\nk=v\r\n", Entry({"v", ""})},
        {"mark of UTF-8", "\xEF\xBB\xBF[G]\nk=v\n", Entry({"v", ""})},
        {"not UTF-8", "[G]\nx=\xff\xfe\nk=\xe4\n", Entry({"\xe4", ""})},
        {"another group", "k=v\n[H]\nk=v\n[G][Sub]\nk=v\n", std::nullopt},
        {"another language", "[G]\nk[de]=v\n", std::nullopt},
        {"comments", "[G]\n#k=v\n;k=v\n", std::nullopt},
        {"cut off", "[G]\nk", std::nullopt},
        {"header cut off", "[G\nk=v\n", std::nullopt},
    };
    for (const Case &c : cases)
        EXPECT_EQ(file(c.content).entry("G", "k"), c.entry) << c.name;
}

TEST_F(RcFileTest, changesOnlyTheLineThatIsMeant) {
    struct Case {
        const char *name;
        QByteArray before;
        QByteArray set;
        QByteArray removed;
    };
    const Case cases[]{
        {"present", "# c\n[G]\na=1\n k = v\nb=2\n", "# c\n[G]\na=1\n k = new\nb=2\n", "# c\n[G]\na=1\nb=2\n"},
        {"in another group", "[H]\nk=v\n", "[H]\nk=v\n\n[G]\nk=new\n", "[H]\nk=v\n"},
        {"before the blank line", "[G]\na=1\n\n[H]\nb=2\n", "[G]\na=1\nk=new\n\n[H]\nb=2\n",
         "[G]\na=1\n\n[H]\nb=2\n"},
        {"with flags", "[G]\nk[$e]=$HOME\n", "[G]\nk=new\n", "[G]\n"},
        {"twice", "[G]\nk=1\nk=2\n", "[G]\nk=1\nk=new\n", "[G]\n"},
        {"carriage returns", "[G]\r\na=1\r\n", "[G]\r\na=1\r\nk=new\r\n", "[G]\r\na=1\r\n"},
        {"no last newline", "[G]\na=1", "[G]\na=1\nk=new\n", "[G]\na=1"},
        {"foreign bytes", "\x01\xff noise\n[G\n=", "\x01\xff noise\n[G\n=\n\n[G]\nk=new\n",
         "\x01\xff noise\n[G\n="},
        {"empty", "", "[G]\nk=new\n", ""},
    };
    for (const Case &c : cases) {
        RcFile set = file(c.before);
        set.setValue("G", "k", "new");
        EXPECT_EQ(saved(set), c.set) << c.name;
        RcFile removed = file(c.before);
        removed.remove("G", "k");
        EXPECT_EQ(saved(removed), c.removed) << c.name;
    }
}

TEST_F(RcFileTest, writesEntriesWithoutAGroupBeforeTheFirstGroup) {
    RcFile withGroup = file("\n[G]\na=1\n");
    withGroup.setValue("", "k", "v");
    EXPECT_EQ(saved(withGroup), "k=v\n\n[G]\na=1\n");
}

TEST_F(RcFileTest, writesThroughALinkAndKeepsThePermissions) {
    const QString target = session.write(QStringLiteral("dotfiles/rc"), "[G]\nk=v\n");
    QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    QFile::link(target, session.path(name));
    RcFile link = RcFile::read(session.path(name)).value();
    link.setValue("G", "k", "new");
    EXPECT_EQ(saved(link), "[G]\nk=new\n");
    EXPECT_EQ(QFileInfo(session.path(name)).symLinkTarget(), target);
    EXPECT_FALSE(QFileInfo(target).permission(QFile::ReadGroup));
}

TEST_F(RcFileTest, makesAMissingFileWithItsFolder) {
    RcFile missing = RcFile::read(session.path(QStringLiteral("new/folder/rc"))).value();
    missing.setValue("G", "k", "v");
    EXPECT_TRUE(missing.save());
    EXPECT_EQ(session.read(QStringLiteral("new/folder/rc")), "[G]\nk=v\n");
}

TEST_F(RcFileTest, refusesWhatIsNoText) {
    session.write(QStringLiteral("binary"), QByteArray("[G]\n\0k=v", 8));
    EXPECT_FALSE(RcFile::read(session.path(QStringLiteral("binary"))));
    EXPECT_FALSE(RcFile::read(session.path(QString())));
}

TEST_F(RcFileTest, tellsWhenItCannotBeSaved) {
    session.write(QStringLiteral("obstacle"), "x");
    RcFile below = RcFile::read(session.path(QStringLiteral("obstacle/rc"))).value();
    below.setValue("G", "k", "v");
    const Result<void> result = below.save();
    ASSERT_FALSE(result);
    EXPECT_FALSE(result.error().message.isEmpty());
}
