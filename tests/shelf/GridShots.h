#pragma once

#include "shelf/ScreenshotGridState.h"

namespace tembra {

// The shot of a number: its file is /shots/<number>.png and its identity stays whatever that is called.
inline Shot gridShot(int number) {
    return {.location = QStringLiteral("/shots/%1.png").arg(number),
            .identity = {ScreenshotFileIdentity::Resource{
                .resource = {.volume = 1, .inode = static_cast<std::uint64_t>(number)}}},
            .stamp = QStringLiteral("1")};
}

// Shots 0, 1, 2… in sections of these sizes.
inline ScreenshotGridState gridState(const std::vector<int> &counts, bool grouped = false) {
    ScreenshotGridState state{.grouped = grouped};
    int number = 0;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        ScreenshotSection section{.kind = static_cast<ScreenshotSectionKind>(i)};
        for (int shot = 0; shot < counts[i]; ++shot)
            section.shots.push_back(gridShot(number++));
        state.sections.push_back(std::move(section));
    }
    return state;
}

// The numbers of the files at the paths.
inline std::vector<int> gridNumbers(const std::vector<Shot> &shots) {
    std::vector<int> numbers;
    numbers.reserve(shots.size());
    for (const Shot &shot : shots)
        numbers.push_back(
            static_cast<int>(std::get<ScreenshotFileIdentity::Resource>(shot.identity.value).resource.inode));
    return numbers;
}

} // namespace tembra
