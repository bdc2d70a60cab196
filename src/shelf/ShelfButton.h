#pragma once

#include "controls/Icons.h"

#include <QAbstractButton>

#include <functional>

class QMimeData;

namespace tembra {

// A button of the shelf's header: an icon on a rounded field, which is filled while its tab is the active
// one.
class ShelfButton final : public QAbstractButton {
    Q_OBJECT

public:
    static constexpr QSize fieldSize{38, 26};

    enum class Kind { tab, command };

    ShelfButton(Kind kind, Icon icon, const QString &name, QWidget *parent);

    // What may be dropped on it, where it accepts drops; everything when not set.
    std::function<bool(const QMimeData &)> canReceive;

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] QSize sizeHint() const override { return fieldSize; }

Q_SIGNALS:
    void entered();
    void left();
    // Something is held over it, or dropped on it.
    void draggedOver();
    void dropped(const QMimeData *content);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    const Kind m_kind;
    const Icon m_icon;
};

} // namespace tembra
