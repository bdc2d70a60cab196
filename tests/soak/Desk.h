#pragma once

#include "Dice.h"
#include "Tally.h"

#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>

namespace tembra {

class TembraProcess;

// A user's hands while nobody looks at what comes of it: the pointer over shelf and screen, the keys of the
// shelf, the clipboard, files for the tray. Screen points of a main display at the origin.
class Desk {
public:
    Desk(const TembraProcess &tembra, Dice &dice, Tally &tally, int width);
    ~Desk();
    Desk(const Desk &) = delete;
    Desk &operator=(const Desk &) = delete;

    // Pointer and keys are on their way meanwhile.
    void step();
    // What goes by the program's own commands, while it answers.
    void command(const QString &capture);
    // What another program copies.
    void copy(const QString &capture);
    // The pointer lies aside and no key is down.
    void rest();

    // Waits for it.
    void xdotool(const QStringList &words);
    // As a file of that type on the clipboard.
    void offer(const QString &file, const QString &type);
    [[nodiscard]] QPoint firstTile() const { return m_shelf.topLeft() + QPoint(72, 100); }
    [[nodiscard]] QPoint notch() const { return {m_shelf.center().x(), 0}; }
    [[nodiscard]] static QPoint aside() { return {20, 700}; }
    [[nodiscard]] static QStringList to(QPoint point);

private:
    [[nodiscard]] QStringList flight();
    [[nodiscard]] QPoint anywhere();
    [[nodiscard]] QPoint onShelf();
    void run(const QString &program, const QStringList &arguments);

    const TembraProcess &m_tembra;
    Dice &m_dice;
    Tally &m_tally;
    // Where it opens.
    const QRect m_shelf;
    QProcess m_flying;
    int m_copies = 0;
};

} // namespace tembra
