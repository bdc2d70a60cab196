#include "recognition/model/EditorWordRecognition.h"

#include "support/FakeTextRecognizer.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"
#include "support/Pictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tembra;
using testing::ElementsAre;
using testing::IsEmpty;
using State = EditorWordRecognition::State;

namespace {

TextRecognizer::Word word(const QRectF &box) {
    return {QStringLiteral("word"), box};
}

class EditorWordRecognitionTest : public testing::Test {
protected:
    EditorWordRecognitionTest() {
        recognition.onChange = [this] { changes.push_back(recognition.state()); };
    }
    // Lets the background and then the main thread work.
    void finish() {
        queue.runAll();
        scheduler.settle();
    }
    void recognize(const QUuid &id) {
        recognition.start(id, original);
        finish();
    }
    [[nodiscard]] size_t runs() const { return recognizer.sizes.size(); }

    const QByteArray original = pictureBytes("png", QSize(64, 48));
    const QUuid first = QUuid::createUuid();
    const QUuid second = QUuid::createUuid();
    const QRectF hello{2, 3, 20, 9};
    const QRectF world{30, 3, 22, 9};
    FakeTextRecognizer recognizer;
    ManualQueue queue;
    ManualScheduler scheduler;
    EditorWordRecognition recognition{recognizer, queue, scheduler};
    std::vector<State> changes;
};

} // namespace

TEST_F(EditorWordRecognitionTest, findsTheWordsOfAnImageInTheBackground) {
    recognizer.answer = {{{{word(hello), word(world)}}}};
    recognition.start(first, original);
    EXPECT_EQ(recognition.state(), State::loading);
    finish();
    EXPECT_THAT(recognition.regions(), ElementsAre(hello, world));
    EXPECT_THAT(recognizer.sizes, ElementsAre(QSize(64, 48)));
    EXPECT_THAT(changes, ElementsAre(State::loading, State::ready));
}

TEST_F(EditorWordRecognitionTest, anImageWithoutTextIsReadyToo) {
    recognize(first);
    EXPECT_THAT(changes, ElementsAre(State::loading, State::ready));
    EXPECT_THAT(recognition.regions(), IsEmpty());
}

TEST_F(EditorWordRecognitionTest, keepsTheWordsOfTheLastFourImages) {
    recognizer.answer = {{{{word(hello)}}}};
    recognize(first);
    for (int others = 0; others < 3; ++others)
        recognize(QUuid::createUuid());
    changes.clear();
    recognition.start(first, original);
    EXPECT_THAT(changes, ElementsAre(State::ready)) << "from what is kept";
    EXPECT_THAT(recognition.regions(), ElementsAre(hello));
    EXPECT_EQ(runs(), 4u);
    recognize(second);
    recognition.start(first, original);
    EXPECT_EQ(recognition.state(), State::loading) << "the oldest of five went";
}

TEST_F(EditorWordRecognitionTest, whatComesLateForAnotherImageIsDropped) {
    recognizer.answer = {{{{word(hello)}}}};
    recognition.start(first, original);
    queue.runAll();
    recognition.start(second, original);
    scheduler.settle();
    EXPECT_EQ(recognition.state(), State::loading);
    EXPECT_THAT(recognition.regions(), IsEmpty());
    finish();
    EXPECT_EQ(recognition.state(), State::ready);
    recognition.start(first, original);
    EXPECT_EQ(recognition.state(), State::loading) << "nor was it kept";
}

TEST_F(EditorWordRecognitionTest, cancellingEndsItWhereverItIs) {
    recognizer.answer = {{{{word(hello)}}}};
    recognition.start(first, original);
    recognition.cancel();
    finish();
    EXPECT_EQ(runs(), 0u) << "before it began";
    recognizer.onRecognize = [this] { recognition.cancel(); };
    recognition.start(first, original);
    finish();
    recognition.start(second, original);
    queue.runAll();
    recognition.cancel();
    scheduler.settle();
    EXPECT_THAT(changes, ElementsAre(State::loading, State::idle, State::loading, State::idle, State::loading,
                                     State::idle));
    EXPECT_THAT(recognition.regions(), IsEmpty());
}

TEST_F(EditorWordRecognitionTest, whatCannotBeReadFailsAndMayBeTriedAgain) {
    const Error error{TextRecognizer::errorDomain, TextRecognizer::noLanguage, QStringLiteral("None."), {}};
    recognizer.answer = failure(error);
    recognize(first);
    EXPECT_EQ(recognition.state(), State::failed);
    EXPECT_EQ(recognition.error(), error);

    recognizer.answer = {{{{word(hello)}}}};
    recognition.start(first, QByteArrayLiteral("no picture"));
    finish();
    EXPECT_EQ(recognition.state(), State::failed);
    recognize(first);
    EXPECT_EQ(recognition.state(), State::ready);
    EXPECT_EQ(recognition.error(), std::nullopt);
}

TEST_F(EditorWordRecognitionTest, endsItsWorkWithItself) {
    std::vector<State> seen;
    auto shortLived = std::make_unique<EditorWordRecognition>(recognizer, queue, scheduler);
    shortLived->start(first, original);
    shortLived->onChange = [&] { seen.push_back(State::ready); };
    shortLived.reset();
    finish();
    EXPECT_EQ(runs(), 0u);
    EXPECT_THAT(seen, IsEmpty());
}

TEST(EditorWordRegions, areWhatIsInsideTheImage) {
    const auto regions = EditorWordRecognition::regions(
        {{{word({-4, 2, 10, 8}), word({0, 0, 0, 0}), word({98, 47, 10, 10})}}, {{word({120, 5, 10, 10})}}},
        QSize(100, 50));
    EXPECT_THAT(regions, ElementsAre(QRectF(0, 2, 6, 8), QRectF(98, 47, 2, 3)));
}
