#pragma once

#include "editor/chrome/EditorControlRow.h"

#include <cstdint>

namespace tembra {

class TembraTextField;

// The value of a number: a field to type it into, and a button for each direction. There is no number 0.
class EditorNumberControl final : public EditorControlRow {
    Q_OBJECT

public:
    explicit EditorNumberControl(QWidget *parent = nullptr);

    void setNumber(std::int64_t number);

Q_SIGNALS:
    void chosen(std::int64_t number);
    // Escape was pressed: the keyboard is free.
    void editingEnded();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void restore();
    void apply();
    void step(int steps);

    TembraTextField *m_field;
    std::int64_t m_number = 1;
};

} // namespace tembra
