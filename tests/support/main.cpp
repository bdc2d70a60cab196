#include <QApplication>

#include <gtest/gtest.h>

#ifdef __SANITIZE_THREAD__
#include <cstdarg>

// ThreadSanitizer takes every clone(2) for a fork. Qt starts programs by one that shares the memory with them
// until they begin: what is noted down for such a child would then hold for this process, whose thread is
// looked at no more. So it is kept from seeing it.
extern "C" {

int __clone(int (*function)(void *), void *stack, int flags, void *argument, ...);

int clone(int (*function)(void *), void *stack, int flags, void *argument, ...) {
    va_list more;
    va_start(more, argument);
    void *const parent = va_arg(more, void *);
    void *const storage = va_arg(more, void *);
    void *const child = va_arg(more, void *);
    va_end(more);
    return __clone(function, stack, flags, argument, parent, storage, child);
}
}
#endif

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    qputenv("TZ", "UTC");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
