#include "Hour.h"

#include "Shelf.h"

#include <QDir>
#include <QThread>

#include <functional>

namespace tembra {

namespace {

constexpr int population = 30;
// Until each of the allocator's arenas has seen the most that is ever needed there.
constexpr int hoursToWarmUp = 3;

bool isOpen(const QJsonObject &status) {
    return status[u"shelf"][u"expanded"].toBool();
}

} // namespace

Hour::Hour(Dice &dice, Tally &tally, int width)
    : m_dice(dice),
      m_tally(tally),
      m_captures(m_tembra, dice, tally, m_ledger),
      m_desk(m_tembra, dice, tally, width),
      m_life(m_tembra, dice, tally),
      m_edits(m_tembra, dice, tally) {
    m_tembra.setPatience(std::chrono::seconds(30));
}

void Hour::live(int divisor) {
    m_desk.rest();
    for (int i = 0; i < population; ++i)
        m_captures.arrive();
    m_life.start();
    fillCaches(divisor);
    for (int i = 0; i < hoursToWarmUp; ++i)
        useOnce(divisor);
    const int before = memoryAtRest();
    useOnce(divisor);
    const int after = memoryAtRest();
    std::printf("memory after %d hours: %d KiB, after another: %d KiB, %+.1f %%%s\n", hoursToWarmUp, before,
                after, 100.0 * (after - before) / before, divisor > 1 ? ", of too little use to judge" : "");
    if (divisor == 1 && after > before + before / 20)
        m_tally.fault(QStringLiteral("it needs more and more memory"));
    m_life.look();
    m_life.quit();
    m_life.readLog();
}

// So many captures are seen that what is kept of those seen last is all there.
void Hour::fillCaches(int divisor) {
    for (int i = 0; i < 200 / divisor; ++i) {
        captureAndDelete();
        if (i % 5 == 0)
            open("screenshots");
    }
}

// In an order of the dice, each as often as it is to be.
void Hour::useOnce(int divisor) {
    struct Use {
        int times;
        std::function<void()> act;
    };
    std::vector<Use> uses{{60, [this] { captureAndDelete(); }},
                          {120, [this] { open("screenshots"); }},
                          {20, [this] { preview(); }},
                          {10, [this] { m_edits.edit(m_captures.any()); }},
                          {60, [this] { m_desk.copy(m_captures.any()); }},
                          {10, [this] { read(); }},
                          {20,
                           [this] {
                               m_tembra.command({QStringLiteral("add"), m_captures.any()});
                           }},
                          {6, [this] {
                               m_tembra.command({QStringLiteral("settings")});
                               m_desk.xdotool({QStringLiteral("sleep"), QStringLiteral("0.5"),
                                               QStringLiteral("key"), QStringLiteral("ctrl+w")});
                           }}};
    for (Use &use : uses)
        use.times = (use.times + divisor - 1) / divisor;
    while (!uses.empty()) {
        Use &use = m_dice.one(uses);
        use.act();
        if (--use.times == 0)
            uses.erase(uses.begin() + (&use - uses.data()));
    }
}

void Hour::captureAndDelete() {
    m_captures.arrive();
    const QStringList all = listedNewestFirst(m_captures.folder(), m_captures.names());
    for (const QString &path : all.sliced(population))
        QFile::remove(path);
}

void Hour::open(const char *tab) {
    const auto opens = [&] {
        m_tembra.command({QStringLiteral("open"), QStringLiteral("--tab"), QString::fromLatin1(tab)});
        return m_tembra.waitFor(isOpen);
    };
    // A key of before may arrive late and close it again.
    if (!opens() && !opens())
        m_tally.fault(QStringLiteral("the shelf does not open"));
    m_desk.xdotool(Desk::to(m_desk.firstTile()) +
                   QStringList{QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("3"),
                               QStringLiteral("5"), QStringLiteral("sleep"), QStringLiteral("0.2")});
    m_tembra.command({QStringLiteral("close")});
    m_desk.xdotool(Desk::to(Desk::aside()));
    m_tally.count("openings");
}

void Hour::preview() {
    m_tembra.command({QStringLiteral("open")});
    m_desk.xdotool(Desk::to(m_desk.firstTile()) +
                   QStringList{QStringLiteral("click"), QStringLiteral("1"), QStringLiteral("sleep"),
                               QStringLiteral("0.2"), QStringLiteral("key"), QStringLiteral("space"),
                               QStringLiteral("sleep"), QStringLiteral("0.5"), QStringLiteral("key"),
                               QStringLiteral("Escape")});
    m_tembra.command({QStringLiteral("close")});
    m_desk.rest();
    m_tally.count("previews");
}

void Hour::read() {
    const auto phase = [this](const QString &wish) {
        return m_tembra.waitFor(
            [&wish](const QJsonObject &status) { return status[u"text"][u"phase"].toString() != wish; });
    };
    m_desk.offer(m_captures.any(), QStringLiteral("image/png"));
    m_tembra.command({QStringLiteral("open"), QStringLiteral("--tab"), QStringLiteral("text")});
    m_desk.xdotool(
        {QStringLiteral("key"), QStringLiteral("ctrl+v"), QStringLiteral("sleep"), QStringLiteral("0.3")});
    if (!phase(QStringLiteral("loading")))
        m_tally.fault(QStringLiteral("reading an image does not end"));
    m_tembra.command({QStringLiteral("close")});
    m_tally.count("images read");
}

int Hour::memoryAtRest() {
    m_desk.offer(m_captures.folder() + u'/' + m_captures.names().constFirst(), QStringLiteral("image/png"));
    m_tembra.command({QStringLiteral("close")});
    m_desk.rest();
    // Freed memory goes back after five to ten seconds.
    QThread::sleep(15);
    QFile sums(QStringLiteral("/proc/%1/smaps_rollup").arg(m_tembra.processId()));
    int kibibytes = 0;
    if (sums.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : sums.readAll().split('\n')) {
            if (line.startsWith("Private_Dirty:"))
                kibibytes = line.simplified().split(' ').value(1).toInt();
        }
    }
    return kibibytes;
}

} // namespace tembra
