#pragma once

#include "editor/model/ScreenshotAnnotation.h"

#include <cmath>

// Annotations as a user draws them.
namespace tembra::annotations {

using Kind = ScreenshotAnnotation::Kind;

inline constexpr EditorColor red{1.0, 0.31, 0.34, 1};
inline constexpr EditorColor blue{0.16, 0.47, 1.0, 1};
inline constexpr EditorColor green{0.18, 0.76, 0.36, 1};
inline constexpr EditorColor orange{1.0, 0.62, 0.18, 1};
inline constexpr EditorColor yellow{1.0, 0.86, 0.2, 1};
inline constexpr EditorColor black{0.07, 0.07, 0.08, 1};
inline constexpr EditorColor white{1, 1, 1, 1};

inline EditorColor translucent(EditorColor color, double alpha) {
    color.a = alpha;
    return color;
}

inline ScreenshotAnnotation make(Kind kind, std::vector<EditorPoint> points, EditorColor color,
                                 double width) {
    return {.id = QUuid::createUuid(),
            .kind = kind,
            .points = std::move(points),
            .color = color,
            .width = width,
            .bendPoint = {},
            .filled = {},
            .text = {},
            .number = {},
            .blur = {},
            .pencil = {}};
}

inline ScreenshotAnnotation arrow(EditorPoint from, EditorPoint to, EditorColor color, double width,
                                  std::optional<EditorPoint> bend = {}) {
    ScreenshotAnnotation result = make(Kind::arrow, {from, to}, color, width);
    result.bendPoint = bend;
    return result;
}

inline ScreenshotAnnotation shape(Kind kind, QRectF rect, EditorColor color, double width,
                                  bool filled = false) {
    ScreenshotAnnotation result =
        make(kind, {EditorPoint::from(rect.topLeft()), EditorPoint::from(rect.bottomRight())}, color, width);
    result.filled = filled;
    return result;
}

inline ScreenshotAnnotation text(EditorPoint at, const QString &string, double fontSize, EditorColor color,
                                 EditorColor background = {}, double maximumWidth = 10'000) {
    ScreenshotAnnotation result = make(Kind::text, {at}, color, 4);
    result.text = EditorText{string, fontSize, background, maximumWidth};
    return result;
}

inline ScreenshotAnnotation number(EditorPoint at, std::int64_t value, double diameter, EditorColor color) {
    ScreenshotAnnotation result = make(Kind::number, {at}, color, 4);
    result.number = EditorNumber{value, diameter, {}};
    return result;
}

inline ScreenshotAnnotation pencil(std::vector<EditorPoint> samples, EditorColor color, double width) {
    ScreenshotAnnotation result = make(Kind::pencil, std::move(samples), color, width);
    result.pencil = EditorPencil{};
    return result;
}

// A wave as a pointer draws it: whole pixels, in steps that change with its speed.
inline std::vector<EditorPoint> wave(QRectF area, int samples) {
    std::vector<EditorPoint> result;
    for (int at = 0; at < samples; ++at) {
        const double part = static_cast<double>(at) / (samples - 1);
        const double way = part * part * (3 - 2 * part);
        result.push_back({std::round(area.left() + area.width() * way),
                          std::round(area.center().y() - area.height() / 2 * std::sin(way * 14))});
    }
    return result;
}

// Round and round, over itself.
inline std::vector<EditorPoint> loops(QRectF area, int samples) {
    std::vector<EditorPoint> result;
    for (int at = 0; at < samples; ++at) {
        const double way = static_cast<double>(at) / (samples - 1);
        const double angle = way * 19;
        result.push_back({area.left() + area.height() / 2 + (area.width() - area.height()) * way -
                              area.height() / 2 * std::cos(angle),
                          area.center().y() - area.height() / 2 * std::sin(angle)});
    }
    return result;
}

} // namespace tembra::annotations
