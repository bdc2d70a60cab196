#include "Edits.h"

#include <QThread>

namespace tembra {

Edits::Edits(const TembraProcess &tembra, Dice &dice, Tally &tally)
    : m_hands(tembra), m_dice(dice), m_tally(tally) {}

bool Edits::draw(const QString &path) {
    if (path.isEmpty() || !m_hands.open(path)) {
        m_tally.count("edits that did not begin");
        return false;
    }
    m_hands.press({QStringLiteral("r")});
    const int x = m_dice.below(20);
    m_hands.drag({QPointF(x, 5), QPointF(x + 15, 20), QPointF(x + 25, 30)});
    const bool isDrawn = m_hands.waitFor([](const QJsonObject &editor) { return editor[u"dirty"].toBool(); });
    if (!isDrawn)
        m_tally.count("edits that were not drawn");
    return isDrawn;
}

bool Edits::edit(const QString &path) {
    const bool isSaved = draw(path) && m_hands.save();
    if (isSaved)
        m_tally.count("edits saved");
    close();
    return isSaved;
}

void Edits::editAndDie(const QString &path, Life &life) {
    if (draw(path)) {
        m_hands.press({QStringLiteral("ctrl+s")});
        QThread::msleep(static_cast<unsigned long>(m_dice.below(60)));
        m_tally.count("killed while saving");
    }
    life.kill();
}

void Edits::editWhatIsReplaced(const QString &path, Captures &captures) {
    if (draw(path)) {
        captures.replace(path);
        m_hands.press({QStringLiteral("ctrl+s")});
        m_tally.count("edits of a file that was replaced");
    }
    close();
}

// A question about what is unsaved stays, and the editor with it, until the program ends.
void Edits::close() {
    m_hands.press({QStringLiteral("ctrl+w")});
}

} // namespace tembra
