#include "screenshots/ScreenshotFeedback.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace tembra {

namespace {

constexpr std::array singlePhrases{
    QT_TRANSLATE_NOOP("ScreenshotFeedback", "Got it"),
    QT_TRANSLATE_NOOP("ScreenshotFeedback", "Caught it"),
    QT_TRANSLATE_NOOP("ScreenshotFeedback", "Got that"),
    QT_TRANSLATE_NOOP("ScreenshotFeedback", "I got you"),
    QT_TRANSLATE_NOOP("ScreenshotFeedback", "Saved it"),
    QT_TRANSLATE_NOOP("ScreenshotFeedback", "Right here"),
    QT_TRANSLATE_NOOP("ScreenshotFeedback", "Keeping this one"),
};
constexpr std::array seriesPhrases{
    QT_TRANSLATE_NOOP("ScreenshotFeedback", "Caught it"),
    QT_TRANSLATE_NOOP("ScreenshotFeedback", "Another one"),
    QT_TRANSLATE_NOOP("ScreenshotFeedback", "Got that too"),
    QT_TRANSLATE_NOOP("ScreenshotFeedback", "Still here"),
    QT_TRANSLATE_NOOP("ScreenshotFeedback", "I’ve got you"),
};

QStringList translated(const auto &phrases) {
    QStringList list;
    for (const char *phrase : phrases)
        list.append(QCoreApplication::translate("ScreenshotFeedback", phrase));
    return list;
}

} // namespace

ScreenshotFeedback::ScreenshotFeedback(std::function<void(QStringList &)> shuffle)
    : m_shuffle(std::move(shuffle)) {}

void ScreenshotFeedback::recordCaptures(std::vector<Instant> dates) {
    std::ranges::sort(dates);
    for (const Instant date : dates) {
        // A clock that was set back ends the series.
        m_inSeries = m_lastCapture && date >= *m_lastCapture && date - *m_lastCapture < seriesInterval;
        if (!m_inSeries)
            m_seriesIndex = 0;
        m_lastCapture = date;
    }
}

QString ScreenshotFeedback::nextPhrase() {
    m_lastShown = m_inSeries ? nextOfSeries() : nextSingle();
    return m_lastShown;
}

QString ScreenshotFeedback::nextSingle() {
    if (m_remaining.isEmpty()) {
        m_remaining = translated(singlePhrases);
        m_shuffle(m_remaining);
    }
    const auto differs =
        std::ranges::find_if(m_remaining, [this](const QString &phrase) { return phrase != m_lastShown; });
    // The last phrase of a deck may be the one that shows: the next deck has others.
    if (differs == m_remaining.end()) {
        m_remaining.clear();
        return nextSingle();
    }
    std::iter_swap(m_remaining.begin(), differs);
    return m_remaining.takeFirst();
}

QString ScreenshotFeedback::nextOfSeries() {
    static_assert(seriesPhrases.size() > 1);
    const QStringList phrases = translated(seriesPhrases);
    qsizetype index = m_seriesIndex++ % phrases.size();
    if (phrases[index] == m_lastShown)
        index = (index + 1) % phrases.size();
    return phrases[index];
}

} // namespace tembra
