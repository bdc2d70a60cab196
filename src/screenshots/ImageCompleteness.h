#pragma once

#include "platform/OpenFile.h"

#include <QStringView>

namespace tembra {

// Whether an image file is whole. Any thread.
struct ImageCompleteness {
    // A file that has been still for a while is judged by its beginning and end, in a few reads however large
    // it is, and decoded only when these do not look whole. One that was just written must look whole and
    // decode.
    [[nodiscard]] static bool isCompleteImage(const OpenFile &file, QStringView extension,
                                              bool wasJustWritten);
};

} // namespace tembra
