#pragma once

#include <QString>

namespace tembra::bench {

// How far what was read is from what stands there, in characters; white space is one space each.
struct TextErrors {
    qsizetype errors = 0;
    qsizetype length = 0;
};

// The edit distance (Levenshtein) of the whole, in the order of reading.
[[nodiscard]] TextErrors errorsInOrder(const QString &truth, const QString &text);

// For pages with columns, which read well in more than one order: each word is held against one that was
// read, in whatever order; words that are missing or too many count whole.
[[nodiscard]] TextErrors errorsOfWords(const QString &truth, const QString &text);

} // namespace tembra::bench
