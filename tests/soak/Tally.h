#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <cstdio>

namespace tembra {

// What happened how often, and what was found to be wrong. Printed at the end.
class Tally {
public:
    void count(const char *event, int times = 1) { m_events[QString::fromLatin1(event)] += times; }
    // A verdict; the run has failed.
    void fault(const QString &sentence) {
        m_faults += sentence;
        std::printf("FAULT: %s\n", qUtf8Printable(sentence));
        std::fflush(stdout);
    }
    [[nodiscard]] bool isClean() const { return m_faults.isEmpty(); }
    [[nodiscard]] int times(const char *event) const { return m_events.value(QString::fromLatin1(event)); }

    void print() const {
        for (auto event = m_events.begin(); event != m_events.end(); ++event)
            std::printf("%8d  %s\n", event.value(), qUtf8Printable(event.key()));
        std::printf("%8d  faults\n", static_cast<int>(m_faults.size()));
    }

private:
    QMap<QString, int> m_events;
    QStringList m_faults;
};

} // namespace tembra
