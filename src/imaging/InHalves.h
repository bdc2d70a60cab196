#pragma once

#include <QSemaphore>
#include <QThreadPool>

namespace tembra {

// Calls work(0) and work(1), the latter on another thread when one is free, and returns when both are done.
template <class Work>
void inHalves(const Work &work) {
    QSemaphore done;
    const bool isShared = QThreadPool::globalInstance()->tryStart([&] {
        work(1);
        done.release();
    });
    work(0);
    if (isShared)
        done.acquire();
    else
        work(1);
}

} // namespace tembra
