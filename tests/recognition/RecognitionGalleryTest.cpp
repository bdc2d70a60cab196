#include "RecognitionGallery.h"

#include "recognition/ui/OCRPanel.h"
#include "support/ManualScheduler.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tembra {
namespace {

// What is shown, with its room in the panel; the rings of neighbouring buttons share theirs.
std::vector<std::pair<const QWidget *, QRect>> shownParts(const OCRPanel &panel) {
    std::vector<std::pair<const QWidget *, QRect>> parts;
    for (const QWidget *part : panel.findChildren<QWidget *>()) {
        const bool isPart = part->inherits("QAbstractButton") || part->inherits("QLabel") ||
                            part->inherits("QTextEdit") || part->inherits("tembra::OCRPictureView");
        if (part->isVisible() && isPart)
            parts.emplace_back(part, part->geometry().adjusted(3, 3, -3, -3));
    }
    return parts;
}

void expectTidy(const OCRPanel &panel, const std::string &name) {
    const auto parts = shownParts(panel);
    ASSERT_GE(parts.size(), 1U) << name;
    for (const auto &[part, room] : parts) {
        const std::string where = name + ' ' + part->metaObject()->className();
        EXPECT_TRUE(part->parentWidget()->rect().contains(part->geometry())) << where;
        EXPECT_TRUE(!part->inherits("QAbstractButton") || part->width() >= part->sizeHint().width()) << where;
        for (const auto &[other, otherRoom] : parts)
            EXPECT_TRUE(other == part || !otherRoom.intersects(room)) << where;
    }
}

TEST(RecognitionGallery, everythingLiesInsideItsCardAndNothingOverlaps) {
    ManualScheduler scheduler;
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        for (const RecognitionGalleryState &shown : recognitionGalleryStates()) {
            OCRPanel panel(scheduler, nullptr);
            panel.setLayoutDirection(direction);
            panel.resize(shown.size);
            panel.apply(shown.state, shown.picture);
            panel.show();
            expectTidy(panel, shown.name.toStdString());
        }
    }
}

} // namespace
} // namespace tembra
