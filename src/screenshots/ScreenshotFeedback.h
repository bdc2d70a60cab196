#pragma once

#include "base/Clocks.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace tembra {

// Finds the words that acknowledge a capture: one of a shuffled deck, or, while captures follow each other
// closely, the next of the series. Never the same words twice in a row. Main thread; a value of who shows
// them.
class ScreenshotFeedback {
public:
    // Two captures closer than this belong to one series.
    static constexpr std::chrono::seconds seriesInterval{6};

    // Puts the deck in a new order.
    explicit ScreenshotFeedback(std::function<void(QStringList &)> shuffle);

    // When captures were made, in any order.
    void recordCaptures(std::vector<Instant> dates);
    [[nodiscard]] QString nextPhrase();

private:
    [[nodiscard]] QString nextSingle();
    [[nodiscard]] QString nextOfSeries();

    const std::function<void(QStringList &)> m_shuffle;
    // Of the deck, what has not been drawn.
    QStringList m_remaining;
    QString m_lastShown;
    std::optional<Instant> m_lastCapture;
    bool m_inSeries = false;
    qsizetype m_seriesIndex = 0;
};

} // namespace tembra
