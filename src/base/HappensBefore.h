#pragma once

#ifdef __SANITIZE_THREAD__
#include <sanitizer/tsan_interface.h>
#endif

namespace tembra {

// Tells ThreadSanitizer what it cannot see, because Qt is built without it: what a thread did before it
// called handedOver(way) happened before whatever another does after received(way). Only beside a call of
// Qt's that keeps this order; without that sanitizer they do nothing.
#ifdef __SANITIZE_THREAD__
inline void handedOver(void *way) {
    __tsan_release(way);
}
inline void received(void *way) {
    __tsan_acquire(way);
}
#else
inline void handedOver(void * /*way*/) {}
inline void received(void * /*way*/) {}
#endif

} // namespace tembra
