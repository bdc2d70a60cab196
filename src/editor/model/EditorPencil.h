#pragma once

namespace tembra {

// How a pencil stroke ends: over the last `tailFraction` of its length it narrows to `endWidthRatio` of its
// width.
struct EditorPencil {
    static constexpr int currentVersion = 1;

    int version = currentVersion;
    double endWidthRatio = 0.35;
    double tailFraction = 0.25;

    // Strokes of another version are drawn by rules that are not known here.
    [[nodiscard]] bool isValid() const {
        return version == currentVersion && endWidthRatio >= 0 && endWidthRatio <= 1 && tailFraction >= 0 &&
               tailFraction <= 1;
    }

    bool operator==(const EditorPencil &) const = default;
};

} // namespace tembra
