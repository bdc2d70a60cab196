#pragma once

#include "shelf/ScreenshotGridState.h"

#include <QSet>

#include <optional>

namespace tembra {

// Which shots are selected, by identity: a selection outlives scans, renames and moves between sections.
class ScreenshotSelection {
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
    bool choose(const ScreenshotGridState &state, int index, Mode mode);
    bool selectAll(const ScreenshotGridState &state);
    bool select(const QSet<ScreenshotFileIdentity> &identities) { return assign(identities); }
    bool clear();
    // Drops what is not there any more.
    bool retain(const ScreenshotGridState &state);

    [[nodiscard]] bool contains(const Shot &shot) const { return m_selected.contains(shot.identity); }
    [[nodiscard]] const QSet<ScreenshotFileIdentity> &identities() const { return m_selected; }
    [[nodiscard]] bool isEmpty() const { return m_selected.isEmpty(); }
    // Where the keyboard is.
    [[nodiscard]] std::optional<int> current(const ScreenshotGridState &state) const;
    [[nodiscard]] bool isCurrent(const Shot &shot) const { return m_current == shot.identity; }
    // In display order.
    [[nodiscard]] std::vector<Shot> shots(const ScreenshotGridState &state) const;

private:
    bool assign(QSet<ScreenshotFileIdentity> selected);

    QSet<ScreenshotFileIdentity> m_selected;
    std::optional<ScreenshotFileIdentity> m_anchor;
    std::optional<ScreenshotFileIdentity> m_current;
};

} // namespace tembra
