#pragma once

#include "Dice.h"
#include "Tally.h"

#include <QString>

namespace tembra {

class TembraProcess;

// The program's own life: started, held and continued, sent through time, killed.
class Life {
public:
    Life(TembraProcess &tembra, Dice &dice, Tally &tally);

    // From the next start on its dates are ours.
    void takeClock();
    // Why its clock is left alone; empty when it is not.
    [[nodiscard]] QString problem() const { return m_problem; }
    void start();
    void kill();
    // Ends as a user ends it; whether it said goodbye.
    void quit();
    // The dates that it sees are others from now on.
    void jump();
    void keepTime() { setOffset(QStringLiteral("+0")); }

    void hold();
    void letGo();
    [[nodiscard]] bool isHeld() const { return m_isHeld; }
    // Finds out whether it runs and answers; starts another one if not.
    void look();
    // What it says that it must not.
    void readLog();

private:
    void setOffset(const QString &offset);
    [[nodiscard]] bool answers();

    TembraProcess &m_tembra;
    Dice &m_dice;
    Tally &m_tally;
    const QString m_log;
    const QString m_clock;
    QString m_problem;
    bool m_isHeld = false;
};

} // namespace tembra
