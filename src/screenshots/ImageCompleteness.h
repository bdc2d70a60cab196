#pragma once

#include "platform/OpenFile.h"

#include <QStringView>

namespace tembra {

// Whether an image file is whole. Any thread.
struct ImageCompleteness {
    // A file that has been still for a while is judged by its structure, in a few reads however large it is.
    // One that was just written must decode besides.
    [[nodiscard]] static bool isCompleteImage(const OpenFile &file, QStringView extension,
                                              bool wasJustWritten);
};

} // namespace tembra
