#include "shelf/FileSelection.h"

#include <algorithm>
#include <utility>

namespace tembra {

namespace {

std::optional<int> indexOf(const FileGridState &state, const std::optional<FileTileID> &id) {
    if (!id)
        return std::nullopt;
    int index = 0;
    for (const FileGridState::Section &section : state.sections) {
        for (const FileTile &tile : section.tiles) {
            if (tile.id == *id)
                return index;
            ++index;
        }
    }
    return std::nullopt;
}

} // namespace

bool FileSelection::assign(QSet<FileTileID> selected) {
    if (m_selected == selected)
        return false;
    m_selected = std::move(selected);
    return true;
}

bool FileSelection::choose(const FileGridState &state, int index, Mode mode) {
    const FileTileID &id = state.at(index).id;
    const std::optional<int> anchor = mode == Mode::extend ? indexOf(state, m_anchor) : std::nullopt;
    m_current = id;
    if (!anchor)
        m_anchor = id;
    QSet<FileTileID> selected;
    switch (mode) {
    case Mode::replace:
        selected.insert(id);
        break;
    case Mode::toggle:
        selected = m_selected;
        if (!selected.remove(id))
            selected.insert(id);
        break;
    case Mode::extend: {
        const auto [first, last] = std::minmax({anchor.value_or(index), index});
        for (int i = first; i <= last; ++i)
            selected.insert(state.at(i).id);
        break;
    }
    }
    return assign(std::move(selected));
}

void FileSelection::visit(const FileGridState &state, int index) {
    m_current = state.at(index).id;
    m_anchor = m_current;
}

bool FileSelection::selectAll(const FileGridState &state) {
    QSet<FileTileID> selected;
    selected.reserve(state.count());
    for (const FileGridState::Section &section : state.sections) {
        for (const FileTile &tile : section.tiles)
            selected.insert(tile.id);
    }
    return assign(std::move(selected));
}

bool FileSelection::clear() {
    m_anchor.reset();
    m_current.reset();
    return assign({});
}

bool FileSelection::retain(const FileGridState &state) {
    if (m_selected.isEmpty())
        return false;
    QSet<FileTileID> present;
    for (const FileTile &tile : tiles(state))
        present.insert(tile.id);
    return assign(std::move(present));
}

std::optional<int> FileSelection::current(const FileGridState &state) const {
    return indexOf(state, m_current);
}

std::vector<FileTile> FileSelection::tiles(const FileGridState &state) const {
    std::vector<FileTile> result;
    if (m_selected.isEmpty())
        return result;
    for (const FileGridState::Section &section : state.sections)
        std::ranges::copy_if(section.tiles, std::back_inserter(result),
                             [this](const FileTile &tile) { return contains(tile); });
    return result;
}

} // namespace tembra
