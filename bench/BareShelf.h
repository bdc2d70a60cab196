#pragma once

#include <QTimer>
#include <QWidget>

namespace tembra::bench {

// What a shelf costs at the very least: a window of its size that lies ready, appears when the pointer enters
// a strip at the edge of the screen, and is filled anew for each frame.
class BareShelf final : public QWidget {
public:
    explicit BareShelf(bool isTranslucent);

    // The middle of the strip.
    [[nodiscard]] QPoint strip() const;
    // Paints this many frames.
    void animate(int frames);
    [[nodiscard]] bool isAnimating() const { return m_timer.isActive(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    class Strip;

    std::unique_ptr<QWidget> m_strip;
    QTimer m_timer;
    int m_framesLeft = 0;
};

} // namespace tembra::bench
