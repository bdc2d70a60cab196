#pragma once

#include "editor/chrome/EditorControlRow.h"
#include "editor/model/BlurMode.h"
#include "editor/model/EditorStyleChange.h"

class QAbstractButton;

namespace tembra {

class EditorIconButton;
class EditorNumberControl;
class EditorSizeControl;
class EditorSwatches;
class TembraSegmentedControl;
struct EditorDockState;

// What can be set of the style, side by side.
class EditorStyleRow final : public EditorControlRow {
    Q_OBJECT

public:
    explicit EditorStyleRow(QWidget *parent = nullptr);

    void apply(const EditorDockState &state);
    // Of what most tools have: the colours and a size.
    [[nodiscard]] int usualWidth() const;

Q_SIGNALS:
    void changed(const tembra::EditorStyleChange &change);
    void blurModeChosen(tembra::BlurMode mode);
    void customColorRequested();
    void numberEditingEnded();

private:
    void buildColors();
    void buildToggles();
    void buildBlur();
    void buildNumber();

    EditorSwatches *m_swatches;
    EditorSizeControl *m_size;
    EditorIconButton *m_filled;
    EditorIconButton *m_background;
    TembraSegmentedControl *m_blurMode;
    TembraSegmentedControl *m_strength;
    EditorNumberControl *m_number;
    QAbstractButton *m_straighten;
};

} // namespace tembra
