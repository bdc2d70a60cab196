#pragma once

#include "base/Cancellation.h"
#include "base/Result.h"
#include "recognition/model/OCRInput.h"

#include <QImage>

namespace tembra {

class PictureDecoder;

// Opens the image whose text is wanted. Upright, 32 bits a pixel. Any thread. Error: in
// `OCRPicture::errorDomain`, with a sentence that says why.
struct OCRPicture {
    static inline const QString errorDomain = QStringLiteral("Tembra.OCRPicture");
    enum ErrorCode {
        // The file is not there, or not a file.
        missing = 1,
        // No image, damaged, or too large.
        unreadable,
        // More than one image in turn.
        animation,
    };

    // Any error when it is cancelled.
    [[nodiscard]] static Result<QImage> open(const OCRInput &input, const PictureDecoder &decoder,
                                             const Cancellation &cancellation = {});
};

} // namespace tembra
