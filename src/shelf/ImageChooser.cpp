#include "shelf/ImageChooser.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QImageReader>

namespace tembra {

namespace {

// What Qt reads, and what the platform's decoder adds to it.
QString imagePatterns() {
    QStringList patterns{QStringLiteral("*.heic"), QStringLiteral("*.heif")};
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray &format : formats)
        patterns += QStringLiteral("*.") + QString::fromLatin1(format);
    patterns.removeAll(QStringLiteral("*.pdf"));
    // Some desktops' dialogs tell capital letters apart.
    const QString names = patterns.join(u' ');
    return names + u' ' + names.toUpper();
}

} // namespace

std::optional<QString> askForImage(const QString &folder) {
    const QString chosen = QFileDialog::getOpenFileName(
        nullptr, QCoreApplication::translate("ImageChooser", "Choose an Image"), folder,
        QCoreApplication::translate("ImageChooser", "Images") +
            QStringLiteral(" (%1);;").arg(imagePatterns()) +
            QCoreApplication::translate("ImageChooser", "All Files") + QStringLiteral(" (*)"));
    return chosen.isEmpty() ? std::nullopt : std::optional(chosen);
}

} // namespace tembra
