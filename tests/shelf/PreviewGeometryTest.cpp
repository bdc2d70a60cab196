#include "shelf/PreviewGeometry.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace tembra;

namespace {

constexpr QRectF available(100, 300, 1000, 600);
constexpr double frameWidth = 2 * PreviewGeometry::margin;
constexpr double frameHeight = PreviewGeometry::margin + PreviewGeometry::footer;

double aspect(const QSizeF &size) {
    return size.width() / size.height();
}

} // namespace

TEST(PreviewGeometry, aPictureIsAsLargeAsItIsOrAsFits) {
    const QRectF small = PreviewGeometry::window({{400, 300}}, available);
    EXPECT_EQ(small.size(), QSizeF(400 + frameWidth, 300 + frameHeight));
    EXPECT_LE(std::abs(small.center().x() - available.center().x()), 1);
    EXPECT_EQ(PreviewGeometry::row({{400, 300}}, small.size()).front().size(), QSizeF(400, 300));

    for (const QSizeF &picture : {QSizeF(3840, 2160), QSizeF(200, 9000), QSizeF(9000, 30), QSizeF(4, 4)}) {
        const QRectF window = PreviewGeometry::window({picture}, available);
        EXPECT_TRUE(available.adjusted(-1, -1, 1, 1).contains(window)) << picture.width();
        const QRectF place = PreviewGeometry::row({picture}, window.size()).front();
        EXPECT_NEAR(aspect(place.size()) / aspect(picture), 1, 0.01) << picture.width();
        EXPECT_TRUE(QRectF({}, window.size()).contains(place)) << picture.width();
    }
}

TEST(PreviewGeometry, severalStandInARowOfOneHeight) {
    const std::vector<QSizeF> pictures{{1280, 800}, {300, 900}, {800, 800}};
    const QRectF window = PreviewGeometry::window(pictures, available);
    const auto row = PreviewGeometry::row(pictures, window.size());
    ASSERT_EQ(row.size(), pictures.size());
    for (std::size_t i = 0; i < row.size(); ++i) {
        EXPECT_NEAR(aspect(row[i].size()) / aspect(pictures[i]), 1, 0.01);
        EXPECT_EQ(row[i].height(), row[0].height());
        if (i > 0) {
            EXPECT_DOUBLE_EQ(row[i].left(), row[i - 1].right() + PreviewGeometry::spacing);
        }
    }
    EXPECT_LE(row.back().right(), window.width() - PreviewGeometry::margin + 1);
}
