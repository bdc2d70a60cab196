#include "controls/SpokenNotice.h"

#include "controls/AccessibleControls.h"

#include <QAccessible>

namespace tembra {

SpokenNotice::SpokenNotice(QWidget &window) : QWidget(&window) {
    installAccessibleControls();
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 1, 1);
    show();
}

void SpokenNotice::say(QWidget &place, const QString &sentence) {
    if (!QAccessible::isActive() || sentence.isEmpty())
        return;
    QWidget &window = *place.window();
    auto *notice = window.findChild<SpokenNotice *>(QString(), Qt::FindDirectChildrenOnly);
    if (!notice)
        notice = new SpokenNotice(window);
    notice->setAccessibleName(sentence);
    readAgain(*notice);
}

void SpokenNotice::readAgain(QWidget &shown) {
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&shown, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

} // namespace tembra
