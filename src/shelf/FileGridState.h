#pragma once

#include "shelf/FileTile.h"

#include <QString>

#include <vector>

namespace tembra {

// What a grid of files shows. A value.
struct FileGridState {
    struct Section {
        QString title;
        std::vector<FileTile> tiles;

        bool operator==(const Section &) const = default;
    };

    // In display order.
    std::vector<Section> sections;
    bool showFileNames = true;
    // Under the sections' titles; otherwise the sections follow each other in one run without titles.
    bool grouped = false;

    bool operator==(const FileGridState &) const = default;

    [[nodiscard]] int count() const;
    // The tile at a place in the run of all sections.
    [[nodiscard]] const FileTile &at(int index) const;
};

} // namespace tembra
