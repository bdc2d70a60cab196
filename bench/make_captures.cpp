// make_captures FOLDER COUNT: fills a folder with small, whole captures whose names run back from now, a
// minute apart.

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QImage>

#include <cstdio>

namespace {

QByteArray capture() {
    QImage image(64, 40, QImage::Format_RGB32);
    image.fill(0x334466);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: make_captures FOLDER COUNT\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const int count = QByteArray(argv[2]).toInt();
    if (!folder.mkpath(QStringLiteral(".")))
        return 1;
    const QByteArray bytes = capture();
    QDateTime date = QDateTime::currentDateTime();
    for (int i = 0; i < count; ++i) {
        date = date.addSecs(-60);
        QFile file(
            folder.filePath(date.toString(QStringLiteral("'Screenshot from' yyyy-MM-dd hh-mm-ss'.png'"))));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return 1;
        // The creation date of a file cannot be set; its modification date, when earlier, stands for it.
        file.setFileTime(date, QFileDevice::FileModificationTime);
    }
    return 0;
}
