#include "shelf/FileGridState.h"

namespace tembra {

int FileGridState::count() const {
    std::size_t count = 0;
    for (const Section &section : sections)
        count += section.tiles.size();
    return static_cast<int>(count);
}

const FileTile &FileGridState::at(int index) const {
    auto rest = static_cast<std::size_t>(index);
    for (const Section &section : sections) {
        if (rest < section.tiles.size())
            return section.tiles[rest];
        rest -= section.tiles.size();
    }
    qFatal("FileGridState::at: no tile %d", index);
}

} // namespace tembra
