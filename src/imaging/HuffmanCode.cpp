#include "imaging/HuffmanCode.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace tembra {

namespace {

constexpr std::size_t longestCode = 15;

// The lengths without a limit, for the symbols in the order of their counts: two queues, of symbols and of
// what was joined, are both in order, so that the two smallest are at their fronts.
std::vector<unsigned char> unlimitedLengths(std::span<const std::uint32_t> counts) {
    const std::size_t leaves = counts.size();
    std::vector<std::uint64_t> weights(counts.begin(), counts.end());
    std::vector<std::size_t> parents(2 * leaves - 1);
    std::size_t leaf = 0;
    std::size_t joined = leaves;
    const auto takeSmallest = [&] {
        const bool isLeaf = leaf < leaves && (joined >= weights.size() || weights[leaf] <= weights[joined]);
        return isLeaf ? leaf++ : joined++;
    };
    while (weights.size() < parents.size()) {
        const std::size_t first = takeSmallest();
        const std::size_t second = takeSmallest();
        parents[first] = parents[second] = weights.size();
        weights.push_back(weights[first] + weights[second]);
    }
    std::vector<unsigned char> depths(parents.size());
    for (std::size_t node = parents.size() - 1; node-- > 0;)
        depths[node] = static_cast<unsigned char>(depths[parents[node]] + 1);
    depths.resize(leaves);
    return depths;
}

std::uint16_t reversed(unsigned code, unsigned length) {
    unsigned result = 0;
    for (unsigned bit = 0; bit < length; ++bit)
        result |= (code >> bit & 1) << (length - 1 - bit);
    return static_cast<std::uint16_t>(result);
}

} // namespace

std::vector<unsigned char> huffmanLengths(std::span<const std::uint32_t> counts, unsigned limit) {
    std::vector<unsigned char> lengths(counts.size());
    std::vector<std::size_t> symbols;
    for (std::size_t symbol = 0; symbol < counts.size(); ++symbol) {
        if (counts[symbol] > 0)
            symbols.push_back(symbol);
    }
    if (symbols.empty())
        return lengths;
    if (symbols.size() == 1) {
        lengths[symbols.front()] = 1;
        return lengths;
    }
    std::ranges::stable_sort(symbols, {}, [&](std::size_t symbol) { return counts[symbol]; });
    std::vector<std::uint32_t> sorted;
    for (const std::size_t symbol : symbols)
        sorted.push_back(counts[symbol]);
    auto depths = unlimitedLengths(sorted);
    // The more alike the counts, the more alike the lengths.
    while (depths.front() > limit) {
        for (std::uint32_t &count : sorted)
            count = count / 2 + 1;
        depths = unlimitedLengths(sorted);
    }
    for (std::size_t i = 0; i < symbols.size(); ++i)
        lengths[symbols[i]] = depths[i];
    return lengths;
}

std::vector<std::uint16_t> huffmanCodes(std::span<const unsigned char> lengths) {
    std::array<unsigned, longestCode + 1> counts{};
    for (const unsigned char length : lengths)
        ++counts[length];
    std::array<unsigned, longestCode + 1> next{};
    unsigned code = 0;
    for (std::size_t length = 1; length <= longestCode; ++length) {
        next[length] = code;
        code = (code + counts[length]) << 1;
    }
    std::vector<std::uint16_t> codes(lengths.size());
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
        const unsigned length = lengths[symbol];
        if (length > 0)
            codes[symbol] = reversed(next[length]++, length);
    }
    return codes;
}

} // namespace tembra
