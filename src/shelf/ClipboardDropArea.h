#pragma once

#include <QWidget>

namespace tembra {

// The place that invites files: all of an empty tray, or over its files while more are held over them.
class ClipboardDropArea final : public QWidget {
    Q_OBJECT

public:
    explicit ClipboardDropArea(QWidget *parent);

    void setHighlighted(bool highlighted);
    void setOverlay(bool overlay);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_highlighted = false;
    bool m_overlay = false;
};

} // namespace tembra
