#include "recognition/model/OCRController.h"

#include "support/FakeOCRRecognizer.h"
#include "support/FakePasteboard.h"
#include "support/ManualScheduler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tembra;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class OCRControllerTest : public testing::Test {
protected:
    OCRControllerTest() {
        ocr.onStateChange = [this] { phases.push_back(ocr.state().phase.index()); };
        ocr.onResize = [this] { ++resizes; };
        ocr.onError = [this](const Error &) { ++refusals; };
    }
    void recognize(const QString &path = u"/a.png"_s) { ocr.recognize({OCRInput::File{path}}); }
    void succeed(const QStringList &lines) {
        recognizer.succeed(lines);
        scheduler.settle();
    }
    [[nodiscard]] QString message() const { return std::get<OCRState::Error>(ocr.state().phase).message; }
    [[nodiscard]] QStringList copies() const {
        QStringList texts;
        for (const Pasteboard::Item &item : pasteboard.items)
            texts += item.type == Pasteboard::plainText ? QString::fromUtf8(item.data) : item.type;
        return texts;
    }

    static constexpr size_t idle = 0, loading = 1, result = 2, error = 3;
    FakeOCRRecognizer recognizer;
    FakePasteboard pasteboard;
    ManualScheduler scheduler;
    OCRController ocr{recognizer, pasteboard, scheduler};
    std::vector<size_t> phases;
    int resizes = 0;
    int refusals = 0;
};

} // namespace

TEST_F(OCRControllerTest, goesThroughItsPhases) {
    recognize();
    succeed({u"Hello world"_s, u"again"_s});
    EXPECT_EQ(ocr.state().result(), u"Hello world\nagain"_s);
    recognize();
    EXPECT_EQ(ocr.state().result(), QString());
    recognizer.fail();
    scheduler.settle();
    EXPECT_EQ(message(), u"Could not read this image. Try another one."_s);
    ocr.reset();
    EXPECT_THAT(phases, ElementsAre(loading, result, loading, error, idle));
}

TEST_F(OCRControllerTest, findsNoTextInWhiteSpace) {
    for (const QStringList &lines : {QStringList(), QStringList{u" "_s, u"\t"_s}}) {
        recognize();
        succeed(lines);
        EXPECT_EQ(message(), u"No text found. Try another image."_s);
    }
    recognize();
    succeed({u" "_s, u"text"_s, u" "_s});
    EXPECT_EQ(ocr.state().result(), u"text"_s);
}

TEST_F(OCRControllerTest, showsOnlyTheLastImagesResult) {
    recognize(u"/first.png"_s);
    recognize(u"/second.png"_s);
    EXPECT_TRUE(recognizer.runs[0]->isCancelled);
    succeed({u"second"_s});
    recognizer.runs[0]->complete(OCRRecognition{recognizedText({u"first"_s}), {}, {}});
    scheduler.settle();
    EXPECT_EQ(ocr.state().result(), u"second"_s);
    recognize(u"/third.png"_s);
    ocr.reset();
    EXPECT_TRUE(recognizer.runs[2]->isCancelled);
    succeed({u"third"_s});
    EXPECT_EQ(phases.back(), idle);
}

TEST_F(OCRControllerTest, copiesTheTextAsItIsShown) {
    recognize();
    succeed({u"The first line goes"_s, u"on here"_s});
    EXPECT_TRUE(ocr.copyOCR());
    EXPECT_THAT(copies(), ElementsAre(u"The first line goes\non here"_s));
    ocr.setLayout(OCRTextLayout::oneLine);
    EXPECT_TRUE(ocr.copyOCR());
    EXPECT_THAT(copies(), ElementsAre(u"The first line goes on here"_s));
    EXPECT_TRUE(ocr.copyOCRSelection(u"line"_s));
    EXPECT_THAT(copies(), ElementsAre(u"line"_s));
    const int writes = pasteboard.writes;
    EXPECT_FALSE(ocr.copyOCRSelection(QString()));
    EXPECT_EQ(pasteboard.writes, writes);
    pasteboard.refuses = true;
    EXPECT_FALSE(ocr.copyOCR());
    EXPECT_FALSE(ocr.copyOCRSelection(u"line"_s));
    EXPECT_EQ(refusals, 2);
}

TEST_F(OCRControllerTest, growsWithTheTextAndShrinksWhenNobodyLooks) {
    const auto read = [this](const QStringList &lines) {
        recognize();
        succeed(lines);
        return ocr.state().isExpanded;
    };
    const QStringList longText{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s};
    EXPECT_FALSE(read({u"short"_s}));
    EXPECT_TRUE(read(longText));
    EXPECT_TRUE(read({u"short"_s}));
    ocr.setPresented(false);
    EXPECT_TRUE(ocr.state().isExpanded);
    ocr.reset();
    EXPECT_TRUE(ocr.state().isExpanded);
    EXPECT_EQ(resizes, 1);
    ocr.setPresented(false);
    EXPECT_FALSE(ocr.state().isExpanded);
    EXPECT_EQ(resizes, 2);
    EXPECT_TRUE(read(longText));
    ocr.toggleOCRSize();
    EXPECT_FALSE(ocr.state().isExpanded);
    EXPECT_FALSE(read(longText));
    EXPECT_EQ(resizes, 4);
}
