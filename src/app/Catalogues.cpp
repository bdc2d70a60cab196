#include "app/Catalogues.h"

#include "platform/Platform.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTranslator>

namespace tembra {

namespace {

const QString ownFolder = QStringLiteral(":/tembra");
const QString sourceLanguage = QStringLiteral("en");

QString catalogueOf(const QString &language) {
    return QStringLiteral("tembra_") + language;
}

bool isThere(const QString &language) {
    return QFileInfo::exists(ownFolder + u'/' + catalogueOf(language) + QStringLiteral(".qm"));
}

} // namespace

Catalogues::Catalogues(const QStringList &languages) {
    const QString language = languageAmong(languages);
    // What is installed last is asked first; a text that nobody rewords stays as it stands in the code.
    install(platformWordingCatalogue(sourceLanguage), ownFolder);
    if (language == sourceLanguage)
        return;
    install(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(catalogueOf(language), ownFolder);
    install(platformWordingCatalogue(language), ownFolder);
}

Catalogues::~Catalogues() = default;

QString Catalogues::languageAmong(const QStringList &languages) {
    for (const QString &wanted : languages) {
        QString language = wanted.section(u'-', 0, 0).section(u'_', 0, 0).toLower();
        if (language == sourceLanguage || isThere(language))
            return language;
    }
    return sourceLanguage;
}

void Catalogues::install(const QString &catalogue, const QString &folder) {
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(catalogue, folder))
        return;
    QCoreApplication::installTranslator(translator.get());
    m_installed.push_back(std::move(translator));
}

} // namespace tembra
