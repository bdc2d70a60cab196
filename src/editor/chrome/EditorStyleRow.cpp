#include "editor/chrome/EditorStyleRow.h"

#include "controls/ControlPainting.h"
#include "controls/TembraSegment.h"
#include "controls/TembraSegmentedControl.h"
#include "controls/TembraToolTip.h"
#include "editor/chrome/EditorDockState.h"
#include "editor/chrome/EditorFlatButton.h"
#include "editor/chrome/EditorIconButton.h"
#include "editor/chrome/EditorNumberControl.h"
#include "editor/chrome/EditorSizeControl.h"
#include "editor/chrome/EditorSwatches.h"

#include <QSignalBlocker>

#include <algorithm>

namespace tembra {

namespace {

constexpr int gap = 6;
constexpr std::array blurModes{BlurMode::area, BlurMode::text};

// Shows the choice as the one that is, which tells nobody.
void showChoice(TembraSegmentedControl &segments, std::ptrdiff_t index) {
    const QSignalBlocker blocker(segments);
    segments.setCurrentIndex(static_cast<int>(index));
}

// Puts the button back to what is, until that changes.
void connectToggle(EditorIconButton &button, const std::function<void(bool)> &onChosen) {
    button.setCheckable(true);
    QObject::connect(&button, &QAbstractButton::clicked, &button, [&button, onChosen](bool isOn) {
        button.setChecked(!isOn);
        onChosen(isOn);
    });
}

} // namespace

EditorStyleRow::EditorStyleRow(QWidget *parent) : EditorControlRow(parent) {
    setAccessibleName(tr("Style"));
    buildColors();
    buildToggles();
    buildBlur();
    buildNumber();
}

void EditorStyleRow::buildColors() {
    m_swatches = new EditorSwatches(this);
    m_size = new EditorSizeControl(this);
    connect(m_swatches, &EditorSwatches::chosen, this,
            [this](const EditorColor &color) { Q_EMIT changed({.color = color}); });
    connect(m_swatches, &EditorSwatches::customRequested, this, &EditorStyleRow::customColorRequested);
    connect(m_size, &EditorSizeControl::chosen, this,
            [this](double size) { Q_EMIT changed({.size = size}); });
    connect(m_size, &EditorSizeControl::stepped, this,
            [this](int steps) { Q_EMIT changed({.sizeSteps = steps}); });
    add(m_swatches, gap);
    addSeparator();
    add(m_size, gap);
}

void EditorStyleRow::buildToggles() {
    using Size = EditorIconButton::Size;
    m_filled = new EditorIconButton(Icon::fill, Size::small, tr("Filled"), this);
    m_background = new EditorIconButton(Icon::textBackground, Size::small, tr("Background"), this);
    TembraToolTip::set(*m_background, tr("Background behind the text"));
    connectToggle(*m_filled, [this](bool isOn) { Q_EMIT changed({.isFilled = isOn}); });
    connectToggle(*m_background, [this](bool isOn) { Q_EMIT changed({.hasBackground = isOn}); });
    add(m_filled, gap);
    add(m_background, gap);
}

void EditorStyleRow::buildBlur() {
    m_blurMode = new TembraSegmentedControl({tr("Area"), tr("Words")}, this);
    m_blurMode->setAccessibleName(tr("What to blur"));
    m_strength = new TembraSegmentedControl({tr("Light"), tr("Medium"), tr("Strong")}, this);
    m_strength->setAccessibleName(tr("Strength"));
    // A click leaves the keyboard to what is being drawn.
    for (TembraSegmentedControl *segments : {m_blurMode, m_strength})
        segments->setFocusedByClick(false);
    connect(m_blurMode, &TembraSegmentedControl::currentIndexChanged, this,
            [this](int index) { Q_EMIT blurModeChosen(blurModes[static_cast<size_t>(index)]); });
    connect(m_strength, &TembraSegmentedControl::currentIndexChanged, this, [this](int index) {
        Q_EMIT changed({.strength = EditorBlur::strengths[static_cast<size_t>(index)]});
    });
    add(m_blurMode, gap);
    add(m_strength, gap + 4);
}

void EditorStyleRow::buildNumber() {
    m_number = new EditorNumberControl(this);
    m_straighten =
        new EditorFlatButton(tr("Straighten"), tr("Straighten"), EditorFlatButton::Mark::none, this);
    connect(m_number, &EditorNumberControl::chosen, this,
            [this](std::int64_t number) { Q_EMIT changed({.number = number}); });
    connect(m_number, &EditorNumberControl::editingEnded, this, &EditorStyleRow::numberEditingEnded);
    connect(m_straighten, &QAbstractButton::clicked, this, [this] { Q_EMIT changed({.straightens = true}); });
    addSeparator();
    add(m_number, gap);
    addSeparator();
    add(m_straighten, gap);
}

int EditorStyleRow::usualWidth() const {
    // The size's own width changes with its digits.
    constexpr int sizeWidth = 58;
    return m_swatches->sizeHint().width() - 2 * ringMargin + separatorWidth + sizeWidth;
}

void EditorStyleRow::apply(const EditorDockState &state) {
    m_swatches->setVisible(state.color.has_value());
    m_size->setVisible(state.size.has_value());
    m_filled->setVisible(state.isFilled.has_value());
    m_background->setVisible(state.hasBackground.has_value());
    m_blurMode->setVisible(state.blurMode.has_value());
    m_strength->setVisible(state.strength.has_value());
    m_number->setVisible(state.number.has_value());
    m_straighten->setVisible(state.canStraighten);
    if (state.color)
        m_swatches->setColor(*state.color);
    if (state.size)
        m_size->setSize(*state.size, state.smallestSize, state.largestSize);
    m_filled->setChecked(state.isFilled.value_or(false));
    m_background->setChecked(state.hasBackground.value_or(false));
    if (state.blurMode)
        showChoice(*m_blurMode, std::ranges::find(blurModes, *state.blurMode) - blurModes.begin());
    if (state.strength)
        showChoice(*m_strength,
                   std::ranges::find(EditorBlur::strengths, *state.strength) - EditorBlur::strengths.begin());
    if (state.number)
        m_number->setNumber(*state.number);
}

} // namespace tembra
