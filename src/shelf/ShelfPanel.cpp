#include "shelf/ShelfPanel.h"

#include <QKeyEvent>
#include <QWindow>

namespace tembra {

ShelfPanel::ShelfPanel() {
    setWindowTitle(QStringLiteral("Tembra"));
    setAccessibleName(tr("Shelf"));
}

void ShelfPanel::showEvent(QShowEvent *) {
    // Presses are seen here before the view that is pressed takes them.
    windowHandle()->removeEventFilter(this);
    windowHandle()->installEventFilter(this);
}

bool ShelfPanel::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::MouseButtonPress && onPress)
        onPress();
    if (event->type() == QEvent::KeyPress && onKey && onKey(*static_cast<QKeyEvent *>(event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

void ShelfPanel::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape && onEscape)
        return onEscape();
    QWidget::keyPressEvent(event);
}

} // namespace tembra
