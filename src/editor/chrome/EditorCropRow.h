#pragma once

#include "editor/chrome/EditorControlRow.h"

namespace tembra {

class EditorCropSize;

// What the dock shows while a crop is drawn: its size and aspect, and how to end it.
class EditorCropRow final : public EditorControlRow {
    Q_OBJECT

public:
    explicit EditorCropRow(QWidget *parent = nullptr);

    void setCrop(QSize crop);

Q_SIGNALS:
    void applied();
    void cancelled();

private:
    EditorCropSize *m_size;
};

} // namespace tembra
