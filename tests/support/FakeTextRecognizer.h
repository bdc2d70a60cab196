#pragma once

#include "platform/TextRecognizer.h"

#include <functional>

namespace tembra {

// Finds in every picture what the test says is there. A call that is cancelled meanwhile ends as such.
class FakeTextRecognizer final : public TextRecognizer {
public:
    [[nodiscard]] Result<std::vector<Line>> recognize(const QImage &image,
                                                      const Cancellation &cancellation) const override {
        sizes.push_back(image.size());
        if (onRecognize)
            onRecognize();
        if (cancellation.isCancelled())
            return failure({errorDomain, cancelled, {}, {}});
        return answer;
    }

    Result<std::vector<Line>> answer;
    // In the middle of a call.
    std::function<void()> onRecognize;
    // Of the pictures that were read.
    mutable std::vector<QSize> sizes;
};

} // namespace tembra
