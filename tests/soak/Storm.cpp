#include "Storm.h"

#include "Shelf.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QThread>

#include <unistd.h>

namespace tembra {

namespace {

// For a machine that has much else to do: what takes longer hangs.
constexpr std::chrono::seconds patience{30};

QStringList words(const char *line) {
    return QString::fromLatin1(line).split(u' ');
}

} // namespace

Storm::Storm(DummyServer &server, Dice &dice, Tally &tally)
    : m_server(server),
      m_dice(dice),
      m_tally(tally),
      m_volume(m_tembra, tally),
      m_captures(m_tembra, dice, tally, m_ledger),
      m_desk(m_tembra, dice, tally, server.isRunning() ? 1024 : 1280),
      m_life(m_tembra, dice, tally),
      m_edits(m_tembra, dice, tally) {
    m_tembra.setPatience(patience);
    m_life.takeClock();
    // No other programs, whatever the hands hit in a menu.
    m_tembra.setVariable(QStringLiteral("XDG_DATA_DIRS"), m_tembra.home());
    // What is older than a week goes, which the user has agreed to; and the shelf is on every display.
    m_tembra.setSettings({{QStringLiteral("screenshotAutoCleanDays"), 7},
                          {QStringLiteral("autoCleanSafetyReviewV1"), 2},
                          {QStringLiteral("displayPreference"), QStringLiteral("all")},
                          {QStringLiteral("hoverOnTabToOpen"), true}});
    prepareDisplays();
    tellWhatIsLeftOut();
}

void Storm::prepareDisplays() {
    if (!m_server.isRunning())
        return;
    m_server.xrandr(words("--newmode wide 60 1280 1290 1300 1310 800 810 820 830"));
    m_server.xrandr(words("--newmode turned 60 720 730 740 750 1280 1290 1300 1310"));
    m_server.xrandr(words("--addmode DUMMY1 wide"));
    m_server.xrandr(words("--addmode DUMMY1 turned"));
}

void Storm::tellWhatIsLeftOut() const {
    if (!m_volume.problem().isEmpty())
        std::printf("Left out: mounting and unmounting, for %s.\n", qUtf8Printable(m_volume.problem()));
    if (!m_server.isRunning())
        std::printf(
            "Left out: displays that come and go, for Xorg or its dummy driver is not installed, or may "
            "not run here.\n");
    if (!m_life.problem().isEmpty())
        std::printf("Left out: jumps of the clock, for %s.\n", qUtf8Printable(m_life.problem()));
    std::fflush(stdout);
}

void Storm::blowFor(std::chrono::seconds length, std::chrono::seconds lifeLength) {
    for (const QDeadlineTimer end(length); !end.hasExpired();) {
        m_life.start();
        const auto left = std::chrono::duration_cast<std::chrono::seconds>(end.remainingTimeAsDuration());
        for (const QDeadlineTimer death(std::min(lifeLength, left)); !death.hasExpired();)
            step();
        if (!m_dice.onceIn(3))
            calmDown();
        const QString path = m_captures.any();
        if (m_dice.onceIn(2) && !m_life.isHeld() && !path.isEmpty())
            m_edits.editAndDie(path, m_life);
        else
            m_life.kill();
        lookForFiles();
    }
    // Once more without edits that nobody saved, about which it would ask.
    m_life.start();
    calmDown();
    m_life.quit();
    lookForFiles();
    for (const QString &trash : {m_volume.files() + QStringLiteral("/.Trash-%1").arg(::getuid()),
                                 m_tembra.home() + QStringLiteral("/.local/share/Trash")})
        m_tally.count("files in the Trash at the end",
                      static_cast<int>(QDir(trash + QStringLiteral("/files")).entryList(QDir::Files).size()));
    std::printf("%d files were made and not deleted; the program said:\n", m_ledger.size());
    m_life.readLog();
}

void Storm::step() {
    m_desk.step();
    if (m_volume.isFolderThere())
        m_captures.step();
    if (m_dice.onceIn(60))
        m_life.isHeld() ? m_life.letGo() : m_life.hold();
    if (m_dice.onceIn(80))
        m_life.jump();
    if (m_dice.onceIn(25))
        m_desk.copy(m_captures.any());
    stepOfFolder();
    stepOfDisplays();
    // Held, it answers nobody.
    if (!m_life.isHeld()) {
        if (m_dice.onceIn(20))
            m_desk.command(m_captures.any());
        if (m_dice.onceIn(120))
            stepOfEditor();
        if (m_dice.onceIn(50))
            m_life.look();
    }
    QThread::msleep(static_cast<unsigned long>(m_dice.below(30)));
}

void Storm::stepOfFolder() {
    if (!m_volume.isFolderThere()) {
        if (m_dice.onceIn(30))
            m_volume.bringBack();
        return;
    }
    // Held, the program may have a file open that it cannot close.
    if (m_dice.onceIn(200) && !m_life.isHeld()) {
        m_captures.finishArrivals();
        m_volume.unmount();
    }
    if (m_dice.onceIn(200))
        m_volume.renameFolder();
}

void Storm::stepOfDisplays() {
    static const QStringList places{QStringLiteral("--right-of"), QStringLiteral("--below")};
    static const QStringList modes{QStringLiteral("wide"), QStringLiteral("turned")};
    if (!m_server.isRunning() || !m_dice.onceIn(60))
        return;
    if (m_dice.onceIn(2)) {
        m_server.xrandr(words("--output DUMMY0 --primary --pos 0x0 --output DUMMY1 --off"));
        m_tally.count("display unplugged");
    } else {
        m_server.xrandr({QStringLiteral("--output"), QStringLiteral("DUMMY1"), QStringLiteral("--mode"),
                         m_dice.one(modes), m_dice.one(places), QStringLiteral("DUMMY0")});
        m_tally.count("display plugged in");
    }
}

void Storm::stepOfEditor() {
    m_desk.rest();
    const QString path = m_captures.any();
    if (path.isEmpty())
        return;
    if (m_dice.onceIn(4))
        m_edits.editWhatIsReplaced(path, m_captures);
    else
        m_edits.edit(path);
}

void Storm::calmDown() {
    m_life.letGo();
    m_life.keepTime();
    m_volume.bringBack();
    m_captures.finishArrivals();
    m_desk.rest();
    m_life.look();
    const auto differs = [this] {
        return shelfDiffers(m_tembra, listedNewestFirst(m_captures.folder(), m_captures.names()));
    };
    m_tally.count("shelf compared with the folder");
    if (differs()) {
        // What was under way may have moved files meanwhile.
        if (const auto difference = differs())
            m_tally.fault(QStringLiteral("the shelf is not the folder:") + *difference);
    }
}

void Storm::lookForFiles() {
    const QStringList lost =
        m_ledger.missing({m_volume.files(), m_tembra.home() + QStringLiteral("/.local/share/Trash"),
                          m_tembra.home() + QStringLiteral("/tembra/data")});
    m_tally.count("search for every file");
    for (const QString &name : lost)
        m_tally.fault(QStringLiteral("lost: ") + name);
}

} // namespace tembra
