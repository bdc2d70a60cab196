#include "editor/model/ScreenshotEdits.h"

#include "editor/model/AnnotationJson.h"
#include "editor/model/ScreenshotEditError.h"

#include <algorithm>

namespace tembra {

Result<ScreenshotEdits> ScreenshotEdits::read(QByteArrayView bytes) {
    const auto json = parseStrictly(bytes);
    if (!json || !json->is_object())
        return editFailure(ScreenshotEditError::unreadableEdits);
    // Each by itself, so that the sentence names what is at fault.
    JsonFields annotationField(*json);
    auto annotations = annotationField.optional("annotations", annotationsOf);
    if (!annotationField.isComplete() ||
        (annotations && !std::ranges::all_of(*annotations, &ScreenshotAnnotation::hasValidPayload)))
        return editFailure(ScreenshotEditError::unreadableAnnotation);
    JsonFields cropField(*json);
    const auto cropRect = cropField.optional("cropRect", rectOf);
    if (!cropField.isComplete())
        return editFailure(ScreenshotEditError::unreadableCrop);
    return ScreenshotEdits{.annotations =
                               std::move(annotations).value_or(std::vector<ScreenshotAnnotation>()),
                           .cropRect = cropRect};
}

} // namespace tembra
