#include "shelf/ScreenshotGridState.h"

namespace tembra {

int ScreenshotGridState::count() const {
    std::size_t count = 0;
    for (const ScreenshotSection &section : sections)
        count += section.shots.size();
    return static_cast<int>(count);
}

const Shot &ScreenshotGridState::at(int index) const {
    auto rest = static_cast<std::size_t>(index);
    for (const ScreenshotSection &section : sections) {
        if (rest < section.shots.size())
            return section.shots[rest];
        rest -= section.shots.size();
    }
    qFatal("ScreenshotGridState::at: no shot %d", index);
}

} // namespace tembra
