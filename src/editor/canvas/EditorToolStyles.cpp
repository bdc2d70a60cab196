#include "editor/canvas/EditorToolStyles.h"

#include "editor/canvas/AnnotationEditing.h"
#include "editor/model/EditorDrawingPreferences.h"

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

using Kind = ScreenshotAnnotation::Kind;

// By the image's unit.
double usualSize(Kind kind) {
    switch (kind) {
    case Kind::arrow:
        return 7;
    case Kind::text:
        return 24;
    case Kind::number:
        return 48;
    default:
        return 6;
    }
}

QString keyFor(Kind kind) {
    switch (kind) {
    case Kind::arrow:
        return QStringLiteral("editor.style.arrow");
    case Kind::pencil:
        return QStringLiteral("editor.style.pencil");
    case Kind::line:
        return QStringLiteral("editor.style.line");
    case Kind::rectangle:
        return QStringLiteral("editor.style.rectangle");
    case Kind::ellipse:
        return QStringLiteral("editor.style.ellipse");
    case Kind::text:
        return QStringLiteral("editor.style.text");
    case Kind::number:
        return QStringLiteral("editor.style.number");
    case Kind::blur:
        return QStringLiteral("editor.style.blur");
    }
    Q_UNREACHABLE();
}

EditorBlur::Strength strengthNearest(double value) {
    return *std::ranges::min_element(EditorBlur::strengths, {}, [value](EditorBlur::Strength strength) {
        return std::abs(static_cast<int>(strength) - value);
    });
}

} // namespace

EditorStyle EditorToolStyles::style(Kind kind, QSizeF image) const {
    EditorStyle style{.color = EditorDrawingPreferences::color(m_defaults)};
    double size = usualSize(kind);
    const auto kept = m_defaults.numberArray(keyFor(kind));
    // Size, filled, background, strength.
    if (kept && kept->size() == 4 && std::ranges::all_of(*kept, [](double n) { return std::isfinite(n); })) {
        size = kept->at(0);
        style.isFilled = kept->at(1) != 0;
        style.hasBackground = kept->at(2) != 0;
        style.strength = strengthNearest(kept->at(3));
    }
    const auto [least, most] = annotationEditing::sizeLimits(kind);
    style.size = std::clamp(std::round(size * annotationEditing::imageUnit(image)), least, most);
    return style;
}

void EditorToolStyles::remember(Kind kind, const EditorStyle &style, QSizeF image) {
    if (kind != Kind::blur && style.color != EditorDrawingPreferences::color(m_defaults))
        EditorDrawingPreferences::setColor(m_defaults, style.color.toColor());
    if (style == this->style(kind, image))
        return;
    m_defaults.setNumberArray(keyFor(kind),
                              {style.size / annotationEditing::imageUnit(image), style.isFilled ? 1.0 : 0.0,
                               style.hasBackground ? 1.0 : 0.0, static_cast<double>(style.strength)});
}

} // namespace tembra
