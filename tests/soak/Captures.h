#pragma once

#include "Dice.h"
#include "Ledger.h"
#include "Tally.h"

#include <QFile>
#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace tembra {

class TembraProcess;

// What happens to captures in the folder that the program watches: they arrive in the ways of several tools,
// and are renamed, moved, replaced and deleted. One small thing a step.
class Captures {
public:
    Captures(const TembraProcess &tembra, Dice &dice, Tally &tally, Ledger &ledger);

    [[nodiscard]] QString folder() const { return m_folder; }
    // Beside the folder, on the same volume, where nobody watches.
    [[nodiscard]] QString elsewhere() const { return m_elsewhere; }

    // While the folder is there.
    void step();
    // Those that were arriving are whole.
    void finishArrivals();
    void arrive();
    // A whole one; empty when there is none.
    [[nodiscard]] QString any();
    // Files of this folder that are whole captures, as names.
    [[nodiscard]] QStringList names() const;
    void replace(const QString &path);

private:
    // Being written by a tool that takes its time.
    struct Arrival {
        std::unique_ptr<QFile> file;
        QByteArray bytes;
        qsizetype written = 0;
        // Under another name until it is whole; else empty.
        QString finalPath;
    };
    [[nodiscard]] QString newName(const char *extension);
    [[nodiscard]] QByteArray picture(const char *format);
    void arriveSlowly();
    void continueArrival();
    // Whether that was all of it.
    [[nodiscard]] bool write(Arrival &arrival, qsizetype most);
    void arriveTorn();
    void shootScreen();
    void rename();
    void moveOut();
    void moveIn();
    void remove();
    void overwrite();
    void move(const QString &from, const QString &to, const char *event);

    const TembraProcess &m_tembra;
    Dice &m_dice;
    Tally &m_tally;
    Ledger &m_ledger;
    const QString m_folder;
    const QString m_elsewhere;
    int m_number = 0;
    std::vector<Arrival> m_arrivals;
    // Names of those that will never be whole.
    QSet<QString> m_torn;
};

} // namespace tembra
