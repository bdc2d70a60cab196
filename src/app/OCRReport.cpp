#include "app/OCRReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tembra {

namespace {

QJsonArray wordList(const OCRText &text) {
    QJsonArray list;
    for (const TextRecognizer::Line &line : text.lines) {
        for (const auto &[word, exactBox] : line.words) {
            const QRect box = exactBox.toAlignedRect();
            list.append(QJsonObject{{QStringLiteral("text"), word},
                                    {QStringLiteral("x"), box.x()},
                                    {QStringLiteral("y"), box.y()},
                                    {QStringLiteral("width"), box.width()},
                                    {QStringLiteral("height"), box.height()}});
        }
    }
    return list;
}

} // namespace

QByteArray OCRReport::json() const {
    QJsonObject report{{QStringLiteral("text"), text.string(layout)}};
    if (words)
        report.insert(QStringLiteral("words"), wordList(text));
    return QJsonDocument(report).toJson();
}

QString OCRReport::plainText() const {
    if (!words)
        return text.string(layout);
    QStringList rows;
    for (const TextRecognizer::Line &line : text.lines) {
        for (const auto &[word, exactBox] : line.words) {
            const QRect box = exactBox.toAlignedRect();
            rows += QStringLiteral("%1\t%2\t%3\t%4\t")
                        .arg(box.x())
                        .arg(box.y())
                        .arg(box.width())
                        .arg(box.height()) +
                    word;
        }
    }
    return rows.join(u'\n');
}

} // namespace tembra
