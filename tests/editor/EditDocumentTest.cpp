#include "editor/model/EditorCropSession.h"
#include "editor/model/ScreenshotEditDocument.h"
#include "editor/model/ScreenshotEditPreviewRequest.h"
#include "support/Annotations.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tembra {
namespace {

using Kind = ScreenshotAnnotation::Kind;

ScreenshotAnnotation badge(std::int64_t value) {
    ScreenshotAnnotation annotation = annotationOfKind(Kind::number);
    annotation.id = QUuid::createUuid();
    annotation.number->value = value;
    return annotation;
}

std::vector<ScreenshotAnnotation> badges(std::initializer_list<std::int64_t> values) {
    std::vector<ScreenshotAnnotation> annotations;
    for (const std::int64_t value : values)
        annotations.push_back(badge(value));
    return annotations;
}

ScreenshotEditLoaded loadedWith(std::vector<ScreenshotAnnotation> annotations) {
    ScreenshotEditLoaded loaded{.expectedHash = QStringLiteral("hash"), .size = QSize(100, 80)};
    loaded.record.annotations = std::move(annotations);
    return loaded;
}

TEST(ScreenshotEditDocument, numbersBadgesOn) {
    const std::pair<std::vector<ScreenshotAnnotation>, std::int64_t> cases[]{
        {{}, 1}, {badges({7, 2}), 8}, {badges({-1}), 1}, {badges({-7}), -6}};
    for (const auto &[annotations, next] : cases)
        EXPECT_EQ(ScreenshotEditDocument(loadedWith(annotations)).nextNumber(), next);

    const ScreenshotEditDocument document(loadedWith(badges({9'997})));
    EXPECT_TRUE(document.canNumberCopies(badges({1, 2})));
    EXPECT_FALSE(document.canNumberCopies(badges({1, 2, 3})));
    std::vector<ScreenshotAnnotation> originals = badges({40, 3});
    originals.insert(originals.begin() + 1, annotationOfKind(Kind::arrow));
    const auto copies = document.numberedCopies(originals);
    EXPECT_EQ(copies[0].number->value, 9'998);
    EXPECT_EQ(copies[2].number->value, 9'999);
    EXPECT_NE(copies[1].id, originals[1].id);
    EXPECT_EQ(copies[1].points, originals[1].points);
}

TEST(ScreenshotEditDocument, undoesEveryChangeWithItsSelectionKeptSound) {
    ScreenshotEditDocument document(loadedWith(badges({1, 2, 3})));
    int changes = 0;
    document.onChange = [&changes] { ++changes; };
    const auto ids = document.annotations();
    document.setSelectedIDs({ids[0].id, ids[2].id});
    EXPECT_EQ(document.selectedAnnotations().size(), 2U);
    EXPECT_FALSE(document.editingBegan());

    document.deleteSelection();
    EXPECT_EQ(document.annotations().size(), 1U);
    EXPECT_TRUE(document.selectedIDs().isEmpty());
    EXPECT_EQ(document.history().undoText(), QStringLiteral("Delete annotations"));
    document.applyCrop(QRectF(0, 0, 100, 80));
    EXPECT_EQ(document.history().undoText(), QStringLiteral("Crop"));
    EXPECT_TRUE(document.isDirty());

    document.history().undo();
    document.history().undo();
    EXPECT_EQ(document.annotations(), document.openingAnnotations());
    EXPECT_FALSE(document.isDirty());
    EXPECT_TRUE(document.editingBegan());
    document.history().redo();
    EXPECT_EQ(document.annotations().size(), 1U);
    EXPECT_EQ(changes, 6);
}

TEST(ScreenshotEditDocument, knowsWhatIsSaved) {
    ScreenshotEditDocument document(loadedWith(badges({1})));
    auto saved = loadedWith(document.annotations());
    saved.expectedHash = QStringLiteral("hash 2");
    saved.record.cropRect = QRectF(0, 0, 100, 80);
    EXPECT_FALSE(document.matchesSavedImage(saved));
    // A crop of everything is a crop.
    document.applyCrop(QRectF(0, 0, 100, 80));
    EXPECT_TRUE(document.isDirty());
    document.refreshBaseline(saved);
    EXPECT_FALSE(document.isDirty());
    EXPECT_TRUE(document.matchesSavedImage(saved));
}

TEST(EditorCropSession, acceptsWholePixelsWithinTheImage) {
    const QRectF image(0, 0, 100, 80);
    const std::pair<QRectF, bool> crops[]{{image, true},
                                          {{99, 79, 1, 1}, true},
                                          {{0.5, 0, 10, 10}, false},
                                          {{0, 0, 10.5, 10}, false},
                                          {{0, 0, 0, 10}, false},
                                          {{1, 0, 100, 80}, false},
                                          {{-1, 0, 10, 10}, false},
                                          {{std::nan(""), 0, 10, 10}, false},
                                          {{0, 0, INFINITY, 10}, false}};
    for (const auto &[crop, isValid] : crops)
        EXPECT_EQ(EditorCropSession::valid(crop, image), isValid) << crop.x() << ' ' << crop.width();
}

TEST(EditorCropSession, dragsEdgesButNeverInsideOut) {
    struct Drag {
        std::optional<int> handle;
        QPointF by;
        QRectF result;
    };
    const Drag drags[]{{7, {100, 9}, {59, 10, 1, 30}},     {0, {-100, -100}, {0, 0, 60, 40}},
                       {3, {100, 100}, {20, 10, 80, 30}},  {4, {-100, 0.4}, {20, 10, 1, 30}},
                       {1, {50, 5.5}, {20, 16, 40, 24}},   {{}, {-50, 1}, {0, 11, 40, 30}},
                       {{}, {100, 100}, {60, 50, 40, 30}}, {6, {5, -100}, {25, 10, 35, 1}}};
    for (const auto &[handle, by, result] : drags) {
        EditorCropSession session(QSizeF(100, 80), QRectF(20, 10, 40, 30));
        session.drag(QPointF(90, 90));
        session.beginDrag(QPointF(3, 3), handle);
        session.drag(QPointF(3, 3) + by);
        EXPECT_EQ(session.rect(), result) << handle.value_or(-1);
        session.endDrag();
        session.drag(QPointF());
        EXPECT_EQ(session.rect(), result);
    }
}

TEST(EditorCropSession, findsTheNearestHandleInASquare) {
    const auto handles = EditorCropSession::handlePositions(QRectF(100, 100, 20, 200));
    EXPECT_EQ(EditorCropSession::handleAt({132, 312}, handles), 4);
    EXPECT_FALSE(EditorCropSession::handleAt({132.5, 312}, handles));
    EXPECT_EQ(EditorCropSession::handleAt({104, 100}, handles), 0);
    EXPECT_EQ(EditorCropSession::handleAt({107, 100}, handles), 1);
    EXPECT_FALSE(EditorCropSession::handleAt({110, 150}, handles));
}

TEST(ScreenshotEditPreviewRequest, asksForWhatTheScreenShows) {
    ScreenshotEditPreviewRequest request{
        .available = QSizeF(1'000, 1'000), .backingScale = 2, .minimumZoom = 0.1, .maximumZoom = 8};
    EXPECT_EQ(request.maximumPixelSize({1'000, 800}, {}), 1'000);
    EXPECT_EQ(request.maximumPixelSize({8'000, 4'000}, {}), 2'560);
    EXPECT_EQ(request.maximumPixelSize({8'000, 4'000}, QRectF(0, 0, 4'000, 2'000)), 4'000);
    EXPECT_EQ(request.maximumPixelSize({8'000, 4'000}, QRectF(0, 0, 10, 10)), 8'000);
    EXPECT_EQ(request.maximumPixelSize({0, 4'000}, {}), 2'560);
    request.available = {};
    EXPECT_EQ(request.maximumPixelSize({8'000, 4'000}, {}), 2'560);
}

} // namespace
} // namespace tembra
