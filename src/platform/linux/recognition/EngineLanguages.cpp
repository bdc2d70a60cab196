#include "platform/linux/recognition/EngineLanguages.h"

#include <algorithm>

namespace tembra {

namespace {

// ISO 639-3 but for a few.
QString engineLanguage(const QLocale &locale) {
    switch (locale.language()) {
    case QLocale::Chinese:
        return locale.script() == QLocale::TraditionalHanScript ? QStringLiteral("chi_tra")
                                                                : QStringLiteral("chi_sim");
    case QLocale::NorwegianBokmal:
    case QLocale::NorwegianNynorsk:
        return QStringLiteral("nor");
    case QLocale::Serbian:
        return locale.script() == QLocale::LatinScript ? QStringLiteral("srp_latn") : QStringLiteral("srp");
    case QLocale::C:
    case QLocale::AnyLanguage:
        return {};
    default:
        return QLocale::languageToCode(locale.language(), QLocale::ISO639Part3);
    }
}

QLocale localeOf(const QString &language) {
    const QLocale::Language known = QLocale::codeToLanguage(language.section(u'_', 0, 0));
    // As its engine's name tells the Latin script.
    if (language.endsWith(QStringLiteral("_latn")))
        return {known, QLocale::LatinScript, QLocale::AnyTerritory};
    return known == QLocale::AnyLanguage ? QLocale::c() : QLocale(known);
}

bool isLatin(const QString &language) {
    return localeOf(language).script() == QLocale::LatinScript;
}

} // namespace

QStringList inReadingOrder(QStringList languages) {
    std::stable_partition(languages.begin(), languages.end(), isLatin);
    return languages;
}

QString languageName(const QString &language) {
    if (language == u"chi_sim")
        return QStringLiteral("简体中文");
    if (language == u"chi_tra")
        return QStringLiteral("繁體中文");
    const QLocale locale = localeOf(language);
    if (locale.language() == QLocale::C)
        return language;
    // Some territories have a name of their own for it, which is longer.
    QString name = locale.nativeLanguageName();
    for (const QLocale &variant :
         QLocale::matchingLocales(locale.language(), locale.script(), QLocale::AnyTerritory)) {
        const QString other = variant.nativeLanguageName();
        if (!other.isEmpty() && (name.isEmpty() || other.size() < name.size()))
            name = other;
    }
    return name.isEmpty() ? language : locale.toUpper(name.left(1)) + name.mid(1);
}

QStringList engineLanguages(const QStringList &localeNames) {
    // Each one makes reading slower.
    constexpr qsizetype most = 3;
    const QString english = QStringLiteral("eng");
    QStringList latin;
    QStringList others;
    for (const QString &name : localeNames) {
        const QLocale locale(name);
        const QString language = engineLanguage(locale);
        if (language.isEmpty() || latin.contains(language) || others.contains(language) ||
            latin.size() + others.size() >= most)
            continue;
        (locale.script() == QLocale::LatinScript ? latin : others) += language;
    }
    if (!latin.contains(english))
        latin += english;
    return latin + others;
}

} // namespace tembra
