#include "editor/model/EditorObjectClipboard.h"

#include "editor/model/AnnotationJson.h"

#include <QMimeData>

#include <algorithm>

namespace tembra {

namespace {

constexpr int currentVersion = 2;
// Carries a single annotation.
constexpr int singleVersion = 1;

using Annotations = std::optional<std::vector<ScreenshotAnnotation>>;

Annotations annotationsIn(const Json &payload) {
    JsonFields fields(payload);
    const auto version = fields.required("version", jsonInteger);
    if (version == currentVersion)
        return fields.orNothing(fields.required("annotations", annotationsOf));
    if (version == singleVersion)
        return fields.orNothing(std::vector{fields.required("annotation", annotationOf)});
    return std::nullopt;
}

} // namespace

Result<void> EditorObjectClipboard::write(const std::vector<ScreenshotAnnotation> &annotations,
                                          Pasteboard &pasteboard) {
    const Json payload{{"version", currentVersion}, {"annotations", toJson(annotations)}};
    return pasteboard.writeObjects({{.type = type, .data = toBytes(payload)}});
}

Annotations EditorObjectClipboard::read(Pasteboard &pasteboard) {
    const QMimeData *content = pasteboard.content();
    return content && content->hasFormat(type) ? decode(content->data(type)) : std::nullopt;
}

Annotations EditorObjectClipboard::decode(QByteArrayView payload) {
    const auto json = parseStrictly(payload);
    if (!json)
        return std::nullopt;
    auto annotations = annotationsIn(*json);
    const auto isSound = [](const ScreenshotAnnotation &annotation) {
        return annotation.isFinite() && annotation.hasValidPayload();
    };
    return annotations && std::ranges::all_of(*annotations, isSound) ? std::move(annotations) : std::nullopt;
}

} // namespace tembra
