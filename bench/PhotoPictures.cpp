#include "PhotoPictures.h"

#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace tembra::bench {

namespace {

struct Wave {
    double across = 0;
    double down = 0;
    double phase = 0;
    std::array<double, 3> colour{};
};

std::vector<Wave> waves(QRandomGenerator &random, QSize size) {
    std::vector<Wave> result;
    // Fine waves are the weaker ones, as in nature.
    for (int octave = 0; octave < 7; ++octave) {
        for (int i = 0; i < 3; ++i) {
            const double frequency = 6.28 * std::exp2(octave) / size.width();
            const double angle = random.bounded(6.28);
            Wave wave{std::cos(angle) * frequency, std::sin(angle) * frequency, random.bounded(6.28)};
            for (double &channel : wave.colour)
                channel = (20 + random.bounded(20.0)) / std::exp2(octave * 0.8);
            result.push_back(wave);
        }
    }
    return result;
}

// Values around zero that look like a normal distribution's.
double grain(QRandomGenerator &random) {
    const quint32 bits = random.generate();
    return static_cast<double>((bits & 255) + (bits >> 8 & 255) + (bits >> 16 & 255) + (bits >> 24)) / 147.0 -
           3.47;
}

} // namespace

QImage photoPicture(QSize size, int number) {
    QRandomGenerator random(static_cast<quint32>(number));
    const auto light = waves(random, size);
    const auto things = waves(random, size);
    QImage image(size, QImage::Format_RGB32);
    std::vector<std::array<double, 3>> noiseAbove(static_cast<std::size_t>(size.width()));
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        std::array<double, 3> noise{};
        for (int x = 0; x < size.width(); ++x) {
            std::array<double, 3> colour{110, 105, 100};
            double depth = 0;
            for (std::size_t i = 0; i < light.size(); ++i) {
                const double value = std::sin(light[i].across * x + light[i].down * y + light[i].phase);
                for (std::size_t c = 0; c < 3; ++c)
                    colour[c] += value * light[i].colour[c];
                if (i < 9)
                    depth += std::sin(things[i].across * x + things[i].down * y + things[i].phase);
            }
            auto &above = noiseAbove[static_cast<std::size_t>(x)];
            std::array<int, 3> pixel{};
            for (std::size_t c = 0; c < 3; ++c) {
                // The pixels of a sensor see one colour each; the others are taken from their neighbours.
                noise[c] = 1.6 * grain(random) + 0.35 * noise[c] + 0.35 * above[c];
                above[c] = noise[c];
                const double value = (depth > 0 ? 0.55 : 1) * colour[c] + noise[c];
                pixel[c] = std::clamp(static_cast<int>(value), 0, 255);
            }
            line[x] = qRgb(pixel[0], pixel[1], pixel[2]);
        }
    }
    return image;
}

} // namespace tembra::bench
