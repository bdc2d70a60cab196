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

    [[nodiscard]] Result<std::vector<Language>> installedLanguages() const override { return installed; }
    [[nodiscard]] QStringList usualLanguages() const override { return {QStringLiteral("eng")}; }
    void setLanguages(const QStringList &codes) override { languages = codes; }

    Result<std::vector<Line>> answer;
    std::vector<Language> installed;
    QStringList languages;
    // In the middle of a call.
    std::function<void()> onRecognize;
    // Of the pictures that were read.
    mutable std::vector<QSize> sizes;
};

} // namespace tembra
