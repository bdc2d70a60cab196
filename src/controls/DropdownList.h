#pragma once

#include <QListView>
#include <QStringListModel>

namespace tembra {

// The list that a dropdown opens: a popup window with rounded corners in the colours of the control that
// owns it. It goes when a choice is made, at Escape and at a press beside it.
class DropdownList final : public QListView {
    Q_OBJECT

public:
    DropdownList(const QStringList &titles, int current, QWidget *owner);

    // Opens below the owner, above it where there is no room.
    void popUp();
    // Tells of the choice and goes.
    void choose(const QModelIndex &index);

Q_SIGNALS:
    void chosen(int index);
    void closed();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QStringListModel m_titles;
    const int m_chosen;
};

} // namespace tembra
