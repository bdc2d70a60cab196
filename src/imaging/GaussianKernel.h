#pragma once

#include <cmath>
#include <vector>

namespace tembra {

// The standard deviation, in samples, of what is to be done between a reduction to every h-th pixel by
// nearness and the enlargement by the same: each of the two adds a triangle's variance, (h² - 1) / 6 on
// average.
[[nodiscard]] inline double gaussianSigmaBetween(double sigma, int h) {
    return std::sqrt(sigma * sigma - (h * h - 1) / 3.0) / h;
}

// The middle of a Gaussian and one side of it, in sum with the other side one. What lies beyond is less than
// a tenth of a level of 255.
[[nodiscard]] inline std::vector<float> gaussianTaps(double sigma) {
    constexpr double reach = 3.6;
    const int radius = static_cast<int>(std::ceil(reach * sigma));
    std::vector<double> weights;
    double sum = 0;
    for (int t = 0; t <= radius; ++t) {
        weights.push_back(std::exp(-t * t / (2 * sigma * sigma)));
        sum += t == 0 ? weights.back() : 2 * weights.back();
    }
    std::vector<float> taps;
    for (const double weight : weights)
        taps.push_back(static_cast<float>(weight / sum));
    return taps;
}

} // namespace tembra
