#pragma once

#include <QWidget>

namespace tembra {

// A sentence that a screen reader reads out though nothing that it follows has changed. AT-SPI knows no
// announcements before 2.50, and Qt none before 6.8, but a notification that comes to be shown is read. A
// window has one, without a picture. Main thread.
class SpokenNotice final : public QWidget {
    Q_OBJECT

public:
    // In the window of `place`. Costs nothing where no assistive program listens.
    static void say(QWidget &place, const QString &sentence);
    // What a widget that is seen is called and described by, as if it had come to be shown just now.
    static void readAgain(QWidget &shown);

private:
    explicit SpokenNotice(QWidget &window);
};

} // namespace tembra
