#include "recognition/model/TextLink.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace tembra {
namespace {

// The links of a text, each as what of the text it is and where it leads.
QStringList linksOf(const QString &text) {
    QStringList links;
    for (const TextLink &link : TextLink::find(text))
        links += text.mid(link.start, link.length) + QStringLiteral(" > ") + link.url.toString();
    return links;
}

TEST(TextLink, areAddressesWithoutTheSentenceAroundThem) {
    struct Case {
        const char *text;
        QStringList links;
    };
    const auto link = [](const char *shown, const char *url) {
        return QString::fromUtf8(shown) + QStringLiteral(" > ") + QString::fromUtf8(url);
    };
    const auto same = [&](const char *url) { return link(url, url); };
    const Case cases[] = {
        {"", {}},
        {"no address: a.b, http, www, @home, 3.14", {}},
        {"See https://example.com.", {same("https://example.com")}},
        {"HTTP://Example.com/A?b=c#d, then",
         {link("HTTP://Example.com/A?b=c#d", "http://example.com/A?b=c#d")}},
        {"http://localhost:8080/x!", {same("http://localhost:8080/x")}},
        {"(https://example.com/a)", {same("https://example.com/a")}},
        {"https://example.com/a_(b)", {same("https://example.com/a_(b)")}},
        {"(see https://example.com/a_(b)).", {same("https://example.com/a_(b)")}},
        {"<https://example.com/>\"www.example.org\"",
         {same("https://example.com/"), link("www.example.org", "https://www.example.org")}},
        {"“https://example.com/…”", {same("https://example.com/")}},
        {"www.example.com/a,b; www.x www.", {link("www.example.com/a,b", "https://www.example.com/a,b")}},
        {"ftp://www.example.com file:///etc/passwd javascript://x", {}},
        {"https:// http://. https://)", {}},
        {"me@example.com, First.Last+tag@mail.example.co.uk.",
         {link("me@example.com", "mailto:me@example.com"),
          link("First.Last+tag@mail.example.co.uk", "mailto:First.Last+tag@mail.example.co.uk")}},
        {"me@localhost a@b@c.de müller@example.com a@example.com2 foo@example.comé", {}},
        {"https://me@example.com/", {same("https://me@example.com/")}},
        {"one\nhttps://example.com/a\nhttps://example.com/b",
         {same("https://example.com/a"), same("https://example.com/b")}},
        {"访问https://example.com查看，或写信给me@example.com。",
         {same("https://example.com"), link("me@example.com", "mailto:me@example.com")}},
        {"https://example.com\u00A0next", {same("https://example.com")}},
        {"😀 https://example.com/😀 end", {same("https://example.com/😀")}}};
    for (const auto &[text, links] : cases)
        EXPECT_EQ(linksOf(QString::fromUtf8(text)), links) << text;
}

TEST(TextLink, areFoundInLongTexts) {
    const QString word(200'000, u'a');
    EXPECT_TRUE(linksOf(word).isEmpty());
    EXPECT_TRUE(linksOf(word + u'@').isEmpty());
    EXPECT_TRUE(linksOf(QStringLiteral("a.").repeated(100'000)).isEmpty());
    EXPECT_TRUE(linksOf(QString(200'000, u'%')).isEmpty());
    EXPECT_EQ(linksOf(QStringLiteral("https://a") + QString(200'000, u')')).size(), 1);
    EXPECT_EQ(TextLink::find(QStringLiteral("https://example.com/") + word).front().length, 200'020);
    EXPECT_EQ(linksOf(QStringLiteral("me@example.com ").repeated(5'000)).size(), 5'000);
}

} // namespace
} // namespace tembra
