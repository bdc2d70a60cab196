#include "shelf/FileNameLayout.h"

#include "controls/Typography.h"

#include <QTextBoundaryFinder>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace tembra;

namespace {

constexpr QChar ellipsis(0x2026);

QFontMetricsF metrics() {
    return QFontMetricsF(typography::font(typography::itemSize));
}

QStringList linesOf(const QString &name) {
    return FileNameLayout::lines(name, metrics());
}

std::vector<qsizetype> boundaries(const QString &text) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    std::vector<qsizetype> all{0};
    for (qsizetype next = finder.toNextBoundary(); next > 0; next = finder.toNextBoundary())
        all.push_back(next);
    return all;
}

} // namespace

TEST(FileNameLayout, leavesWhatFitsAsItIs) {
    EXPECT_EQ(linesOf(u"shot.png"_s), QStringList{u"shot.png"_s});
    EXPECT_EQ(linesOf(u"a\nb\tc\u2028d.png"_s), QStringList{u"a b c d.png"_s});
    EXPECT_EQ(linesOf(u"Screen Shot.png"_s).join(u' '), u"Screen Shot.png"_s);
    EXPECT_EQ(linesOf(QString()), QStringList());
    EXPECT_EQ(linesOf(u" \n "_s), QStringList());
}

TEST(FileNameLayout, keepsTheEndThatTellsCapturesApart) {
    for (const QString &name :
         {u"Screenshot from 2026-11-21 08-07-12.png"_s, u"Screenshot_from_2026-11-21_08-07-12.png"_s,
          u"Screenshot 2026-11-21 at 08.07.12.png"_s}) {
        const QStringList lines = linesOf(name);
        ASSERT_EQ(lines.size(), 2) << qPrintable(name);
        const QString &last = lines.back();
        EXPECT_TRUE(last.startsWith(ellipsis)) << qPrintable(last);
        EXPECT_TRUE(last.endsWith(name.right(12))) << qPrintable(last);
        EXPECT_TRUE(last[1].isLetterOrNumber()) << qPrintable(last) << ": begins with a word";
        EXPECT_FALSE(name.chopped(last.size() - 1).back().isLetterOrNumber()) << qPrintable(last);
    }
    EXPECT_EQ(linesOf(u"Screenshot from 2026-11-21 08-07-12.png"_s).front(), u"Screenshot from"_s);
    const QString ofTool = linesOf(u"2026-11-21-080712_1280x800_scrot.png"_s).back();
    EXPECT_TRUE(ofTool.startsWith(u"0807"))
        << qPrintable(ofTool) << ": the time stands before the tool's sign";
}

TEST(FileNameLayout, breaksALongWordBetweenItsParts) {
    EXPECT_EQ(linesOf(u"Screencast.webm"_s), (QStringList{u"Screencast"_s, u".webm"_s}));
    EXPECT_EQ(linesOf(u"Screenshot_2026_11_21_8.png"_s).front(), u"Screenshot_"_s);
    const QStringList unbroken = linesOf(u"a_averyverylongword.png"_s);
    EXPECT_GT(unbroken.front().size(), 8) << "the line is filled rather than left almost empty";
}

TEST(FileNameLayout, everyNameFitsItsLinesAndIsCutOnlyBetweenWholeCharacters) {
    const QString family = u"👨‍👩‍👧‍👦"_s;
    const std::vector<QString> names{
        QString(300, u'x') + u".png"_s,
        QString(300, u'x'),
        u"x."_s + QString(250, u'e'),
        u"スクリーンショット 2026-11-21 8.07.12 のコピー.png"_s,
        u"屏幕截图屏幕截图屏幕截图屏幕截图屏幕截图屏幕截图.png"_s,
        u"لقطة شاشة من ٢٠٢٦-١١-٢١ الساعة ٠٨-٠٧-١٢ في الصباح.png"_s,
        u"צילום מסך מתאריך 2026-11-21 בשעה 08-07-12 בבוקר.png"_s,
        u"ภาพหน้าจอจากวันที่สองพันยี่สิบหกเดือนพฤศจิกายน.png"_s,
        u"e\u0301a\u0308o\u0302"_s.repeated(30) + u".png"_s,
        u"नमस्ते क्षेत्र "_s.repeated(8),
        u"🖼️🇩🇪🇫🇷"_s.repeated(20) + u".png"_s,
        family.repeated(12) + u".png"_s,
        u"𝔞𝔟𝔠"_s.repeated(20),
        u"____________________________________________"_s,
        u"a                                                                    b.png"_s,
        u"\u0301\u0301leading marks and more of them to be long enough.png"_s,
    };
    for (const QString &name : names) {
        const QStringList lines = linesOf(name);
        ASSERT_LE(lines.size(), FileNameLayout::mostLines) << qPrintable(name);
        ASSERT_FALSE(lines.isEmpty()) << qPrintable(name);
        for (const QString &line : lines) {
            EXPECT_LE(metrics().horizontalAdvance(line), FileNameLayout::width) << qPrintable(line);
            EXPECT_FALSE(line.isEmpty()) << qPrintable(name);
        }
        const auto whole = boundaries(name);
        const QString end = QString(lines.back()).remove(ellipsis);
        EXPECT_TRUE(name.trimmed().endsWith(end)) << qPrintable(lines.back());
        EXPECT_TRUE(std::ranges::count(whole, name.trimmed().size() - end.size())) << qPrintable(end);
        EXPECT_TRUE(name.startsWith(lines.front()) && std::ranges::count(whole, lines.front().size()))
            << qPrintable(lines.front());
        EXPECT_GT(metrics().horizontalAdvance(lines.back()), FileNameLayout::width / 3)
            << qPrintable(lines.back()) << ": no more is taken away than needed";
    }
}

TEST(FileNameLayout, neverTearsACharacterThatIsWiderThanTheLine) {
    const QString chain = u"👩"_s + u"\u200d👩"_s.repeated(12);
    const QString wide = chain + chain + chain;
    ASSERT_GT(metrics().horizontalAdvance(chain), FileNameLayout::width);
    const QStringList lines = linesOf(wide);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines.front(), chain);
    EXPECT_EQ(lines.back(), ellipsis + chain);
}
