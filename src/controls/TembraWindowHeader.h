#pragma once

#include <QWidget>

class QHBoxLayout;

namespace tembra {

// The bar along a window's top: the title in the middle, controls at both ends. A drag of it
// moves the window, a double click makes it as large as the display and back.
class TembraWindowHeader final : public QWidget {
    Q_OBJECT

public:
    static constexpr int barHeight = 52;

    explicit TembraWindowHeader(const QString &title, QWidget *parent = nullptr);

    [[nodiscard]] const QString &title() const { return m_title; }
    void setTitle(const QString &title);
    // Side by side, from the near end on and up to the far end. Owned by the header from then on.
    void addLeading(QWidget *control);
    void addTrailing(QWidget *control);

    [[nodiscard]] QSize sizeHint() const override { return {320, barHeight}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    QString m_title;
    QHBoxLayout *m_layout;
    // Where the controls at the near end stop.
    int m_leadingCount = 0;
};

} // namespace tembra
