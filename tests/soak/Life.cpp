#include "Life.h"

#include "e2e/TembraProcess.h"
#include "support/Files.h"

#include <QDir>
#include <QRegularExpression>

#include <csignal>
#include <sys/types.h>

namespace tembra {

namespace {

// Where the library is that changes what a program sees of the clock.
QString fakeClock(const TembraProcess &tembra) {
    const auto answer =
        tembra.tool(QStringLiteral("faketime"), {QStringLiteral("-f"), QStringLiteral("+0"),
                                                 QStringLiteral("printenv"), QStringLiteral("LD_PRELOAD")});
    return answer.exitStatus == 0 ? answer.output.trimmed() : QString();
}

} // namespace

Life::Life(TembraProcess &tembra, Dice &dice, Tally &tally)
    : m_tembra(tembra),
      m_dice(dice),
      m_tally(tally),
      m_log(tembra.home() + QStringLiteral("/log")),
      m_clock(tembra.home() + QStringLiteral("/clock")) {
    m_tembra.logTo(m_log);
}

void Life::takeClock() {
    keepTime();
    const QString library = fakeClock(m_tembra);
    if (library.isEmpty()) {
        m_problem = QStringLiteral("faketime is not installed");
        return;
    }
    // Only the date: delays stay as they are, and files as old as they are. The file is read once a second.
    for (const auto &[name, value] :
         {std::pair{"LD_PRELOAD", library}, std::pair{"FAKETIME_TIMESTAMP_FILE", m_clock},
          std::pair{"FAKETIME_CACHE_DURATION", QStringLiteral("1")},
          std::pair{"DONT_FAKE_MONOTONIC", QStringLiteral("1")},
          std::pair{"NO_FAKE_STAT", QStringLiteral("1")},
          std::pair{"ASAN_OPTIONS",
                    qEnvironmentVariable("ASAN_OPTIONS") + QStringLiteral(":verify_asan_link_order=0")}})
        m_tembra.setVariable(QString::fromLatin1(name), value);
}

void Life::start() {
    m_tembra.start();
    m_tally.count("starts");
}

void Life::kill() {
    const QString number = QString::number(m_tembra.processId());
    m_tembra.kill();
    // What the clock's library had no time to put away.
    QFile::remove(QStringLiteral("/dev/shm/faketime_shm_") + number);
    QFile::remove(QStringLiteral("/dev/shm/sem.faketime_sem_") + number);
    m_isHeld = false;
    m_tally.count("killed");
}

void Life::quit() {
    letGo();
    if (m_tembra.command({QStringLiteral("quit")}).exitStatus != 0 || !m_tembra.waitForEnd()) {
        m_tally.fault(QStringLiteral("it does not quit"));
        m_tembra.kill();
    } else if (!m_tembra.endedWell()) {
        m_tally.fault(QStringLiteral("it crashed while it quit"));
    }
}

void Life::jump() {
    static const QStringList offsets{QStringLiteral("+8d"), QStringLiteral("+0"),   QStringLiteral("-2d"),
                                     QStringLiteral("+1h"), QStringLiteral("+40d"), QStringLiteral("+0")};
    if (!m_problem.isEmpty())
        return;
    setOffset(m_dice.one(offsets));
    m_tally.count("clock jumped");
}

void Life::setOffset(const QString &offset) {
    writeFile(m_clock, offset.toLatin1() + '\n');
}

void Life::hold() {
    if (m_isHeld)
        return;
    m_isHeld = ::kill(static_cast<pid_t>(m_tembra.processId()), SIGSTOP) == 0;
    m_tally.count("held");
}

void Life::letGo() {
    if (!m_isHeld)
        return;
    ::kill(static_cast<pid_t>(m_tembra.processId()), SIGCONT);
    m_isHeld = false;
    look();
}

bool Life::answers() {
    return m_tembra.waitFor([this](const QJsonObject &status) {
        return !status.isEmpty() || m_tembra.hasEnded();
    }) && !m_tembra.hasEnded();
}

void Life::look() {
    if (m_isHeld || answers())
        return;
    if (!m_tembra.hasEnded())
        m_tally.fault(QStringLiteral("it does not answer"));
    else if (m_tembra.endedWell())
        m_tally.fault(QStringLiteral("it has quit"));
    else
        m_tally.fault(QStringLiteral("it has crashed: ") + m_tembra.howItEnded());
    m_tembra.kill();
    start();
}

void Life::readLog() {
    // What Qt says when it is used wrongly; what the program cannot do is said in other words.
    static const QRegularExpression wrong(QStringLiteral(
        "ASSERT|Sanitizer|runtime error|terminate called|^Q[A-Z][A-Za-z]+(::|:)|QObject|QWidget::|QPainter|"
        "QThread|QSocketNotifier|QPixmap|QBackingStore|main thread"));
    QFile file(m_log);
    if (!file.open(QIODevice::ReadOnly))
        return m_tally.fault(QStringLiteral("there is no log"));
    QMap<QString, int> lines;
    static const QRegularExpression own(QStringLiteral("/[^\"]*|[0-9]+"));
    for (const QByteArray &line : file.readAll().split('\n'))
        ++lines[QString::fromUtf8(line).replace(own, QStringLiteral("…"))];
    lines.remove(QString());
    for (auto line = lines.begin(); line != lines.end(); ++line) {
        std::printf("%8d× %s\n", line.value(), qUtf8Printable(line.key()));
        if (wrong.match(line.key()).hasMatch())
            m_tally.fault(QStringLiteral("its log: ") + line.key());
    }
}

} // namespace tembra
