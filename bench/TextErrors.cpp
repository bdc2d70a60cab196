#include "TextErrors.h"

#include <QStringList>

#include <algorithm>
#include <numeric>
#include <vector>

namespace tembra::bench {

namespace {

qsizetype distance(QStringView first, QStringView second) {
    std::vector<qsizetype> row(static_cast<size_t>(second.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < first.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i + 1);
        for (qsizetype j = 0; j < second.size(); ++j) {
            qsizetype &cell = row[static_cast<size_t>(j) + 1];
            const qsizetype replaced = diagonal + (first[i] == second[j] ? 0 : 1);
            diagonal = cell;
            cell = std::min({replaced, cell + 1, row[static_cast<size_t>(j)] + 1});
        }
    }
    return row.back();
}

struct Pair {
    qsizetype distance = 0;
    qsizetype first = 0;
    qsizetype second = 0;
};

// Those nearest to each other that are worth it, nearest first.
std::vector<Pair> likePairs(const QStringList &first, const QStringList &second) {
    std::vector<Pair> pairs;
    for (qsizetype i = 0; i < first.size(); ++i) {
        for (qsizetype j = 0; j < second.size(); ++j) {
            const qsizetype apart = distance(first[i], second[j]);
            if (apart < std::max(first[i].size(), second[j].size()))
                pairs.push_back({apart, i, j});
        }
    }
    std::ranges::stable_sort(pairs, {}, &Pair::distance);
    return pairs;
}

} // namespace

TextErrors errorsInOrder(const QString &truth, const QString &text) {
    const QString expected = truth.simplified();
    return {distance(expected, text.simplified()), expected.size()};
}

TextErrors errorsOfWords(const QString &truth, const QString &text) {
    QStringList expected = truth.split(u' ', Qt::SkipEmptyParts);
    QStringList found = text.split(u' ', Qt::SkipEmptyParts);
    TextErrors result;
    for (const QString &word : expected)
        result.length += word.size();
    expected.removeIf([&](const QString &word) { return found.removeOne(word); });
    for (const Pair &pair : likePairs(expected, found)) {
        if (expected[pair.first].isEmpty() || found[pair.second].isEmpty())
            continue;
        result.errors += pair.distance;
        expected[pair.first].clear();
        found[pair.second].clear();
    }
    for (const QString &word : expected + found)
        result.errors += word.size();
    return result;
}

} // namespace tembra::bench
