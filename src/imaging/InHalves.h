#pragma once

#include "base/HappensBefore.h"

#include <QSemaphore>
#include <QThreadPool>

namespace tembra {

// Calls work(0) and work(1), the latter on another thread when one is free, and returns when both are done.
template <class Work>
void inHalves(const Work &work) {
    QThreadPool *const pool = QThreadPool::globalInstance();
    QSemaphore done;
    handedOver(pool);
    const bool isShared = pool->tryStart([&] {
        received(QThreadPool::globalInstance());
        work(1);
        handedOver(&done);
        done.release();
    });
    work(0);
    if (!isShared) {
        work(1);
        return;
    }
    done.acquire();
    received(&done);
}

} // namespace tembra
