#pragma once

#include "Captures.h"
#include "Desk.h"
#include "Life.h"
#include "e2e/EditorHands.h"

namespace tembra {

// A user who draws on screenshots and saves, whatever happens meanwhile.
class Edits {
public:
    Edits(const TembraProcess &tembra, Dice &dice, Tally &tally);

    // Opens a capture, draws a rectangle, and saves. Whether it is saved; the window is closed again.
    bool edit(const QString &path);
    // Opens and draws, and kills the program while it saves.
    void editAndDie(const QString &path, Life &life);
    // Another program replaces the file while it is drawn on.
    void editWhatIsReplaced(const QString &path, Captures &captures);

private:
    [[nodiscard]] bool draw(const QString &path);
    void close();

    const EditorHands m_hands;
    Dice &m_dice;
    Tally &m_tally;
};

} // namespace tembra
