#pragma once

#include <QtEndian>

#include <algorithm>
#include <array>
#include <span>

namespace tembra {

// Whether what a PNG file says of its colours in gAMA and cHRM (ISO/IEC 15948, 11.3.3) is what sRGB amounts
// to there. Many programs write just that, and mean the pixels as they are.

[[nodiscard]] inline bool isSrgbGamma(std::span<const unsigned char> data) {
    constexpr quint32 gamma = 45'455;
    constexpr quint32 tolerance = 50;
    if (data.size() != 4)
        return false;
    const auto value = qFromBigEndian<quint32>(data.data());
    return value >= gamma - tolerance && value <= gamma + tolerance;
}

[[nodiscard]] inline bool isSrgbChromaticities(std::span<const unsigned char> data) {
    constexpr std::array<quint32, 8> chromaticities{31'270, 32'900, 64'000, 33'000,
                                                    30'000, 60'000, 15'000, 6'000};
    constexpr quint32 tolerance = 10;
    if (data.size() != 4 * chromaticities.size())
        return false;
    return std::ranges::all_of(chromaticities, [&](quint32 wanted) {
        const auto value = qFromBigEndian<quint32>(data.data());
        data = data.subspan(4);
        return value >= wanted - tolerance && value <= wanted + tolerance;
    });
}

} // namespace tembra
