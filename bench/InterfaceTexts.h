#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <vector>

namespace tembra::bench {

// A picture file of what stands on screens and the text that is on it.
struct InterfaceText {
    QString name;
    QString file;
    QString truth;
    // As Tesseract names them.
    QStringList languages{QStringLiteral("eng")};
    // It reads well in more than one order.
    bool hasColumns = false;
};

// Renders real widgets, light and dark, in the densities of displays, and writes the pictures into the
// folder. Needs an application with widgets.
[[nodiscard]] std::vector<InterfaceText> interfaceTexts(const QString &folder);

} // namespace tembra::bench
