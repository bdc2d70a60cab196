#pragma once

#include "Captures.h"
#include "Desk.h"
#include "Edits.h"
#include "Ledger.h"
#include "Life.h"

#include <optional>

namespace tembra {

// A busy hour in one life of the program, as quick as it goes: 60 captures, 120 openings of the shelf, 20
// previews, 10 edits, 60 copies elsewhere, 10 images read, 20 files into the tray, 6 looks into the settings.
// It is lived four times with as many captures in the folder, after so many others that the caches are full;
// the last hour may add no more than a twentieth to the memory.
class Hour {
public:
    Hour(Dice &dice, Tally &tally, int width);

    // With each number divided by that; only whole hours are judged.
    void live(int divisor);

private:
    void fillCaches(int divisor);
    void useOnce(int divisor);
    void captureAndDelete();
    void open(const char *tab);
    void preview();
    void read();
    // KiB of memory that is the program's alone, when it has come to rest.
    [[nodiscard]] int memoryAtRest();

    Dice &m_dice;
    Tally &m_tally;
    TembraProcess m_tembra;
    Ledger m_ledger;
    Captures m_captures;
    Desk m_desk;
    Life m_life;
    Edits m_edits;
};

} // namespace tembra
