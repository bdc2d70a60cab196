#include "shelf/ScreenshotSelection.h"

#include <algorithm>
#include <utility>

namespace tembra {

namespace {

std::optional<int> indexOf(const ScreenshotGridState &state,
                           const std::optional<ScreenshotFileIdentity> &identity) {
    if (!identity)
        return std::nullopt;
    int index = 0;
    for (const ScreenshotSection &section : state.sections) {
        for (const Shot &shot : section.shots) {
            if (shot.identity == *identity)
                return index;
            ++index;
        }
    }
    return std::nullopt;
}

} // namespace

bool ScreenshotSelection::assign(QSet<ScreenshotFileIdentity> selected) {
    if (m_selected == selected)
        return false;
    m_selected = std::move(selected);
    return true;
}

bool ScreenshotSelection::choose(const ScreenshotGridState &state, int index, Mode mode) {
    const ScreenshotFileIdentity &identity = state.at(index).identity;
    const std::optional<int> anchor = mode == Mode::extend ? indexOf(state, m_anchor) : std::nullopt;
    m_current = identity;
    if (!anchor)
        m_anchor = identity;
    QSet<ScreenshotFileIdentity> selected;
    switch (mode) {
    case Mode::replace:
        selected.insert(identity);
        break;
    case Mode::toggle:
        selected = m_selected;
        if (!selected.remove(identity))
            selected.insert(identity);
        break;
    case Mode::extend: {
        const auto [first, last] = std::minmax({anchor.value_or(index), index});
        for (int i = first; i <= last; ++i)
            selected.insert(state.at(i).identity);
        break;
    }
    }
    return assign(std::move(selected));
}

bool ScreenshotSelection::selectAll(const ScreenshotGridState &state) {
    QSet<ScreenshotFileIdentity> selected;
    selected.reserve(state.count());
    for (const ScreenshotSection &section : state.sections) {
        for (const Shot &shot : section.shots)
            selected.insert(shot.identity);
    }
    return assign(std::move(selected));
}

bool ScreenshotSelection::clear() {
    m_anchor.reset();
    m_current.reset();
    return assign({});
}

bool ScreenshotSelection::retain(const ScreenshotGridState &state) {
    if (m_selected.isEmpty())
        return false;
    QSet<ScreenshotFileIdentity> present;
    for (const Shot &shot : shots(state))
        present.insert(shot.identity);
    return assign(std::move(present));
}

std::optional<int> ScreenshotSelection::current(const ScreenshotGridState &state) const {
    return indexOf(state, m_current);
}

std::vector<Shot> ScreenshotSelection::shots(const ScreenshotGridState &state) const {
    std::vector<Shot> result;
    if (m_selected.isEmpty())
        return result;
    for (const ScreenshotSection &section : state.sections)
        std::ranges::copy_if(section.shots, std::back_inserter(result),
                             [this](const Shot &shot) { return contains(shot); });
    return result;
}

} // namespace tembra
