#pragma once

#include "screenshots/ScreenshotSection.h"
#include "shelf/FileGridState.h"

namespace tembra {

// The screenshot of a number: its file is /shots/<number>.png and its identity stays whatever that is called.
inline FileTile gridShot(int number) {
    return {.id = ScreenshotFileIdentity{ScreenshotFileIdentity::Resource{
                .resource = {.volume = 1, .inode = static_cast<std::uint64_t>(number)}}},
            .path = QStringLiteral("/shots/%1.png").arg(number),
            .revision = QStringLiteral("1")};
}

// Shots 0, 1, 2… in sections of these sizes.
inline FileGridState gridState(const std::vector<int> &counts, bool grouped = false) {
    FileGridState state{.grouped = grouped};
    int number = 0;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        auto &section = state.sections.emplace_back(title(static_cast<ScreenshotSectionKind>(i)));
        for (int shot = 0; shot < counts[i]; ++shot)
            section.tiles.push_back(gridShot(number++));
    }
    return state;
}

// The numbers of the shots.
inline std::vector<int> gridNumbers(const std::vector<FileTile> &tiles) {
    std::vector<int> numbers;
    numbers.reserve(tiles.size());
    for (const FileTile &tile : tiles)
        numbers.push_back(static_cast<int>(std::get<ScreenshotFileIdentity>(tile.id).resource()->inode));
    return numbers;
}

} // namespace tembra
