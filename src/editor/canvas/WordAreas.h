#pragma once

#include <QPointF>
#include <QRectF>

#include <optional>
#include <span>
#include <vector>

namespace tembra {

// Which words of an image are meant, and what is to be hidden with them. Image space.
struct WordAreas {
    // The word at a point, within `tolerance` beside it.
    [[nodiscard]] static std::optional<QRectF> wordAt(QPointF point, std::span<const QRectF> words,
                                                      double tolerance);
    // Those that a rectangle touches.
    [[nodiscard]] static std::vector<QRectF> wordsIn(const QRectF &rect, std::span<const QRectF> words);
    // The areas that hide the words: each with a margin around it, neighbours on a line as one, on whole
    // pixels within `limits`.
    [[nodiscard]] static std::vector<QRectF> hiding(std::span<const QRectF> words, const QRectF &limits);
};

} // namespace tembra
