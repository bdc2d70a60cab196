#pragma once

#include "recognition/model/OCRText.h"

#include <variant>

namespace tembra {

// What the panel for text recognition shows. A value.
struct OCRState {
    // Invites an image.
    struct Idle {
        bool operator==(const Idle &) const = default;
    };
    struct Loading {
        bool operator==(const Loading &) const = default;
    };
    // Never without a word.
    struct Text {
        OCRText text;

        bool operator==(const Text &) const = default;
    };
    struct Error {
        QString message;

        bool operator==(const Error &) const = default;
    };
    using Phase = std::variant<Idle, Loading, Text, Error>;

    Phase phase;
    // The panel is higher than the shelf usually is.
    bool isExpanded = false;
    OCRTextLayout layout = OCRTextLayout::lines;

    // The recognized text as it is shown and copied; empty in the other phases.
    [[nodiscard]] QString result() const {
        const auto *const text = std::get_if<Text>(&phase);
        return text ? text->text.string(layout) : QString();
    }
    bool operator==(const OCRState &) const = default;
};

} // namespace tembra
