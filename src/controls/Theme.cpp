#include "controls/Theme.h"

#include "controls/Palette.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QWidget>

namespace tembra {

namespace {

constexpr char appearanceProperty[] = "tembraAppearance";

Theme darkTheme() {
    return {.window{30, 30, 34},
            .sidebar{25, 25, 28},
            .header{35, 35, 40},
            .group{38, 38, 43},
            .separator{30, 30, 34},
            .text{236, 236, 240},
            .secondaryText{150, 150, 158},
            .control{53, 53, 59},
            .controlHovered{63, 63, 70},
            .controlPressed{46, 46, 51},
            .controlBorder{0, 0, 0, 0},
            .primary{244, 244, 247},
            .primaryHovered{255, 255, 255},
            .primaryPressed{208, 208, 212},
            .onPrimary{17, 17, 19},
            .accent = palette::accent,
            .accentHovered{36, 104, 230},
            .accentPressed{30, 88, 204},
            .onAccent = palette::onAccent,
            .field{23, 23, 26},
            .fieldBorder{112, 112, 119},
            .invalid{255, 99, 99},
            .track{112, 112, 119},
            .trackHovered{124, 124, 131},
            .knob{255, 255, 255},
            .segments{26, 26, 29},
            .segmentCurrent{66, 66, 73},
            .toolTip{58, 58, 64},
            .toolTipText{242, 242, 244},
            .link{106, 163, 255},
            .focusRing = palette::focusRing,
            .selection{45, 45, 51},
            .popup{44, 44, 49},
            .popupBorder{66, 66, 73},
            .canvas{19, 19, 21},
            .scroller = palette::scrollerKnob,
            .scrollerActive = palette::scrollerKnobActive,
            .dock{38, 38, 43, 247},
            .dockBorder{255, 255, 255, 10},
            .dockSeparator{58, 59, 63},
            .dockIcon{184, 186, 193},
            .edge{0, 0, 0},
            .unsaved{251, 160, 52}};
}

Theme lightTheme() {
    return {.window{244, 244, 247},
            .sidebar{235, 235, 239},
            .header{250, 250, 252},
            .group{255, 255, 255},
            .separator{232, 232, 236},
            .text{28, 28, 32},
            .secondaryText{100, 100, 108},
            .control{236, 236, 240},
            .controlHovered{228, 228, 233},
            .controlPressed{214, 214, 220},
            .controlBorder{0, 0, 0, 20},
            .primary{32, 32, 36},
            .primaryHovered{52, 52, 58},
            .primaryPressed{12, 12, 14},
            .onPrimary{250, 250, 252},
            .accent{37, 99, 235},
            .accentHovered{29, 89, 221},
            .accentPressed{24, 76, 196},
            .onAccent{255, 255, 255},
            .field{255, 255, 255},
            .fieldBorder{134, 134, 142},
            .invalid{208, 43, 43},
            .track{140, 140, 148},
            .trackHovered{126, 126, 134},
            .knob{255, 255, 255},
            .segments{228, 228, 233},
            .segmentCurrent{255, 255, 255},
            .toolTip{46, 46, 51},
            .toolTipText{250, 250, 252},
            .link{29, 89, 221},
            .focusRing{37, 99, 235},
            .selection{222, 222, 228},
            .popup{255, 255, 255},
            .popupBorder{209, 209, 215},
            .canvas{222, 222, 227},
            .scroller{0, 0, 0, 70},
            .scrollerActive{0, 0, 0, 120},
            .dock{255, 255, 255, 247},
            .dockBorder{0, 0, 0, 26},
            .dockSeparator{222, 222, 228},
            .dockIcon{72, 72, 80},
            .edge{212, 212, 219},
            .unsaved{204, 110, 4}};
}

Theme shelfTheme() {
    Theme theme = darkTheme();
    theme.window = palette::panel;
    theme.sidebar = palette::panel;
    theme.header = palette::panel;
    theme.group = palette::group;
    theme.separator = palette::panel;
    theme.text = palette::text;
    theme.secondaryText = palette::secondaryText;
    theme.control = palette::groupActive;
    theme.controlHovered = palette::plainButtonHovered;
    theme.controlPressed = palette::group;
    theme.primary = palette::button;
    theme.primaryHovered = palette::buttonHovered;
    theme.primaryPressed = palette::buttonPressed;
    theme.onPrimary = palette::onButton;
    theme.field = palette::field;
    theme.popup = palette::menu;
    theme.popupBorder = palette::menuBorder;
    return theme;
}

const Theme &themeFor(Appearance appearance) {
    static const Theme light = lightTheme();
    static const Theme dark = darkTheme();
    static const Theme shelf = shelfTheme();
    switch (appearance) {
    case Appearance::shelf:
        return shelf;
    case Appearance::light:
        return light;
    case Appearance::dark:
        return dark;
    case Appearance::desktop:
        return QGuiApplication::palette().color(QPalette::Window).lightness() < 128 ? dark : light;
    }
    Q_UNREACHABLE();
}

void applyPalette(QWidget &root) {
    const Theme &theme = Theme::of(root);
    QPalette palette = root.palette();
    palette.setColor(QPalette::Window, theme.window);
    palette.setColor(QPalette::Base, theme.field);
    palette.setColor(QPalette::Button, theme.control);
    palette.setColor(QPalette::Highlight, theme.accent);
    palette.setColor(QPalette::HighlightedText, theme.onAccent);
    palette.setColor(QPalette::PlaceholderText, theme.secondaryText);
    palette.setColor(QPalette::Link, theme.link);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, theme.text);
        palette.setColor(QPalette::Disabled, role, theme.secondaryText);
    }
    root.setPalette(palette);
    root.update();
}

// Takes the desktop's new colours when it changes between light and dark.
class DesktopFollower final : public QObject {
public:
    explicit DesktopFollower(QWidget &root) : QObject(&root), m_root(root) { root.installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::ApplicationPaletteChange)
            applyPalette(m_root);
        return false;
    }

private:
    QWidget &m_root;
};

} // namespace

const Theme &Theme::of(const QWidget &widget) {
    for (const QWidget *above = &widget; above; above = above->parentWidget()) {
        const QVariant appearance = above->property(appearanceProperty);
        if (appearance.isValid())
            return themeFor(static_cast<Appearance>(appearance.toInt()));
    }
    return themeFor(Appearance::shelf);
}

void Theme::setAppearance(QWidget &root, Appearance appearance) {
    const QVariant previous = root.property(appearanceProperty);
    if (previous.isValid() && previous.toInt() == static_cast<int>(appearance))
        return;
    if (!previous.isValid())
        new DesktopFollower(root);
    root.setProperty(appearanceProperty, static_cast<int>(appearance));
    applyPalette(root);
}

} // namespace tembra
