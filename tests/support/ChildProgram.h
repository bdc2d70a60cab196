#pragma once

#include <QByteArray>

#include <initializer_list>
#include <sys/types.h>

namespace tembra {

// A program that runs for as long as this lives, and not longer than the test. Needs no application object.
class ChildProgram {
public:
    ChildProgram(std::initializer_list<const char *> commandLine);
    ~ChildProgram();
    ChildProgram(const ChildProgram &) = delete;
    ChildProgram &operator=(const ChildProgram &) = delete;

    // Waits for the first line of its output; empty when it ended without one.
    [[nodiscard]] QByteArray readLine();

private:
    pid_t m_process = -1;
    int m_output = -1;
};

} // namespace tembra
