// Has a worker read again and again: RecognitionUser WORKER. To be killed meanwhile.

#include "platform/linux/recognition/TesseractOCRRecognizer.h"

#include <QCoreApplication>

using namespace tembra;

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const TesseractOCRRecognizer recognizer({QCoreApplication::arguments().last(), {QStringLiteral("eng")}});
    QImage blank(8, 8, QImage::Format_RGB32);
    blank.fill(Qt::white);
    while (recognizer.recognize(blank, {})) {
    }
    return 1;
}
