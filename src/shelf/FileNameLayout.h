#pragma once

#include <QFontMetricsF>
#include <QString>
#include <QStringList>

namespace tembra {

// How a file's name is set under its picture: broken between words where it can be, and shortened at the
// beginning of the last line, so that the end, which tells captures apart, and the extension stay readable.
struct FileNameLayout {
    static constexpr double width = 96;
    static constexpr int mostLines = 2;

    [[nodiscard]] static QStringList lines(const QString &name, const QFontMetricsF &metrics);
};

} // namespace tembra
