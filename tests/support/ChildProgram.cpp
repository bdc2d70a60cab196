#include "support/ChildProgram.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tembra {

ChildProgram::ChildProgram(std::initializer_list<const char *> commandLine) {
    std::vector<char *> arguments;
    for (const char *const argument : commandLine)
        arguments.push_back(const_cast<char *>(argument));
    arguments.push_back(nullptr);
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0)
        return;
    m_output = pipe[0];
    m_process = ::fork();
    if (m_process == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        ::dup2(pipe[1], STDOUT_FILENO);
        ::execvp(arguments.front(), arguments.data());
        ::_exit(127);
    }
    ::close(pipe[1]);
}

ChildProgram::~ChildProgram() {
    if (m_process > 0) {
        ::kill(m_process, SIGTERM);
        ::waitpid(m_process, nullptr, 0);
    }
    if (m_output >= 0)
        ::close(m_output);
}

QByteArray ChildProgram::readLine() {
    QByteArray line;
    char character = 0;
    while (::read(m_output, &character, 1) == 1 && character != '\n')
        line.append(character);
    return line;
}

} // namespace tembra
