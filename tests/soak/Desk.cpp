#include "Desk.h"

#include "e2e/TembraProcess.h"
#include "support/Files.h"

#include <QFileInfo>
#include <QUrl>

namespace tembra {

namespace {

constexpr int patience = 30'000;

QStringList words(const char *line) {
    return QString::fromLatin1(line).split(u' ');
}

} // namespace

Desk::Desk(const TembraProcess &tembra, Dice &dice, Tally &tally, int width)
    : m_tembra(tembra), m_dice(dice), m_tally(tally), m_shelf(width / 2 - 372, 0, 744, 256) {
    m_flying.setProcessEnvironment(tembra.environment());
    m_flying.setStandardOutputFile(QProcess::nullDevice());
    m_flying.setStandardErrorFile(QProcess::nullDevice());
}

Desk::~Desk() {
    m_flying.waitForFinished(patience);
}

void Desk::step() {
    m_flying.waitForFinished(0);
    if (m_flying.state() != QProcess::NotRunning)
        return;
    m_flying.start(QStringLiteral("xdotool"), flight());
    m_tally.count("flights of the pointer");
}

// One thing that a hand does, and where it is done.
QStringList Desk::flight() {
    static const QStringList tileKeys{
        QStringLiteral("ctrl+a"), QStringLiteral("Delete"), QStringLiteral("ctrl+z"),
        QStringLiteral("Right"),  QStringLiteral("space"),  QStringLiteral("Escape"),
        QStringLiteral("ctrl+c"), QStringLiteral("Home"),   QStringLiteral("ctrl+Tab"),
        QStringLiteral("ctrl+v"), QStringLiteral("Escape"), QStringLiteral("ctrl+shift+z")};
    switch (m_dice.below(9)) {
    case 0:
        return to(anywhere()) + to(anywhere());
    case 1:
    case 2:
        return to(notch()) + words("sleep 0.3") + to(onShelf());
    case 3:
        return to(onShelf()) + words("click 1");
    case 4:
        return to(onShelf()) + words("click --repeat 4 --delay 5") +
               QStringList{QString::number(m_dice.between(4, 5))};
    case 5:
        return to(onShelf()) + words("click 3 sleep 0.5 key Escape key Escape");
    case 6:
        return to(onShelf()) + words("mousedown 1") + to(onShelf()) + to(anywhere()) + words("mouseup 1");
    case 7:
        return to(notch()) + words("sleep 0.3") + to(firstTile()) +
               words("click 1 key --clearmodifiers --delay 30") +
               QStringList{m_dice.one(tileKeys), m_dice.one(tileKeys), m_dice.one(tileKeys)};
    default:
        return to(anywhere()) + words("key Escape");
    }
}

QPoint Desk::anywhere() {
    return {m_dice.below(1024), m_dice.below(768)};
}

// Neither the gear nor what stands in the corners: they lead to other windows.
QPoint Desk::onShelf() {
    return {m_dice.between(m_shelf.left() + 20, m_shelf.right() - 120),
            m_dice.between(m_shelf.top() + 20, m_shelf.bottom() - 40)};
}

void Desk::command(const QString &capture) {
    static const QStringList tabs{QStringLiteral("tray"), QStringLiteral("screenshots"),
                                  QStringLiteral("text")};
    switch (m_dice.below(5)) {
    case 0:
        m_tembra.command({QStringLiteral("open"), QStringLiteral("--tab"), m_dice.one(tabs)});
        return m_tally.count("openings by command");
    case 1:
        m_tembra.command({QStringLiteral("close")});
        return;
    case 2:
        m_tembra.command({QStringLiteral("toggle")});
        return;
    case 3:
        if (m_tembra.command({QStringLiteral("add"), capture}).exitStatus == 0)
            m_tally.count("files put into the tray");
        return;
    default:
        m_tembra.command({QStringLiteral("open"), QStringLiteral("--tab"), QStringLiteral("tray")});
        xdotool(to(firstTile()) + words("click 1 key ctrl+a key Delete"));
        m_tally.count("tray emptied");
    }
}

void Desk::copy(const QString &capture) {
    const QString file = m_tembra.home() + QStringLiteral("/copied");
    switch (capture.isEmpty() ? 2 : m_dice.below(3)) {
    case 0:
        // A copy of its own: whoever offers a file keeps it open.
        QFile::remove(file);
        QFile::copy(capture, file);
        offer(file, QStringLiteral("image/png"));
        return m_tally.count("images copied elsewhere");
    case 1:
        offer(writeFile(file, QUrl::fromLocalFile(capture).toEncoded() + "\r\n"),
              QStringLiteral("text/uri-list"));
        return m_tally.count("files copied elsewhere");
    default:
        offer(writeFile(file, QByteArray::number(++m_copies)), QStringLiteral("UTF8_STRING"));
        m_tally.count("texts copied elsewhere");
    }
}

void Desk::offer(const QString &file, const QString &type) {
    run(QStringLiteral("xclip"),
        {QStringLiteral("-selection"), QStringLiteral("clipboard"), QStringLiteral("-t"), type, file});
}

void Desk::rest() {
    m_flying.waitForFinished(patience);
    xdotool(words("mouseup 1 key Escape") + to(aside()));
}

void Desk::xdotool(const QStringList &words) {
    run(QStringLiteral("xdotool"), words);
}

// Not in the folder: it must not be kept busy.
void Desk::run(const QString &program, const QStringList &arguments) {
    QProcess process;
    process.setProcessEnvironment(m_tembra.environment());
    process.setWorkingDirectory(m_tembra.home());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    process.waitForFinished(patience);
}

QStringList Desk::to(QPoint point) {
    return {QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())};
}

} // namespace tembra
