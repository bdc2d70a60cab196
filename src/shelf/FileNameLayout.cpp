#include "shelf/FileNameLayout.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace tembra {

namespace {

// A longer "extension" is a name with a dot in it.
constexpr qsizetype longestExtension = 8;

bool fits(const QString &text, const QFontMetricsF &metrics) {
    return metrics.horizontalAdvance(text.trimmed()) <= FileNameLayout::width;
}

// The largest boundary of the kind up to which the text fits; 0 when not even the first piece does.
qsizetype lastFitting(const QString &text, const QFontMetricsF &metrics,
                      QTextBoundaryFinder::BoundaryType kind) {
    QTextBoundaryFinder boundaries(kind, text);
    qsizetype last = 0;
    for (qsizetype next = boundaries.toNextBoundary(); next > 0; next = boundaries.toNextBoundary()) {
        if (!fits(text.left(next), metrics))
            break;
        last = next;
    }
    return last;
}

QString extension(const QString &name) {
    const qsizetype dot = name.lastIndexOf(u'.');
    const bool isExtension =
        dot > 0 && name.size() - dot <= longestExtension && !name.mid(dot).contains(u' ');
    return isExtension ? name.mid(dot) : QString();
}

QString shortened(const QString &text, const QFontMetricsF &metrics) {
    if (fits(text, metrics))
        return text;
    const QString middle = metrics.elidedText(text, Qt::ElideMiddle, FileNameLayout::width);
    const QString suffix = extension(text);
    const double suffixWidth = metrics.horizontalAdvance(suffix);
    if (middle.endsWith(suffix) || suffixWidth > FileNameLayout::width / 2)
        return middle;
    return metrics.elidedText(text.chopped(suffix.size()), Qt::ElideRight,
                              FileNameLayout::width - suffixWidth) +
           suffix;
}

// Line ends and tabs are allowed in names and would break the line.
QString printable(QString name) {
    std::ranges::replace_if(
        name, [](QChar c) { return c.category() == QChar::Other_Control; }, QChar(u' '));
    return name.trimmed();
}

} // namespace

QStringList FileNameLayout::lines(const QString &name, const QFontMetricsF &metrics) {
    QStringList result;
    QString rest = printable(name);
    while (result.size() < mostLines - 1 && !rest.isEmpty() && !fits(rest, metrics)) {
        qsizetype end = lastFitting(rest, metrics, QTextBoundaryFinder::Line);
        if (end == 0)
            end = std::max(lastFitting(rest, metrics, QTextBoundaryFinder::Grapheme), qsizetype{1});
        result += rest.left(end).trimmed();
        rest = rest.mid(end).trimmed();
    }
    if (!rest.isEmpty())
        result += shortened(rest, metrics);
    return result;
}

} // namespace tembra
