#include "screenshots/ScreenshotFeedback.h"

#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

constexpr Instant first{1'000'000s};

class ScreenshotFeedbackTest : public testing::Test {
protected:
    QString after(std::vector<Instant> dates) {
        feedback.recordCaptures(std::move(dates));
        return feedback.nextPhrase();
    }

    int shuffles = 0;
    std::function<void(QStringList &)> shuffle = [](QStringList &) {};
    ScreenshotFeedback feedback{[this](QStringList &phrases) {
        ++shuffles;
        shuffle(phrases);
    }};
    const QStringList deck{QStringLiteral("Got it"),          QStringLiteral("Caught it"),
                           QStringLiteral("Got that"),        QStringLiteral("I got you"),
                           QStringLiteral("Saved it"),        QStringLiteral("Right here"),
                           QStringLiteral("Keeping this one")};
    const QStringList series{QStringLiteral("Caught it"), QStringLiteral("Another one"),
                             QStringLiteral("Got that too"), QStringLiteral("Still here"),
                             QStringLiteral("I’ve got you")};
};

} // namespace

TEST_F(ScreenshotFeedbackTest, capturesLessThanSixSecondsApartAreASeries) {
    const struct {
        std::chrono::milliseconds interval;
        bool isSeries;
    } cases[]{{0ms, true}, {5900ms, true}, {5999ms, true}, {6000ms, false}, {-1ms, false}, {-6000ms, false}};
    for (const auto &[interval, isSeries] : cases) {
        ScreenshotFeedback fresh([](QStringList &) {});
        fresh.recordCaptures({first});
        EXPECT_EQ(fresh.nextPhrase(), deck.at(0));
        fresh.recordCaptures({first + interval});
        EXPECT_EQ(fresh.nextPhrase(), isSeries ? series.at(0) : deck.at(1)) << interval.count();
    }
}

TEST_F(ScreenshotFeedbackTest, datesCountInTheirOrderWhicheverComesFirst) {
    EXPECT_EQ(after({first + 5s, first}), series.at(0));
    EXPECT_EQ(after({first + 21s, first + 10s}), deck.at(0)) << "the last of them ended the series";
    EXPECT_EQ(after({first + 22s}), series.at(0)) << "a series begins anew";
}

TEST_F(ScreenshotFeedbackTest, aSeriesGoesRoundWithItsOwnPhrases) {
    after({first});
    QStringList said;
    for (int i = 0; i < 6; ++i)
        said += after({first});
    EXPECT_EQ(said, series + series.mid(0, 1));
}

TEST_F(ScreenshotFeedbackTest, everyPhraseOfTheDeckIsDrawnBeforeItIsShuffledAnew) {
    shuffle = [](QStringList &phrases) { std::ranges::reverse(phrases); };
    QStringList said;
    for (int i = 0; i < 7; ++i)
        said += after({});
    EXPECT_EQ(said, QStringList(deck.crbegin(), deck.crend()));
    shuffle = [](QStringList &) {};
    EXPECT_EQ(shuffles, 1);
    EXPECT_EQ(after({}), deck.at(1)) << "what the new deck begins with was the last one shown";
    EXPECT_EQ(after({}), deck.at(0));
    EXPECT_EQ(shuffles, 2);
}

TEST_F(ScreenshotFeedbackTest, theSamePhraseNeverComesTwiceInARow) {
    std::mt19937 random(7);
    shuffle = [&random](QStringList &phrases) { std::ranges::shuffle(phrases, random); };
    Instant date = first;
    QString last;
    for (int i = 0; i < 5000; ++i) {
        date += random() % 2 ? 1s : 7s;
        const QString phrase = after({date});
        ASSERT_NE(phrase, last) << i;
        ASSERT_TRUE(deck.contains(phrase) || series.contains(phrase));
        last = phrase;
    }
}
