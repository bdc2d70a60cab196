#pragma once

#include <leptonica/allheaders.h>
#include <memory>

namespace tembra::recognition {

struct PixDestroyer {
    void operator()(Pix *pix) const { pixDestroy(&pix); }
};

// A picture of Leptonica's.
using PixOwner = std::unique_ptr<Pix, PixDestroyer>;

} // namespace tembra::recognition
