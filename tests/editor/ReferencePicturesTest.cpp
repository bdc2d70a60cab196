#include "AnnotationScenes.h"

#include <QDir>
#include <QFontDatabase>

#include <gtest/gtest.h>

#include <algorithm>

namespace tembra {
namespace {

// How annotations look. After a change that is meant, look at the pictures that the tests write into the
// folder named by TEMBRA_WRITE_REFERENCES, then put them into tests/editor/reference.

struct Difference {
    double mean = 0;
    int largest = 0;
};

// Averaged over 4 by 4 pixels, so that only what the eye would see counts, not how a rasteriser rounds.
QImage blurred(const QImage &image) {
    return image.convertToFormat(QImage::Format_RGB32)
        .scaled(image.size() / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

Difference difference(const QImage &one, const QImage &other) {
    const QImage a = blurred(one);
    const QImage b = blurred(other);
    Difference result;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor colorA = a.pixelColor(x, y);
            const QColor colorB = b.pixelColor(x, y);
            const int distance =
                std::max({std::abs(colorA.red() - colorB.red()), std::abs(colorA.green() - colorB.green()),
                          std::abs(colorA.blue() - colorB.blue())});
            result.mean += distance;
            result.largest = std::max(result.largest, distance);
        }
    }
    result.mean /= static_cast<double>(a.width()) * a.height();
    return result;
}

QImage reference(const QString &name, const QImage &drawn) {
    if (const QString folder = qEnvironmentVariable("TEMBRA_WRITE_REFERENCES"); !folder.isEmpty()) {
        EXPECT_TRUE(
            drawn.convertToFormat(QImage::Format_RGB888).save(QDir(folder).filePath(name), nullptr, 0));
        return drawn;
    }
    return QImage(QDir(QStringLiteral(TEMBRA_REFERENCE_PICTURES)).filePath(name));
}

void expectAlike(const QImage &drawn, const QImage &expected, const char *name) {
    ASSERT_EQ(drawn.size(), expected.size()) << name;
    const Difference found = difference(drawn, expected);
    EXPECT_LT(found.mean, 1.0) << name;
    EXPECT_LT(found.largest, 40) << name;
}

class ReferencePictures : public testing::TestWithParam<AnnotationScene> {
protected:
    void SetUp() override {
        const QString &family = GetParam().family;
        if (!family.isEmpty() && !QFontDatabase::hasFamily(family))
            GTEST_SKIP() << "without the typeface of the picture";
    }
};

TEST_P(ReferencePictures, areDrawnAsTheyWereLookedAt) {
    const AnnotationScene &scene = GetParam();
    const QRect whole({}, scene.size);
    const QImage drawn = drawnScene(scene, 1, whole);
    const QString name = QString::fromLatin1(scene.name) + QStringLiteral(".png");
    expectAlike(drawn, reference(name, drawn), scene.name);
}

// Averaged back to its size the enlarged scene is the scene.
TEST_P(ReferencePictures, lookTheSameAtEveryScale) {
    const AnnotationScene &scene = GetParam();
    const QRect whole({}, scene.size);
    const QImage once = drawnScene(scene, 1, whole);
    for (const double scale : {2.0, 3.0}) {
        const QImage large = drawnScene(scene, scale, whole);
        expectAlike(large.scaled(once.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation), once,
                    scene.name);
    }
}

TEST_P(ReferencePictures, areCutByACropWithoutAChange) {
    const AnnotationScene &scene = GetParam();
    const QRect part(37, 21, 101, 67);
    const QImage whole = drawnScene(scene, 1, QRect({}, scene.size)).copy(part);
    const QImage cropped = drawnScene(scene, 1, part);
    const Difference found = difference(cropped, whole);
    EXPECT_LT(found.mean, 0.1);
    EXPECT_LT(found.largest, 3);
}

INSTANTIATE_TEST_SUITE_P(Scenes, ReferencePictures, testing::ValuesIn(annotationScenes()),
                         [](const testing::TestParamInfo<AnnotationScene> &scene) {
                             std::string name = scene.param.name;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

} // namespace
} // namespace tembra
