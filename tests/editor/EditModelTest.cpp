#include "editor/model/AnnotationJson.h"
#include "editor/model/EditorDrawingPreferences.h"
#include "editor/model/EditorObjectClipboard.h"
#include "editor/model/EditorTool.h"
#include "editor/model/ScreenshotEditRecord.h"
#include "editor/model/ScreenshotEdits.h"
#include "support/Annotations.h"
#include "support/FakePasteboard.h"
#include "support/MemoryUserDefaults.h"

#include <gtest/gtest.h>

#include <limits>

namespace tembra {
namespace {

using Kind = ScreenshotAnnotation::Kind;

ScreenshotAnnotation everyField() {
    ScreenshotAnnotation annotation = annotationOfKind(Kind::text);
    annotation.bendPoint = EditorPoint{0.1, -7};
    annotation.filled = false;
    annotation.number = EditorNumber{.value = -3, .diameter = 24, .fontSize = 12.5};
    annotation.blur = EditorBlur{EditorBlur::Strength::strong};
    annotation.pencil = EditorPencil{.version = 1, .endWidthRatio = 0.1, .tailFraction = 1.0 / 3};
    annotation.text->string = QStringLiteral("“a\\b”\n漢字 \u0007");
    return annotation;
}

TEST(AnnotationJson, carriesEveryFieldUnderItsKeyInOrder) {
    const ScreenshotAnnotation annotation = everyField();
    const Json json = toJson(annotation);
    std::vector<std::string> keys;
    for (const auto &[key, value] : json.items())
        keys.push_back(key);
    EXPECT_EQ(keys, (std::vector<std::string>{"id", "kind", "points", "color", "width", "bendPoint", "filled",
                                              "text", "number", "blur", "pencil"}));
    EXPECT_EQ(json["blur"]["strength"], 28);
    EXPECT_EQ(json["id"].get<std::string>(), "11111111-2222-3333-4444-AAAAAAAAAAAA");
    const auto parsed = parseStrictly(toBytes(json));
    ASSERT_TRUE(parsed);
    EXPECT_EQ(annotationOf(*parsed), annotation);
    EXPECT_FALSE(toJson(annotationOfKind(Kind::line)).contains("bendPoint"));
}

// Each a change of a readable annotation that makes it unreadable.
TEST(AnnotationJson, refusesWhatIsNotExactlyAnAnnotation) {
    const QByteArray whole = toBytes(toJson(everyField()));
    const std::pair<const char *, const char *> changes[]{
        {"\"kind\"", "\"kin\""},
        {"\"text\",", "\"texts\","},
        {"\"width\": 4.0", "\"width\": \"4\""},
        {"\"width\": 4.0", "\"width\": 1e999"},
        {"\"width\": 4.0", "\"width\": NaN"},
        {"\"width\": 4.0", "\"width\": 4.0, \"width\": 5.0"},
        {"\"filled\": false", "\"filled\": 0"},
        {"\"value\": -3", "\"value\": -3.5"},
        {"\"value\": -3", "\"value\": 9223372036854775808"},
        {"\"strength\": 28", "\"strength\": 12"},
        {"11111111-", "{1111111-"},
        {"\"version\": 1", "\"version\": 4294967297"},
    };
    for (const auto &[from, to] : changes) {
        QByteArray changed = whole;
        changed.replace(from, to);
        ASSERT_NE(changed, whole) << from;
        const auto json = parseStrictly(changed);
        EXPECT_FALSE(json && annotationOf(*json)) << to;
    }
}

TEST(StrictJson, refusesHostileTexts) {
    EXPECT_FALSE(parseStrictly(QByteArray(1'000'000, '[')));
    EXPECT_FALSE(parseStrictly(QByteArray(40, '[') + QByteArray(40, ']')));
    EXPECT_FALSE(parseStrictly("{\"a\": {\"b\": 1, \"b\": 1}}"));
    EXPECT_FALSE(parseStrictly("\"\xff\""));
    EXPECT_FALSE(parseStrictly("{} {}"));
    EXPECT_FALSE(parseStrictly(""));
    EXPECT_TRUE(parseStrictly("{\"a\": {\"b\": 1}, \"c\": {\"b\": 1}}"));
}

QByteArray objectOf(int keys) {
    QByteArray json = "{";
    for (int key = 0; key < keys; ++key)
        json += (key > 0 ? ",\"" : "\"") + QByteArray::number(key) + "\":0";
    return json + "}";
}

TEST(StrictJson, readsManyValuesButNoObjectOfVeryManyKeys) {
    const auto objects = parseStrictly("[" + QByteArray("{},").repeated(200'000) + "{}]");
    EXPECT_TRUE(objects && objects->size() == 200'001);
    EXPECT_TRUE(parseStrictly(objectOf(500)));
    EXPECT_FALSE(parseStrictly(objectOf(200'000)));
}

TEST(StrictJson, keepsEveryCharacterOfAText) {
    const QString text = QStringLiteral("\ufeffa\u0000\u2028\U0001F600\ufeff");
    EXPECT_EQ(jsonText(Json(text.toStdString())), text);
}

TEST(ScreenshotAnnotation, isValidOnlyWithThePayloadOfItsKind) {
    for (const Kind kind : {Kind::arrow, Kind::pencil, Kind::line, Kind::rectangle, Kind::ellipse, Kind::text,
                            Kind::number, Kind::blur}) {
        const ScreenshotAnnotation sound = annotationOfKind(kind);
        EXPECT_TRUE(sound.hasValidPayload());
        ScreenshotAnnotation stranger = sound;
        stranger.text = kind == Kind::text ? std::nullopt : annotationOfKind(Kind::text).text;
        EXPECT_FALSE(stranger.hasValidPayload());
        stranger = sound;
        stranger.number = kind == Kind::number ? std::nullopt : annotationOfKind(Kind::number).number;
        EXPECT_FALSE(stranger.hasValidPayload());
        stranger = sound;
        stranger.blur = kind == Kind::blur ? std::nullopt : std::optional(EditorBlur());
        EXPECT_FALSE(stranger.hasValidPayload());
    }
}

TEST(ScreenshotAnnotation, keepsItsNumbersWithinBounds) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::pair<EditorNumber, bool> numbers[]{{{.value = 0, .diameter = 20}, false},
                                                  {{.value = 10'000, .diameter = 20}, false},
                                                  {{.value = 9'999, .diameter = 1'024}, true},
                                                  {{.value = 1, .diameter = 15}, false},
                                                  {{.value = 1, .diameter = nan}, false},
                                                  {{.value = 1, .diameter = 16, .fontSize = 300}, false},
                                                  {{.value = -5, .diameter = 16, .fontSize = 8}, true}};
    for (const auto &[number, isValid] : numbers)
        EXPECT_EQ(number.isValid(), isValid) << number.value << ' ' << number.diameter;
    EXPECT_DOUBLE_EQ((EditorNumber{.value = 99, .diameter = 100}.resolvedFontSize()), 46);
    EXPECT_DOUBLE_EQ((EditorNumber{.value = 100, .diameter = 100}.resolvedFontSize()), 30);

    const EditorText text = *annotationOfKind(Kind::text).text;
    const auto with = [&text](auto change) {
        EditorText changed = text;
        change(changed);
        return changed.isValid();
    };
    EXPECT_TRUE(with([](EditorText &t) { t.string = QString(100'000, u'x'); }));
    EXPECT_FALSE(with([](EditorText &t) { t.string = QString(100'001, u'x'); }));
    EXPECT_FALSE(with([](EditorText &t) { t.fontSize = 7.9; }));
    EXPECT_FALSE(with([](EditorText &t) { t.maximumWidth = 100'001; }));
    EXPECT_FALSE(with([nan](EditorText &t) { t.background.a = nan; }));
    EXPECT_FALSE(with([](EditorText &t) { t.background.r = 1.2; }));
}

TEST(EditorTool, knowsItsRawValues) {
    EXPECT_EQ(editorTool(9), EditorTool::blur);
    EXPECT_EQ(annotationKind(*editorTool(4)), Kind::line);
    EXPECT_FALSE(annotationKind(EditorTool::crop));
    EXPECT_FALSE(editorTool(10));
    EXPECT_FALSE(editorTool(-1));
}

TEST(EditorObjectClipboard, readsBothVersionsAndNothingElse) {
    const ScreenshotAnnotation arrow = annotationOfKind(Kind::arrow);
    const QByteArray one = toBytes(toJson(arrow));
    FakePasteboard pasteboard;
    ASSERT_TRUE(EditorObjectClipboard::write({arrow, arrow}, pasteboard));
    ASSERT_EQ(pasteboard.items.size(), 1U);
    EXPECT_EQ(pasteboard.items.front().type, QStringLiteral("local.dova.Pavrell.annotation"));
    pasteboard.offered.setData(pasteboard.items.front().type, pasteboard.items.front().data);
    EXPECT_EQ(EditorObjectClipboard::read(pasteboard), (std::vector{arrow, arrow}));

    EXPECT_EQ(EditorObjectClipboard::decode("{\"version\": 1, \"annotation\": " + one + "}"),
              std::vector{arrow});
    EXPECT_FALSE(EditorObjectClipboard::decode("{\"version\": 3, \"annotations\": [" + one + "]}"));
    EXPECT_FALSE(EditorObjectClipboard::decode("{\"version\": 2, \"annotation\": " + one + "}"));
    ScreenshotAnnotation broken = arrow;
    broken.text = annotationOfKind(Kind::text).text;
    EXPECT_FALSE(EditorObjectClipboard::decode("{\"version\": 2, \"annotations\": [" +
                                               toBytes(toJson(broken)) + "]}"));
}

TEST(EditorDrawingPreferences, keepsTheLastColourAndDoubtsWhatItFinds) {
    MemoryUserDefaults defaults;
    const QString key = QStringLiteral("editor.lastDrawingColor");
    EditorDrawingPreferences::setColor(defaults, QColor(0, 128, 255, 51));
    EXPECT_EQ(EditorDrawingPreferences::color(defaults), (EditorColor{0, 128 / 255.0, 1, 0.2}));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const QList<double> &kept :
         {QList<double>{1, 1, 1}, {1, 1.2, 0, 1}, {nan, 0, 0, 1}, {0, 0, 0, 1, 1}}) {
        defaults.setNumberArray(key, kept);
        EXPECT_EQ(EditorDrawingPreferences::color(defaults), EditorColor::from(QColor(0xff, 0x4f, 0x57)));
    }
}

TEST(ScreenshotEdits, readsWhatIsToBeDrawn) {
    const QByteArray arrow = toBytes(toJson(annotationOfKind(Kind::arrow)));
    const auto edits =
        ScreenshotEdits::read("{\"annotations\": [" + arrow +
                              "], \"cropRect\": {\"x\": 1, \"y\": 2, \"width\": 3, \"height\": 4}}");
    ASSERT_TRUE(edits);
    EXPECT_EQ(edits->annotations.size(), 1U);
    EXPECT_EQ(edits->cropRect, QRectF(1, 2, 3, 4));
    EXPECT_TRUE(ScreenshotEdits::read("{}"));
    const std::pair<const char *, const char *> failures[]{
        {"[]", "The edits are not readable JSON."},
        {"{\"annotations\": [{}]}", "This annotation couldn’t be opened."},
        {"{\"cropRect\": [1, 2, 3, 4]}", "This crop couldn’t be opened."}};
    for (const auto &[json, sentence] : failures) {
        const auto failed = ScreenshotEdits::read(json);
        ASSERT_FALSE(failed);
        EXPECT_EQ(failed.error().message, QString::fromUtf8(sentence));
    }
}

TEST(ScreenshotEditRecord, survivesTheJourneyToTheNanosecond) {
    ScreenshotEditRecord record{.id = QUuid::createUuid(),
                                .path = QStringLiteral("/home/me/Bild 1.png"),
                                .bookmark = QByteArray("\0\xff", 2),
                                .fingerprint = QString(64, u'a'),
                                .annotations = {everyField()},
                                .cropRect = QRectF(0, 1, 20, 30),
                                .fileSize = 5'000'000'000,
                                .modifiedAt = Instant(std::chrono::nanoseconds(1'763'720'122'000'000'007))};
    const auto reading = ScreenshotEditRecord::decode(record.encode(QStringLiteral("/home/me/.t")));
    ASSERT_TRUE(reading);
    EXPECT_EQ(std::get<ScreenshotEditRecord>(*reading), record);
    EXPECT_EQ(ScreenshotEditRecord::decodeTemporary(record.encode(QStringLiteral("/t"))),
              QStringLiteral("/t"));

    record.schema = 3;
    const auto foreign = ScreenshotEditRecord::decode(record.encode());
    ASSERT_TRUE(foreign);
    EXPECT_EQ(std::get<ScreenshotEditRecord::Foreign>(*foreign).path, record.path);
    EXPECT_FALSE(ScreenshotEditRecord::decode("{\"schema\": 2}"));
}

} // namespace
} // namespace tembra
