#include "platform/linux/recognition/worker/Stripes.h"

#include <iterator>

namespace tembra::recognition {

namespace {

// Two engines may see the middle of a line this much apart.
constexpr double doubt = 3;

bool areTheSame(const ReadWord &first, const ReadWord &second) {
    const double common = first.box.common(second.box).area();
    return 2 * common > std::min(first.box.area(), second.box.area());
}

bool counts(const ReadLine &line, const Stripe &stripe) {
    const TextBox box = boxOf(line);
    const double middle = (box.top + box.bottom) / 2;
    return middle >= stripe.firstLine - doubt && middle < stripe.lastLine + doubt;
}

bool isAmong(const std::vector<ReadLine> &lines, const ReadWord &word) {
    return std::ranges::any_of(lines, [&](const ReadLine &line) {
        return std::ranges::any_of(line, [&](const ReadWord &other) { return areTheSame(word, other); });
    });
}

} // namespace

std::vector<Stripe> stripes(std::span<const int> rowInk, int count, int overlap) {
    const int height = static_cast<int>(rowInk.size());
    const int share = height / count;
    const int reach = std::min(2 * overlap, share / 4);
    std::vector<int> cuts{0};
    for (int i = 1; i < count; ++i) {
        const auto from = rowInk.begin() + (i * share - reach);
        const auto least = std::min_element(from, from + 2 * reach + 1);
        cuts.push_back(static_cast<int>(least - rowInk.begin()));
    }
    cuts.push_back(height);
    std::vector<Stripe> result;
    for (size_t i = 0; i + 1 < cuts.size(); ++i)
        result.push_back(
            {std::max(0, cuts[i] - overlap), std::min(height, cuts[i + 1] + overlap), cuts[i], cuts[i + 1]});
    return result;
}

std::vector<ReadLine> joined(std::span<const Stripe> stripes, std::vector<std::vector<ReadLine>> lines) {
    std::vector<ReadLine> result;
    for (size_t i = 0; i < lines.size(); ++i) {
        std::vector<ReadLine> more;
        for (ReadLine &line : lines[i]) {
            if (!counts(line, stripes[i]))
                continue;
            std::erase_if(line, [&](const ReadWord &word) { return isAmong(result, word); });
            if (!line.empty())
                more.push_back(std::move(line));
        }
        std::ranges::move(more, std::back_inserter(result));
    }
    return result;
}

} // namespace tembra::recognition
