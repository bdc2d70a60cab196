// make_captures FOLDER COUNT: fills a folder with small, whole captures.

#include "CaptureFolder.h"

#include <cstdio>

int main(int argc, char **argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: make_captures FOLDER COUNT\n");
        return 2;
    }
    return tembra::bench::fillWithCaptures(QString::fromLocal8Bit(argv[1]), QByteArray(argv[2]).toInt()) ? 0
                                                                                                         : 1;
}
