#pragma once

#include "shelf/FileGridState.h"

#include <QSet>

#include <optional>

namespace tembra {

// Which tiles are selected, by what they are known by: a selection outlives scans, renames and moves between
// sections.
class FileSelection {
public:
    enum class Mode {
        // This one and no other.
        replace,
        // This one more, or less.
        toggle,
        // From the one that was chosen last to this one.
        extend
    };

    // Each tells whether the selection changed.
    bool choose(const FileGridState &state, int index, Mode mode);
    // The keyboard goes there, and nothing is selected or given up.
    void visit(const FileGridState &state, int index);
    bool selectAll(const FileGridState &state);
    bool select(const QSet<FileTileID> &ids) { return assign(ids); }
    bool clear();
    // Drops what is not there any more.
    bool retain(const FileGridState &state);

    [[nodiscard]] bool contains(const FileTile &tile) const { return m_selected.contains(tile.id); }
    [[nodiscard]] const QSet<FileTileID> &ids() const { return m_selected; }
    [[nodiscard]] bool isEmpty() const { return m_selected.isEmpty(); }
    // Where the keyboard is.
    [[nodiscard]] std::optional<int> current(const FileGridState &state) const;
    [[nodiscard]] bool isCurrent(const FileTile &tile) const { return m_current == tile.id; }
    // In display order.
    [[nodiscard]] std::vector<FileTile> tiles(const FileGridState &state) const;

private:
    bool assign(QSet<FileTileID> selected);

    QSet<FileTileID> m_selected;
    std::optional<FileTileID> m_anchor;
    std::optional<FileTileID> m_current;
};

} // namespace tembra
