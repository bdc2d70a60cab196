#include "editor/model/AnnotationJson.h"

#include "editor/model/UuidText.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace tembra {

namespace {

using Kind = ScreenshotAnnotation::Kind;

constexpr std::array<std::pair<Kind, std::string_view>, 8> kindNames{{{Kind::arrow, "arrow"},
                                                                      {Kind::pencil, "pencil"},
                                                                      {Kind::line, "line"},
                                                                      {Kind::rectangle, "rectangle"},
                                                                      {Kind::ellipse, "ellipse"},
                                                                      {Kind::text, "text"},
                                                                      {Kind::number, "number"},
                                                                      {Kind::blur, "blur"}}};

std::string_view nameOf(Kind kind) {
    return std::ranges::find(kindNames, kind, &decltype(kindNames)::value_type::first)->second;
}

std::optional<Kind> kindOf(const Json &json) {
    if (!json.is_string())
        return std::nullopt;
    const auto found = std::ranges::find(kindNames, json.get_ref<const std::string &>(),
                                         &decltype(kindNames)::value_type::second);
    return found == kindNames.end() ? std::nullopt : std::optional(found->first);
}

Json toJson(const EditorPoint &point) {
    return {{"x", point.x}, {"y", point.y}};
}

std::optional<EditorPoint> pointOf(const Json &json) {
    JsonFields fields(json);
    const EditorPoint point{.x = fields.required("x", jsonNumber), .y = fields.required("y", jsonNumber)};
    return fields.orNothing(point);
}

Json toJson(const EditorColor &color) {
    return {{"r", color.r}, {"g", color.g}, {"b", color.b}, {"a", color.a}};
}

std::optional<EditorColor> colorOf(const Json &json) {
    JsonFields fields(json);
    const EditorColor color{.r = fields.required("r", jsonNumber),
                            .g = fields.required("g", jsonNumber),
                            .b = fields.required("b", jsonNumber),
                            .a = fields.required("a", jsonNumber)};
    return fields.orNothing(color);
}

Json toJson(const EditorText &text) {
    return {{"string", text.string.toStdString()},
            {"fontSize", text.fontSize},
            {"background", toJson(text.background)},
            {"maximumWidth", text.maximumWidth}};
}

std::optional<EditorText> textOf(const Json &json) {
    JsonFields fields(json);
    EditorText text{.string = fields.required("string", jsonText),
                    .fontSize = fields.required("fontSize", jsonNumber),
                    .background = fields.required("background", colorOf),
                    .maximumWidth = fields.required("maximumWidth", jsonNumber)};
    return fields.orNothing(std::move(text));
}

Json toJson(const EditorNumber &number) {
    Json json{{"value", number.value}, {"diameter", number.diameter}};
    if (number.fontSize)
        json["fontSize"] = *number.fontSize;
    return json;
}

std::optional<EditorNumber> numberOf(const Json &json) {
    JsonFields fields(json);
    const EditorNumber number{.value = fields.required("value", jsonInteger),
                              .diameter = fields.required("diameter", jsonNumber),
                              .fontSize = fields.optional("fontSize", jsonNumber)};
    return fields.orNothing(number);
}

std::optional<EditorBlur::Strength> strengthOf(const Json &json) {
    const auto value = jsonInteger(json);
    const auto found = std::ranges::find_if(EditorBlur::strengths, [value](EditorBlur::Strength strength) {
        return value == static_cast<std::int64_t>(strength);
    });
    return found == EditorBlur::strengths.end() ? std::nullopt : std::optional(*found);
}

std::optional<EditorBlur> blurOf(const Json &json) {
    JsonFields fields(json);
    return fields.orNothing(EditorBlur{.strength = fields.required("strength", strengthOf)});
}

std::optional<int> versionOf(const Json &json) {
    const auto value = jsonInteger(json);
    return value && std::in_range<int>(*value) ? std::optional(static_cast<int>(*value)) : std::nullopt;
}

Json toJson(const EditorPencil &pencil) {
    return {{"version", pencil.version},
            {"endWidthRatio", pencil.endWidthRatio},
            {"tailFraction", pencil.tailFraction}};
}

std::optional<EditorPencil> pencilOf(const Json &json) {
    JsonFields fields(json);
    const EditorPencil pencil{.version = fields.required("version", versionOf),
                              .endWidthRatio = fields.required("endWidthRatio", jsonNumber),
                              .tailFraction = fields.required("tailFraction", jsonNumber)};
    return fields.orNothing(pencil);
}

template <class Value>
void insert(Json &json, const char *key, const std::optional<Value> &value) {
    if (value)
        json[key] = toJson(*value);
}

} // namespace

Json toJson(const QUuid &id) {
    return uuidText(id).toStdString();
}

Json toJson(const ScreenshotAnnotation &annotation) {
    Json points = Json::array();
    for (const EditorPoint &point : annotation.points)
        points.push_back(toJson(point));
    Json json{{"id", toJson(annotation.id)},
              {"kind", std::string(nameOf(annotation.kind))},
              {"points", std::move(points)},
              {"color", toJson(annotation.color)},
              {"width", annotation.width}};
    insert(json, "bendPoint", annotation.bendPoint);
    if (annotation.filled)
        json["filled"] = *annotation.filled;
    insert(json, "text", annotation.text);
    insert(json, "number", annotation.number);
    if (annotation.blur)
        json["blur"] = {{"strength", static_cast<int>(annotation.blur->strength)}};
    insert(json, "pencil", annotation.pencil);
    return json;
}

Json toJson(const std::vector<ScreenshotAnnotation> &annotations) {
    Json json = Json::array();
    for (const ScreenshotAnnotation &annotation : annotations)
        json.push_back(toJson(annotation));
    return json;
}

std::optional<ScreenshotAnnotation> annotationOf(const Json &json) {
    JsonFields fields(json);
    ScreenshotAnnotation annotation{
        .id = fields.required("id", jsonUuid),
        .kind = fields.required("kind", kindOf),
        .points = fields.required("points", [](const Json &points) { return jsonArray(points, pointOf); }),
        .color = fields.required("color", colorOf),
        .width = fields.required("width", jsonNumber),
        .bendPoint = fields.optional("bendPoint", pointOf),
        .filled = fields.optional("filled", jsonBoolean),
        .text = fields.optional("text", textOf),
        .number = fields.optional("number", numberOf),
        .blur = fields.optional("blur", blurOf),
        .pencil = fields.optional("pencil", pencilOf)};
    return fields.orNothing(std::move(annotation));
}

std::optional<std::vector<ScreenshotAnnotation>> annotationsOf(const Json &json) {
    return jsonArray(json, annotationOf);
}

Json toJson(const QRectF &rect) {
    return {{"x", rect.x()}, {"y", rect.y()}, {"width", rect.width()}, {"height", rect.height()}};
}

std::optional<QRectF> rectOf(const Json &json) {
    JsonFields fields(json);
    const QRectF rect(fields.required("x", jsonNumber), fields.required("y", jsonNumber),
                      fields.required("width", jsonNumber), fields.required("height", jsonNumber));
    return fields.orNothing(rect);
}

} // namespace tembra
