#include "CatalogueFile.h"

#include <QFile>
#include <QXmlStreamReader>

namespace tembra {

namespace {

using namespace Qt::StringLiterals;

QStringList readTranslations(QXmlStreamReader &xml) {
    QStringList texts;
    QString text;
    while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::EndElement) {
        if (xml.isCharacters())
            text += xml.text();
        else if (xml.isStartElement())
            texts += xml.readElementText();
    }
    return texts.isEmpty() ? QStringList{text} : texts;
}

std::pair<QString, CatalogueFile::Message> readMessage(QXmlStreamReader &xml) {
    std::pair<QString, CatalogueFile::Message> read;
    auto &[source, message] = read;
    message.hasPlurals = xml.attributes().value(u"numerus"_s) == u"yes"_s;
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source"_s) {
            source = xml.readElementText();
        } else if (xml.name() == u"translation"_s) {
            message.isFinished = !xml.attributes().hasAttribute(u"type"_s);
            message.translations = readTranslations(xml);
        } else {
            xml.skipCurrentElement();
        }
    }
    return read;
}

} // namespace

CatalogueFile CatalogueFile::read(const QString &path) {
    CatalogueFile catalogue;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return catalogue;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == u"name"_s) {
            context = xml.readElementText();
        } else if (xml.name() == u"message"_s) {
            const auto [source, message] = readMessage(xml);
            catalogue.messages.insert({context, source}, message);
        }
    }
    return catalogue;
}

} // namespace tembra
