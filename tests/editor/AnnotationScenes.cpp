#include "AnnotationScenes.h"

#include "DrawnAnnotations.h"
#include "editor/model/AnnotationPainter.h"

#include <QPainter>

namespace tembra {

using namespace annotations;
using namespace Qt::StringLiterals;

namespace {

using Background = AnnotationScene::Background;

// Light and dark, plain and busy: everything that a mark may be lost on.
QColor photoColor(int x, int y) {
    const int cellX = x / 18;
    const int cellY = y / 18;
    const int grain = (cellX * 7 + cellY * 13 + cellX * cellY * 3) % 11 * 9;
    return QColor::fromHsv((cellX * 27 + cellY * 14) % 360, 90 + grain,
                           std::min(255, 40 + cellX * 20 + grain / 2));
}

QColor backgroundColor(Background background, int x, int y) {
    switch (background) {
    case Background::white:
        return Qt::white;
    case Background::black:
        return Qt::black;
    case Background::red:
        return red.toColor();
    case Background::photo:
        return photoColor(x, y);
    }
    Q_UNREACHABLE();
}

QImage backgroundImage(const AnnotationScene &scene) {
    QImage image(scene.size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, backgroundColor(scene.background, x, y));
    }
    return image;
}

// Every kind once or more.
std::vector<ScreenshotAnnotation> everyKind() {
    return {shape(Kind::rectangle, {14, 14, 84, 44}, blue, 5),
            shape(Kind::ellipse, {112, 14, 76, 44}, green, 5),
            shape(Kind::rectangle, {14, 74, 44, 26}, orange, 4, true),
            shape(Kind::ellipse, {70, 74, 44, 26}, black, 4, true),
            make(Kind::line, {{16, 122}, {60, 112}}, yellow, 5),
            arrow({108, 124}, {186, 74}, red, 6, EditorPoint{160, 112}),
            pencil(wave({66, 112, 40, 14}, 30), white, 4),
            number({100, 36}, 4, 26, red),
            text({118, 112}, u"Here"_s, 15, red)};
}

std::vector<ScreenshotAnnotation> arrows() {
    return {arrow({14, 20}, {186, 20}, red, 3),
            arrow({14, 46}, {140, 46}, red, 7),
            arrow({20, 120}, {180, 70}, blue, 10, EditorPoint{88, 74}),
            arrow({150, 44}, {186, 44}, green, 7),
            arrow({160, 116}, {170, 110}, black, 7),
            arrow({184, 118}, {184, 118}, black, 7),
            arrow({110, 124}, {110, 100}, orange, 5, EditorPoint{146, 112})};
}

std::vector<ScreenshotAnnotation> strokes() {
    return {pencil(wave({14, 14, 172, 30}, 60), red, 8), pencil(wave({14, 56, 172, 20}, 400), blue, 3),
            pencil(loops({14, 86, 150, 36}, 90), green, 6), pencil({{184, 106}}, black, 9),
            make(Kind::pencil, {{20, 50}, {60, 48}, {100, 52}}, black, 3)};
}

std::vector<ScreenshotAnnotation> overlapping() {
    return {pencil(loops({14, 12, 172, 48}, 90), translucent(yellow, 0.5), 14),
            arrow({20, 118}, {180, 76}, translucent(red, 0.5), 12, EditorPoint{90, 78}),
            shape(Kind::rectangle, {120, 86, 64, 34}, translucent(blue, 0.4), 8),
            number({30, 80}, 7, 28, translucent(green, 0.6))};
}

std::vector<ScreenshotAnnotation> shapes() {
    return {shape(Kind::rectangle, {10, 10, 50, 34}, red, 2),
            shape(Kind::rectangle, {74, 12, 50, 30}, red, 8),
            shape(Kind::rectangle, {140, 20, 40, 4}, red, 8),
            shape(Kind::ellipse, {10, 56, 50, 30}, red, 2),
            shape(Kind::ellipse, {76, 58, 46, 28}, red, 9),
            shape(Kind::ellipse, {142, 70, 40, 2}, red, 5),
            shape(Kind::rectangle, {10, 98, 50, 24}, red, 4, true),
            shape(Kind::ellipse, {74, 98, 50, 24}, red, 4, true),
            shape(Kind::rectangle, {142, 96, 14, 26}, red, 16, true)};
}

std::vector<ScreenshotAnnotation> texts() {
    return {text({8, 6}, u"Click here next"_s, 18, white, red),
            text({8, 50}, u"It wraps where the box ends, Donaudampfschifffahrt\nand here"_s, 13, black,
                 yellow, 110),
            text({146, 44}, u"fi\n42"_s, 26, blue), text({8, 142}, u"No background"_s, 14, red),
            text({120, 142}, u"faint"_s, 14, black, translucent(white, 0.5))};
}

std::vector<ScreenshotAnnotation> scripts() {
    return {text({6, 4}, u"שלום עולם 123\nabc"_s, 16, white, blue),
            text({6, 66}, u"مرحبا بالعالم"_s, 20, black, yellow),
            text({110, 20}, u"Ελλάδα\nПривет"_s, 16, red)};
}

std::vector<ScreenshotAnnotation> badges() {
    return {number({24, 26}, 1, 34, red),
            number({66, 26}, 2, 34, orange),
            number({108, 26}, 47, 34, blue),
            number({156, 26}, 128, 40, black),
            number({32, 78}, 9999, 48, green),
            number({84, 78}, 8, 18, white),
            number({118, 78}, 10, 18, yellow),
            [] {
                ScreenshotAnnotation wide = number({160, 78}, 2026, 30, red);
                wide.number->fontSize = 18;
                return wide;
            }()};
}

} // namespace

std::vector<AnnotationScene> annotationScenes() {
    constexpr QSize size(200, 134);
    std::vector<AnnotationScene> scenes{
        {"everything-on-white", size, Background::white, everyKind(), {}},
        {"everything-on-black", size, Background::black, everyKind(), {}},
        {"everything-on-red", size, Background::red, everyKind(), {}},
        {"everything-on-photo", size, Background::photo, everyKind(), {}},
        {"arrows", size, Background::white, arrows(), {}},
        {"strokes", size, Background::white, strokes(), {}},
        {"overlapping-translucent", size, Background::photo, overlapping(), {}},
        {"shapes", size, Background::white, shapes(), {}},
        {"texts", {220, 180}, Background::photo, texts(), {}},
        {"scripts", {200, 110}, Background::white, scripts(), u"DejaVu Sans"_s},
        {"badges-on-white", {200, 110}, Background::white, badges(), {}},
        {"badges-on-photo", {200, 110}, Background::photo, badges(), {}},
    };
    return scenes;
}

QImage drawnScene(const AnnotationScene &scene, double scale, const QRect &part) {
    QImage image((QSizeF(part.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.translate(-part.topLeft());
    painter.drawImage(0, 0, backgroundImage(scene));
    drawAnnotations(scene.annotations, painter);
    return image;
}

} // namespace tembra
