#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include <vector>

namespace tembra {

class TembraSegment;

// A few choices side by side, one of which is current. The arrow keys, Home and End choose; Tab passes over
// the whole. The first segment is current at first.
class TembraSegmentedControl final : public QWidget {
    Q_OBJECT

public:
    explicit TembraSegmentedControl(const QStringList &titles, QWidget *parent = nullptr);

    [[nodiscard]] int currentIndex() const { return m_current; }
    void setCurrentIndex(int index);
    // Whether a click takes the focus; Tab always reaches the control.
    void setFocusedByClick(bool isFocused);
    [[nodiscard]] TembraSegment &segment(int index) const { return *m_segments[static_cast<size_t>(index)]; }

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void currentIndexChanged(int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void layOut();
    void updateFocusPolicies();
    void choose(int index, Qt::FocusReason reason);
    [[nodiscard]] int count() const { return static_cast<int>(m_segments.size()); }

    std::vector<TembraSegment *> m_segments;
    int m_current = -1;
    bool m_isFocusedByClick = true;
    // Left edge of what marks the current segment.
    QVariantAnimation m_position;
};

} // namespace tembra
