#include "updates/Appcast.h"

#include <gtest/gtest.h>

using namespace tembra;

namespace {

QByteArray feed(const QByteArray &items) {
    return R"(<?xml version="1.0"?><rss version="2.0" )"
           R"(xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>)" +
           items + "</channel></rss>";
}

const QByteArray signature = QByteArray(64, 's').toBase64();

QByteArray item(const QByteArray &version, const QByteArray &system = "linux",
                const QByteArray &more = QByteArray()) {
    return "<item><sparkle:version>" + version + "</sparkle:version>" + more +
           R"(<enclosure url="https://example.org/tembra.deb" length="3" sparkle:edSignature=")" + signature +
           R"(" sparkle:os=")" + system + R"("/></item>)";
}

QString bestOf(const QByteArray &items) {
    const auto appcast = Appcast::parse(feed(items));
    if (!appcast)
        return QStringLiteral("broken");
    const auto best = appcast->bestFor({.current = *UpdateVersion::parse(u"1.2"),
                                        .architecture = QStringLiteral("x86_64"),
                                        .systemVersion = QStringLiteral("6.1.0-25-amd64")});
    return best ? best->shownVersion : QStringLiteral("none");
}

} // namespace

TEST(UpdateVersion, areOrderedAsTheirPublisherMeansThem) {
    const std::vector<QStringView> ascending{u"0.9",          u"1.0-2",  u"1.0-alpha", u"1.0-alpha.2",
                                             u"1.0-alpha.10", u"1.0-rc", u"1.0",       u"1.0.1",
                                             u"1.2",          u"1.10b3", u"1.10",      u"2026.11"};
    for (std::size_t i = 0; i + 1 < ascending.size(); ++i)
        EXPECT_LT(*UpdateVersion::parse(ascending[i]), *UpdateVersion::parse(ascending[i + 1])) << i;
    EXPECT_EQ(UpdateVersion::parse(u"1.2"), UpdateVersion::parse(u"1.2.0+build.7"));
    for (const QStringView broken :
         {u"", u"v1", u"1..2", u"1.", u"1.2-", u"1.2-a..b", u"1.99999999999", u"1 2", u"1.2-é"})
        EXPECT_FALSE(UpdateVersion::parse(broken)) << broken.toUtf8().constData();
}

TEST(Appcast, theNewestThatFitsIsOffered) {
    const struct {
        const char *name;
        QByteArray items;
        QString best;
    } cases[]{
        {"the newest, wherever it stands", item("1.3") + item("1.10") + item("1.4"), QStringLiteral("1.10")},
        {"not the same", item("1.2.0"), QStringLiteral("none")},
        {"not an earlier version of it", item("1.2-rc.1"), QStringLiteral("none")},
        {"of this system only", item("2", "macos") + item("3", "") + item("1.3"), QStringLiteral("1.3")},
        {"of this architecture", item("2", "linux-arm64") + item("1.3", "linux-x86_64"),
         QStringLiteral("1.3")},
        {"what this system can run",
         item("3", "linux", "<sparkle:minimumSystemVersion>6.2</sparkle:minimumSystemVersion>") +
             item("2", "linux", "<sparkle:minimumSystemVersion>6.1.0</sparkle:minimumSystemVersion>"),
         QStringLiteral("2")},
        {"under the name that users read",
         item("1.3", "linux", "<sparkle:shortVersionString>1.3 “Tray”</sparkle:shortVersionString>"),
         QStringLiteral("1.3 “Tray”")},
        {"what cannot be used is passed over",
         item("9x y") + item("1.3") + "<item/><item><enclosure/></item>" +
             item("9").replace("https", "http") + item("9").replace("\"3\"", "\"-3\"") +
             item("9").replace("\"3\"", "\"99999999999999\""),
         QStringLiteral("1.3")},
        {"the version may stand at the file",
         item("").replace("<enclosure", "<enclosure sparkle:version=\"1.5\""), QStringLiteral("1.5")},
    };
    for (const auto &c : cases)
        EXPECT_EQ(bestOf(c.items), c.best) << c.name;
}

TEST(Appcast, hostileFeedsAreRefusedInOneSentence) {
    const QByteArray bomb =
        R"(<!DOCTYPE rss [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "&a;&a;&a;&a;&a;&a;&a;&a;">]>)";
    for (const QByteArray &broken :
         {QByteArray(), QByteArray("version 9"), QByteArray("<html/>"), feed(item("9")).chopped(5),
          bomb + "<rss><channel><item>&b;</item></channel></rss>", feed(QByteArray("<x>").repeated(100'000)),
          feed(item("9").repeated(2000)), feed(QByteArray(Appcast::mostBytes, ' ')),
          feed("\xff\xfe" + item("9"))}) {
        const auto parsed = Appcast::parse(broken);
        ASSERT_FALSE(parsed) << broken.left(80).constData();
        EXPECT_EQ(parsed.error().message, QStringLiteral("The list of updates cannot be read."));
    }
}
