#pragma once

#include "Captures.h"
#include "Desk.h"
#include "Edits.h"
#include "Ledger.h"
#include "Life.h"
#include "Volume.h"
#include "e2e/DummyServer.h"

#include <chrono>

namespace tembra {

// Everything that may happen to the program at once, thrown for with the dice. After each of its lives every
// file that was made is looked for, and in most of them what the shelf shows is compared with what is in the
// folder.
class Storm {
public:
    // The server is without displays to plug where it does not run.
    Storm(DummyServer &server, Dice &dice, Tally &tally);

    void blowFor(std::chrono::seconds length, std::chrono::seconds lifeLength);

private:
    void prepareDisplays();
    void tellWhatIsLeftOut() const;
    void step();
    void stepOfFolder();
    void stepOfDisplays();
    void stepOfEditor();
    // Lets everything come to an end and compares.
    void calmDown();
    // While nothing runs that moves them.
    void lookForFiles();

    DummyServer &m_server;
    Dice &m_dice;
    Tally &m_tally;
    TembraProcess m_tembra;
    Volume m_volume;
    Ledger m_ledger;
    Captures m_captures;
    Desk m_desk;
    Life m_life;
    Edits m_edits;
};

} // namespace tembra
