#include "imaging/GaussianBlur.h"

#include "imaging/TestImages.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

using namespace tembra;

namespace {

using Content = std::function<QRgb(int x, int y)>;

QImage painted(QSize size, QImage::Format format, const Content &content) {
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, content(x, y));
    }
    return image;
}

// One channel's exact blur along a line, the ends continued.
std::vector<double> blurredLine(const std::vector<double> &line, double sigma) {
    const auto radius = static_cast<int>(std::ceil(4.5 * sigma));
    std::vector<double> weights;
    double sum = 0;
    for (int d = -radius; d <= radius; ++d) {
        weights.push_back(std::exp(-d * d / (2 * sigma * sigma)));
        sum += weights.back();
    }
    std::vector<double> result;
    const int last = static_cast<int>(line.size()) - 1;
    for (int x = 0; x <= last; ++x) {
        double value = 0;
        int at = x - radius;
        for (const double weight : weights)
            value += weight * line[static_cast<std::size_t>(std::clamp(at++, 0, last))];
        result.push_back(value / sum);
    }
    return result;
}

// The largest difference between a blurred image and the exact Gaussian of the image, in blue and alpha.
double error(const QImage &image, const QImage &blurred, double sigma) {
    double largest = 0;
    for (const int channel : {0, 3}) {
        std::vector<std::vector<double>> rows;
        for (int y = 0; y < image.height(); ++y) {
            std::vector<double> row;
            for (int x = 0; x < image.width(); ++x)
                row.push_back(image.constScanLine(y)[4 * x + channel]);
            rows.push_back(blurredLine(row, sigma));
        }
        for (int x = 0; x < image.width(); ++x) {
            std::vector<double> column;
            for (const auto &row : rows)
                column.push_back(row[static_cast<std::size_t>(x)]);
            column = blurredLine(column, sigma);
            for (int y = 0; y < image.height(); ++y)
                largest = std::max(largest, std::abs(column[static_cast<std::size_t>(y)] -
                                                     blurred.constScanLine(y)[4 * x + channel]));
        }
    }
    return largest;
}

QRgb grey(bool isLight) {
    return isLight ? 0xffff'ffff : 0xff00'0000;
}

// Stripes of a width that change places halfway, the hardest for a reduced picture; in one direction or both.
Content flippedStripes(int width, int middle, bool across, bool down) {
    return [=](int x, int y) {
        const auto stripe = [=](int at) { return (at < middle ? at : at + width) / width % 2 == 0; };
        return grey((!across || stripe(x)) && (!down || stripe(y)));
    };
}

} // namespace

TEST(GaussianBlurTest, isTheExactGaussianToWithinTwoLevels) {
    constexpr auto opaque = QImage::Format_RGB32;
    std::vector<std::pair<std::string, QImage>> images = {
        {"noise", noise({150, 130}, opaque)},
        {"an edge down", painted({131, 90}, opaque, [](int x, int) { return grey(x > 65); })},
        {"an edge across", painted({90, 131}, opaque, [](int, int y) { return grey(y > 62); })},
        {"a corner", painted({101, 99}, opaque, [](int x, int y) { return grey(x > 50 && y > 47); })},
        {"a checkerboard", painted({90, 90}, opaque, [](int x, int y) { return grey((x + y) % 2 == 0); })},
        {"a line", painted({90, 70}, opaque, [](int x, int) { return grey(x == 41); })},
        {"a dark point", painted({60, 60}, opaque, [](int x, int y) { return grey(x != 31 || y != 30); })},
        {"smaller than the kernel", noise({5, 7}, opaque)},
        {"one pixel wide", noise({1, 120}, opaque)},
        {"one pixel high", noise({120, 1}, opaque)},
        {"one pixel", noise({1, 1}, opaque)},
        {"transparent",
         noise({80, 60}, QImage::Format_ARGB32).convertToFormat(QImage::Format_ARGB32_Premultiplied)},
    };
    for (const int width : {1, 2, 3, 4, 8, 16}) {
        for (const int middle : {80, 82, 83}) {
            const auto name = std::to_string(width) + " flipped at " + std::to_string(middle);
            images.emplace_back("stripes of " + name,
                                painted({160, 24}, opaque, flippedStripes(width, middle, true, false)));
            if (middle == 82)
                images.emplace_back("squares of " + name,
                                    painted({160, 160}, opaque, flippedStripes(width, middle, true, true)));
        }
    }
    for (const auto &[what, image] : images) {
        for (const double sigma : {8.0, 16.0, 28.0})
            EXPECT_LE(error(image, gaussianBlurred(image, image.rect(), sigma), sigma), 2)
                << what << " with " << sigma;
    }
    const QImage mixed = testImage({90, 70}, opaque);
    for (const double sigma : {0.2, 1.0, 4.0, 7.9, 11.0, 15.9, 42.0, 63.9, 64.0, 84.0})
        EXPECT_LE(error(mixed, gaussianBlurred(mixed, mixed.rect(), sigma), sigma), 2) << sigma;
}

TEST(GaussianBlurTest, anAreaIsThePartOfTheWholeToTheBit) {
    for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied}) {
        const QImage image = testImage({211, 173}, QImage::Format_ARGB32).convertToFormat(format);
        for (const double sigma : {3.0, 8.0, 16.0, 28.0, 100.0}) {
            const QImage whole = gaussianBlurred(image, image.rect(), sigma);
            EXPECT_EQ(whole.format(), format);
            for (const QRect area : {QRect(0, 0, 1, 1), QRect(1, 2, 3, 4), QRect(50, 61, 97, 13),
                                     QRect(210, 172, 1, 1), QRect(0, 100, 211, 1), QRect(103, 0, 2, 173)})
                EXPECT_EQ(gaussianBlurred(image, area, sigma), whole.copy(area))
                    << sigma << ": " << area.x() << ", " << area.y();
        }
    }
}

TEST(GaussianBlurTest, aLargePictureIsBlurredWithoutSeams) {
    const QImage image = noise({8'400, 520}, QImage::Format_RGB32);
    const QImage whole = gaussianBlurred(image, image.rect(), 2);
    for (const QRect area : {QRect(4'000, 240, 30, 20), QRect(8'390, 500, 10, 20)})
        EXPECT_EQ(gaussianBlurred(image, area, 2), whole.copy(area));
}

TEST(GaussianBlurTest, whatIsEvenStaysAsItIs) {
    for (const QRgb colour : {0xffff'ffffU, 0xff00'0000U, 0xff01'80feU}) {
        QImage image(70, 50, QImage::Format_RGB32);
        image.fill(colour);
        for (const double sigma : {0.0, 1.0, 8.0, 16.0, 28.0, 200.0})
            EXPECT_EQ(gaussianBlurred(image, image.rect(), sigma), image) << sigma;
    }
}

TEST(GaussianBlurTest, anAreaIsCutToTheImage) {
    const QImage image = testImage({40, 30}, QImage::Format_RGB32);
    EXPECT_EQ(gaussianBlurred(image, {-5, 20, 20, 30}, 8), gaussianBlurred(image, {0, 20, 15, 10}, 8));
    EXPECT_TRUE(gaussianBlurred(image, {50, 0, 5, 5}, 8).isNull());
    EXPECT_TRUE(gaussianBlurred(QImage(), {0, 0, 5, 5}, 8).isNull());
}
