#include "platform/linux/recognition/EngineLanguages.h"

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

} // namespace

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
