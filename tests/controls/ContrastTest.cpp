#include "controls/Palette.h"
#include "controls/Theme.h"

#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tembra {
namespace {

// WCAG 2.2, 1.4.3 and 1.4.11.
constexpr double forText = 4.5;
// Large text, icons, and what a control or the focus is known by.
constexpr double forShapes = 3;

double luminance(const QColor &color) {
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor over(const QColor &color, const QColor &ground) {
    const auto mixed = [&](float above, float below) {
        return above * color.alphaF() + below * (1 - color.alphaF());
    };
    return QColor::fromRgbF(mixed(color.redF(), ground.redF()), mixed(color.greenF(), ground.greenF()),
                            mixed(color.blueF(), ground.blueF()));
}

double contrast(const QColor &color, const QColor &ground) {
    const double one = luminance(over(color, ground));
    const double other = luminance(ground);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

std::string name(const QColor &color) {
    return color.name(QColor::HexArgb).toStdString();
}

using Part = QColor Theme::*;
struct Pair {
    const char *name;
    Part ink;
    std::vector<Part> grounds;
    double least;
};

TEST(Contrast, isThatOfWcag) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(contrast(QColor(119, 119, 119), Qt::white), 4.478, 0.001);
    EXPECT_NEAR(contrast(QColor(0, 0, 0, 0), Qt::white), 1, 0.001);
}

TEST(Contrast, everyThemeCanBeReadAndItsControlsFound) {
    using T = Theme;
    const Pair pairs[] = {
        {"text",
         &T::text,
         {&T::window, &T::sidebar, &T::header, &T::group, &T::control, &T::controlHovered, &T::controlPressed,
          &T::field, &T::popup, &T::canvas, &T::segments, &T::segmentCurrent, &T::selection},
         forText},
        {"secondaryText",
         &T::secondaryText,
         {&T::window, &T::sidebar, &T::header, &T::group, &T::field, &T::popup, &T::segments},
         forText},
        {"chevron", &T::secondaryText, {&T::control, &T::controlHovered, &T::controlPressed}, forShapes},
        {"onPrimary", &T::onPrimary, {&T::primary, &T::primaryHovered, &T::primaryPressed}, forText},
        {"onAccent", &T::onAccent, {&T::accent, &T::accentHovered, &T::accentPressed}, forText},
        {"invalid", &T::invalid, {&T::window, &T::header, &T::group, &T::field}, forText},
        {"link", &T::link, {&T::window, &T::header, &T::group}, forText},
        {"toolTip", &T::toolTipText, {&T::toolTip}, forText},
        {"dockIcon", &T::dockIcon, {&T::dock}, forText},
        {"unsaved", &T::unsaved, {&T::window, &T::header}, forShapes},
        {"focusRing",
         &T::focusRing,
         {&T::window, &T::sidebar, &T::header, &T::group, &T::canvas, &T::dock, &T::popup},
         forShapes},
        {"accent", &T::accent, {&T::window, &T::sidebar, &T::header, &T::group}, forShapes},
        {"primary", &T::primary, {&T::window}, forShapes},
        {"track", &T::track, {&T::window, &T::group}, forShapes},
        {"knob", &T::knob, {&T::track, &T::trackHovered, &T::accent, &T::accentHovered}, forShapes},
        {"fieldBorder", &T::fieldBorder, {&T::window, &T::sidebar, &T::header, &T::group}, forShapes}};
    for (const Appearance appearance : {Appearance::shelf, Appearance::light, Appearance::dark}) {
        QWidget widget;
        Theme::setAppearance(widget, appearance);
        const Theme &theme = Theme::of(widget);
        for (const Pair &pair : pairs) {
            for (const Part ground : pair.grounds) {
                const QColor below = over(theme.*ground, theme.canvas);
                EXPECT_GE(contrast(theme.*pair.ink, below), pair.least)
                    << pair.name << ' ' << name(theme.*pair.ink) << " on " << name(below) << " in appearance "
                    << static_cast<int>(appearance);
            }
        }
    }
}

TEST(Contrast, theShelfCanBeReadAndItsControlsFound) {
    struct OnShelf {
        QColor ink;
        std::vector<QColor> grounds;
        double least;
    };
    using namespace palette;
    const OnShelf pairs[] = {
        {text, {panel, group, groupActive, menu, textSelection, plainButtonHovered}, forText},
        {itemText, {panel, group}, forText},
        {secondaryText, {panel, group, groupActive, field, menu}, forText},
        {onAccent, {accent}, forText},
        {onButton, {button, buttonHovered, buttonPressed}, forText},
        {icon, {panel, group, groupHovered}, forShapes},
        {iconActive, {groupActive}, forShapes},
        {onPinBadge, {pinBadge}, forShapes},
        {pinBadge, {panel}, forShapes},
        {accent, {panel, menu}, forShapes},
        {focusRing, {panel, group, groupActive, menu}, forShapes},
        {scrollerKnobActive, {panel}, forShapes}};
    for (const OnShelf &pair : pairs) {
        for (const QColor &ground : pair.grounds)
            EXPECT_GE(contrast(pair.ink, ground), pair.least) << name(pair.ink) << " on " << name(ground);
    }
}

} // namespace
} // namespace tembra
