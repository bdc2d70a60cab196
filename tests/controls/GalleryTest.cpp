#include "Gallery.h"

#include <QImage>
#include <QLayout>
#include <QPainter>

#include <gtest/gtest.h>

namespace tembra {
namespace {

TEST(Gallery, everythingLiesInsideAndNothingOverlaps) {
    for (const Appearance appearance : {Appearance::light, Appearance::dark}) {
        Gallery gallery(appearance);
        gallery.show();
        const auto children = gallery.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
        ASSERT_GT(children.size(), 40);
        for (const QWidget *child : children) {
            EXPECT_TRUE(gallery.rect().contains(child->geometry())) << child->metaObject()->className();
            EXPECT_GE(child->width(), child->sizeHint().boundedTo(child->maximumSize()).width())
                << child->metaObject()->className();
            for (const QWidget *other : children)
                EXPECT_TRUE(other == child || !other->geometry().intersects(child->geometry()));
        }
    }
}

TEST(Gallery, isDrawnAtEveryScale) {
    for (const qreal scale : {1.0, 1.25, 1.5, 2.0}) {
        Gallery gallery(Appearance::light);
        gallery.show();
        QImage picture((QSizeF(gallery.size()) * scale).toSize(), QImage::Format_RGB32);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::magenta);
        gallery.render(&picture);
        const QColor background = Theme::of(gallery).window;
        EXPECT_EQ(picture.pixelColor(2, picture.height() - 2), background) << scale;
        EXPECT_EQ(picture.pixelColor(picture.width() - 3, picture.height() / 2), background) << scale;
    }
}

} // namespace
} // namespace tembra
