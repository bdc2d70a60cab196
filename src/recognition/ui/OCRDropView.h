#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace tembra {

class TembraButton;

// The place that invites an image, or says why the last one gave no text; over other content it shows only
// that an image may be dropped.
class OCRDropView final : public QWidget {
    Q_OBJECT

public:
    explicit OCRDropView(QWidget *parent);

    // What is said in place of the invitation; the invitation where it is empty.
    void setError(const QString &message);
    // While an image is held over it.
    void setHighlighted(bool highlighted);
    void setOverlay(bool overlay);

Q_SIGNALS:
    void chooseImageRequested();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void build();

    QLabel *m_message = nullptr;
    QLabel *m_hint = nullptr;
    TembraButton *m_choose = nullptr;
    bool m_highlighted = false;
    bool m_overlay = false;
};

} // namespace tembra
