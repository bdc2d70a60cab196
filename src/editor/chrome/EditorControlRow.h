#pragma once

#include <QWidget>

#include <vector>

namespace tembra {

// Controls side by side, by their bodies: the room around them for the keyboard's ring takes no place. What
// is hidden takes none either, and a separator is shown between groups that both have something to show.
class EditorControlRow : public QWidget {
    Q_OBJECT

public:
    // With what is kept free on both sides of it.
    static constexpr int separatorWidth = 21;

    explicit EditorControlRow(QWidget *parent = nullptr);

    // `gap` is the distance to what comes before. The row owns the control.
    void add(QWidget *control, int gap);
    void addSeparator();

    // Of the bodies; the row has room for a ring around them.
    [[nodiscard]] QSize bodySize() const;
    [[nodiscard]] QSize sizeHint() const override;
    // Takes up what its controls now want.
    void layOut();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Item {
        // None for a separator.
        QWidget *control;
        int gap;
    };
    struct Place {
        QWidget *control;
        QRect body;
    };

    [[nodiscard]] std::vector<Place> places() const;

    std::vector<Item> m_items;
    std::vector<QRect> m_separators;
};

} // namespace tembra
