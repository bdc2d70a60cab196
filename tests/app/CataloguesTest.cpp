#include "app/Catalogues.h"

#include "CatalogueFile.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;
using namespace tembra;

namespace {

const QString catalogueFolder = QStringLiteral(TEMBRA_SOURCE_DIR "/translations");

struct Language {
    QString code;
    int pluralForms;

    friend std::ostream &operator<<(std::ostream &stream, const Language &language) {
        return stream << language.code.toStdString();
    }
};

// Placeholders and tags, in the order of their text.
QStringList marksIn(const QString &text) {
    static const QRegularExpression mark(u"%L?(?:[0-9]+|n)|<[a-z/][^>]*>"_s);
    QStringList marks;
    for (auto match = mark.globalMatch(text); match.hasNext();)
        marks += match.next().captured();
    marks.sort();
    return marks;
}

class CatalogueTest : public testing::TestWithParam<Language> {
protected:
    [[nodiscard]] static QString path() { return catalogueFolder + u"/tembra_%1.ts"_s.arg(GetParam().code); }
    [[nodiscard]] static QString wordingPath() {
        return catalogueFolder + u"/tembra_linux_%1.ts"_s.arg(GetParam().code);
    }
};

} // namespace

TEST_P(CatalogueTest, isWhole) {
    const CatalogueFile catalogue = CatalogueFile::read(path());
    ASSERT_GT(catalogue.messages.size(), 500);
    for (auto at = catalogue.messages.cbegin(); at != catalogue.messages.cend(); ++at) {
        const auto &[context, source] = at.key();
        SCOPED_TRACE(qUtf8Printable(context + u": "_s + source));
        EXPECT_TRUE(at->isFinished);
        EXPECT_EQ(at->translations.size(), at->hasPlurals ? GetParam().pluralForms : 1);
        for (const QString &text : at->translations) {
            EXPECT_FALSE(text.isEmpty());
            EXPECT_EQ(marksIn(text), marksIn(source)) << qUtf8Printable(text);
        }
    }
}

// What was written since, and what is gone.
TEST_P(CatalogueTest, hasTheTextsOfTheProgram) {
    const QTemporaryDir scratch;
    const QString fresh = scratch.filePath(u"fresh.ts"_s);
    QProcess extraction;
    extraction.start(QStringLiteral(TEMBRA_LUPDATE),
                     {u"-silent"_s, u"-extensions"_s, u"cpp,h"_s, u"-source-language"_s, u"en_US"_s,
                      u"-target-language"_s, GetParam().code, QStringLiteral(TEMBRA_SOURCE_DIR "/src"),
                      u"-ts"_s, fresh});
    ASSERT_TRUE(extraction.waitForFinished());
    const auto wanted = CatalogueFile::read(fresh).messages.keys();
    ASSERT_FALSE(wanted.isEmpty());
    const auto found = CatalogueFile::read(path()).messages.keys();
    for (const auto &text : wanted)
        EXPECT_TRUE(found.contains(text))
            << "not translated: " << qUtf8Printable(text.first + u": "_s + text.second);
    for (const auto &text : found)
        EXPECT_TRUE(wanted.contains(text))
            << "of no use: " << qUtf8Printable(text.first + u": "_s + text.second);
}

TEST_P(CatalogueTest, hasThePlatformsWordingOfWhatEnglishRewords) {
    const auto wording = CatalogueFile::read(wordingPath());
    const auto english = CatalogueFile::read(catalogueFolder + u"/tembra_linux_en.ts"_s);
    for (auto at = english.messages.cbegin(); at != english.messages.cend(); ++at) {
        const auto found = wording.messages.constFind(at.key());
        const bool isThere = found != wording.messages.cend();
        EXPECT_EQ(isThere, !at->hasPlurals) << qUtf8Printable(at.key().second);
        if (isThere) {
            EXPECT_EQ(marksIn(found->translations.constFirst()), marksIn(at->translations.constFirst()));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Of, CatalogueTest, testing::Values(Language{u"de"_s, 2}, Language{u"ru"_s, 3}),
                         [](const auto &tested) { return tested.param.code.toStdString(); });

TEST(Catalogues, theFirstLanguageThatThereIsIsSpoken) {
    EXPECT_EQ(Catalogues::languageAmong({u"fr-FR"_s, u"de-AT"_s, u"ru"_s}), u"de"_s);
    EXPECT_EQ(Catalogues::languageAmong({u"ru_RU"_s}), u"ru"_s);
    EXPECT_EQ(Catalogues::languageAmong({u"en-GB"_s, u"de-DE"_s}), u"en"_s)
        << "the texts are English themselves";
    EXPECT_EQ(Catalogues::languageAmong({u"C"_s}), u"en"_s);
    EXPECT_EQ(Catalogues::languageAmong({}), u"en"_s);
}

TEST(Catalogues, pluralsAndThePlatformsWordsAreThoseOfTheLanguage) {
    const auto captures = [](int count) {
        return QCoreApplication::translate("CaptureNotification", "%n captures", nullptr, count);
    };
    const QString finder = u"Show in Finder"_s;
    const auto wording = [] { return QCoreApplication::translate("ScreenshotMenu", "Show in Finder"); };
    {
        const Catalogues english({u"en-US"_s});
        EXPECT_EQ(captures(1), u"1 capture"_s);
        EXPECT_EQ(wording(), u"Show in Files"_s);
    }
    {
        const Catalogues russian({u"ru-RU"_s});
        EXPECT_NE(captures(1).section(u' ', 1), captures(2).section(u' ', 1));
        EXPECT_NE(captures(2).section(u' ', 1), captures(5).section(u' ', 1));
        EXPECT_EQ(captures(21).section(u' ', 1), captures(1).section(u' ', 1));
        EXPECT_FALSE(wording().contains(u"Finder"_s));
        EXPECT_NE(wording(), u"Show in Files"_s);
    }
    EXPECT_EQ(wording(), finder) << "without catalogues the texts are as they stand";
}
