#include "CaptureFolder.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QImage>

namespace tembra::bench {

QByteArray capturePng() {
    QImage image(64, 40, QImage::Format_RGB32);
    image.fill(0x334466);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

bool fillWithCaptures(const QString &folder, int count) {
    const QDir directory(folder);
    if (!directory.mkpath(QStringLiteral(".")))
        return false;
    const QByteArray bytes = capturePng();
    QDateTime date = QDateTime::currentDateTime().addSecs(-3600);
    for (int i = 0; i < count; ++i) {
        date = date.addSecs(-60);
        QFile file(
            directory.filePath(date.toString(QStringLiteral("'Screenshot from' yyyy-MM-dd hh-mm-ss'.png'"))));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return false;
        // Birth cannot be set; the modification date, being earlier, stands for the creation date.
        file.flush();
        file.setFileTime(date, QFileDevice::FileModificationTime);
    }
    return true;
}

} // namespace tembra::bench
