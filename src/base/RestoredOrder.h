#pragma once

#include <QHash>

#include <algorithm>
#include <iterator>
#include <limits>
#include <vector>

namespace tembra {

// Puts `restored` back among `present`: each before the first of those that followed it in `order`. What
// `order` does not know keeps its place; `idOf` gives what `order` lists.
template <class Item, class Order, class IdOf>
[[nodiscard]] std::vector<Item> inRestoredOrder(std::vector<Item> present, std::vector<Item> restored,
                                                const Order &order, IdOf idOf) {
    QHash<typename Order::value_type, qsizetype> positions;
    for (const auto &id : order)
        positions.insert(id, positions.size());
    constexpr qsizetype unknown = std::numeric_limits<qsizetype>::max();
    const auto position = [&](const Item &item) { return positions.value(idOf(item), unknown); };
    std::ranges::stable_sort(restored, {}, position);

    std::vector<Item> result;
    result.reserve(present.size() + restored.size());
    auto next = restored.begin();
    for (Item &item : present) {
        const qsizetype here = position(item);
        for (; here != unknown && next != restored.end() && position(*next) < here; ++next)
            result.push_back(std::move(*next));
        result.push_back(std::move(item));
    }
    std::move(next, restored.end(), std::back_inserter(result));
    return result;
}

} // namespace tembra
