#include "base/MainThread.h"

#include <QCoreApplication>
#include <QThread>

namespace tembra {

void requireMainThread(const std::source_location &where) {
    static QThread *const first = QThread::currentThread();
    const QThread *main = QCoreApplication::instance() ? QCoreApplication::instance()->thread() : first;
    if (QThread::currentThread() != main)
        qFatal("%s called off the main thread", where.function_name());
}

} // namespace tembra
