#pragma once

#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

namespace tembra {

// The texts in the user's language: what reads best of Tembra's own catalogues, the platform's wording of
// them, and the toolkit's. Main thread; the texts are theirs for as long as it lives.
class Catalogues {
public:
    // Makes the program speak the first of the languages (BCP 47, best first) that there is a catalogue for.
    // English, in which the texts are written, ends the search.
    explicit Catalogues(const QStringList &languages);
    ~Catalogues();
    Catalogues(const Catalogues &) = delete;
    Catalogues &operator=(const Catalogues &) = delete;

    // As the catalogues are named: "en", "de", "ru".
    [[nodiscard]] static QString languageAmong(const QStringList &languages);

private:
    void install(const QString &catalogue, const QString &folder);

    std::vector<std::unique_ptr<QTranslator>> m_installed;
};

} // namespace tembra
