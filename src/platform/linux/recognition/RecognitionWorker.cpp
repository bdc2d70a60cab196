#include "platform/linux/recognition/RecognitionWorker.h"

#include "platform/linux/PosixError.h"
#include "platform/linux/recognition/WorkerProtocol.h"

#include <QElapsedTimer>
#include <QFile>

#include <array>
#include <csignal>
#include <future>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
// glibc 2.36 forgets that C++ may include it.
extern "C" {
#include <sys/pidfd.h>
}

namespace tembra {

namespace {

using namespace std::chrono_literals;
using Fault = RecognitionWorker::Fault;

// How long a cancelled worker may go on.
constexpr std::chrono::milliseconds cancellationInterval = 10ms;
// More than all the words of a picture take.
constexpr qsizetype longestAnswer = qsizetype{16} << 20;

// With one thread an engine: the threads of its library spin, and it listens only here.
std::vector<QByteArray> workerEnvironment() {
    std::vector<QByteArray> environment;
    for (char **each = environ; each && *each; ++each) {
        if (const QByteArrayView variable(*each); !variable.startsWith("OMP_THREAD_LIMIT="))
            environment.push_back(variable.toByteArray());
    }
    environment.emplace_back("OMP_THREAD_LIMIT=1");
    return environment;
}

std::vector<char *> pointersTo(std::vector<QByteArray> &texts) {
    std::vector<char *> pointers;
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

// The socket is its input; it inherits nothing else.
Result<pid_t> spawned(const RecognitionWorker::Program &program, int socket) {
    std::vector<QByteArray> arguments{QFile::encodeName(program.file),
                                      program.languages.join(u'+').toLatin1(),
                                      QByteArray::number(qlonglong{program.idleTime.count()})};
    std::vector<QByteArray> environment = workerEnvironment();
    posix_spawn_file_actions_t files{};
    ::posix_spawn_file_actions_init(&files);
    ::posix_spawn_file_actions_adddup2(&files, socket, STDIN_FILENO);
    ::posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
    posix_spawnattr_t attributes{};
    ::posix_spawnattr_init(&attributes);
    sigset_t signals{};
    sigemptyset(&signals);
    ::posix_spawnattr_setsigmask(&attributes, &signals);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    pid_t id = -1;
    const int code = ::posix_spawn(&id, arguments.front().constData(), &files, &attributes,
                                   pointersTo(arguments).data(), pointersTo(environment).data());
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&files);
    if (code != 0)
        return failure(posixError(code));
    return id;
}

// Starts the process, says so, and waits for its end.
void keep(const RecognitionWorker::Program &program, Descriptor socket,
          std::promise<Result<Descriptor>> started) {
    const Result<pid_t> id = spawned(program, socket.number());
    // From now on it ends where the process does.
    socket = Descriptor();
    if (!id) {
        started.set_value(failure(id.error()));
        return;
    }
    Descriptor process(::pidfd_open(*id, 0));
    if (process.isOpen()) {
        started.set_value(std::move(process));
    } else {
        started.set_value(failure(posixError()));
        ::kill(*id, SIGKILL);
    }
    while (::waitpid(*id, nullptr, 0) < 0 && errno == EINTR) {
    }
}

bool send(int socket, int file) {
    char byte = 'p';
    iovec content{&byte, 1};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof file)> control{};
    msghdr message{};
    message.msg_iov = &content;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    cmsghdr *const header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof file);
    std::memcpy(CMSG_DATA(header), &file, sizeof file);
    return ::sendmsg(socket, &message, MSG_NOSIGNAL) == 1;
}

// False at its end.
bool receive(int socket, QByteArray &answer) {
    std::array<char, 65'536> part{};
    const ssize_t size = ::recv(socket, part.data(), part.size(), MSG_DONTWAIT);
    if (size > 0)
        answer.append(part.data(), size);
    return size > 0 || (size < 0 && (errno == EAGAIN || errno == EINTR));
}

} // namespace

Result<std::unique_ptr<RecognitionWorker>> RecognitionWorker::start(const Program &program) {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return failure(posixError());
    std::unique_ptr<RecognitionWorker> worker(new RecognitionWorker);
    worker->m_socket = Descriptor(ends[0]);
    std::promise<Result<Descriptor>> started;
    auto process = started.get_future();
    worker->m_keeper = std::jthread(keep, program, Descriptor(ends[1]), std::move(started));
    Result<Descriptor> result = process.get();
    if (!result)
        return failure(result.error());
    worker->m_process = std::move(*result);
    return worker;
}

RecognitionWorker::~RecognitionWorker() {
    if (m_process.isOpen())
        ::pidfd_send_signal(m_process.number(), SIGKILL, nullptr, 0);
}

RecognitionWorker::Outcome<QByteArray> RecognitionWorker::read(const Descriptor &picture,
                                                               std::chrono::milliseconds limit,
                                                               const Cancellation &cancellation) const {
    const QByteArrayView taken(recognition::takenMark);
    const QByteArray end = QByteArray("\n") + recognition::endMark;
    if (!send(m_socket.number(), picture.number()))
        return tl::unexpected(Fault::gone);
    QElapsedTimer time;
    time.start();
    QByteArray answer;
    pollfd waiting{m_socket.number(), POLLIN, 0};
    while (!answer.endsWith(end)) {
        ::poll(&waiting, 1, static_cast<int>(cancellationInterval.count()));
        if (cancellation.isCancelled())
            return tl::unexpected(Fault::cancelled);
        if (!receive(m_socket.number(), answer)) {
            if (answer.endsWith(recognition::noLanguageMark))
                return tl::unexpected(Fault::noLanguage);
            return tl::unexpected(answer.isEmpty() ? Fault::gone : Fault::broken);
        }
        if (time.hasExpired(limit.count()))
            return tl::unexpected(Fault::late);
        if (answer.size() > longestAnswer)
            return tl::unexpected(Fault::broken);
    }
    if (!answer.startsWith(taken))
        return tl::unexpected(Fault::broken);
    return answer.sliced(taken.size());
}

} // namespace tembra
