#pragma once

#include "editor/chrome/EditorControlRow.h"

namespace tembra {

class EditorFlatButton;

// The size of what is drawn, in pixels of the image: opens a list of sizes; the wheel and the arrow keys go
// in steps.
class EditorSizeControl final : public EditorControlRow {
    Q_OBJECT

public:
    explicit EditorSizeControl(QWidget *parent = nullptr);

    void setSize(double size, double smallest, double largest);
    // What the list offers: some sizes within the bounds, and the one in use.
    [[nodiscard]] std::vector<double> offered() const;

Q_SIGNALS:
    void chosen(double size);
    void stepped(int steps);

private:
    void open();

    double m_size = 1;
    double m_smallest = 1;
    double m_largest = 100;
    // Begins with the size.
    EditorFlatButton *m_button;
};

} // namespace tembra
