#include "support/FaultWalk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

namespace tembra {

namespace {

// Under AddressSanitizer its library must come before all others, so before the hook.
QString preloaded() {
    QStringList libraries{QStringLiteral(TEMBRA_FAULT_HOOK)};
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (!maps.open(QIODevice::ReadOnly))
        return libraries.first();
    for (const QByteArray &line : maps.readAll().split('\n')) {
        const qsizetype path = line.indexOf('/');
        if (path >= 0 && line.mid(line.lastIndexOf('/')).startsWith("/libasan.so")) {
            libraries.prepend(QFile::decodeName(line.mid(path)));
            break;
        }
    }
    return libraries.join(u' ');
}

QProcessEnvironment environment() {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), preloaded());
    const QString options = QStringLiteral("ASAN_OPTIONS");
    // Takes longer than the run itself.
    environment.insert(options, environment.value(options) + QStringLiteral(":detect_leaks=0"));
    return environment;
}

// In memory where that can be had: a walk waits for the disk hundreds of times.
QString quickFolder() {
    const QString memory = QStringLiteral("/dev/shm");
    return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
}

} // namespace

QByteArray FaultWalk::Run::description() const {
    return kind + " at " + (wentWrong() ? calls.at(step - 1) : QByteArray("no call"));
}

FaultWalk::Run FaultWalk::run(const QByteArray &kind, int step, const QString &folder) const {
    const QTemporaryDir logFolder;
    QFile log(logFolder.filePath(QStringLiteral("calls")));
    QProcess process;
    auto variables = environment();
    variables.insert(QStringLiteral("TEMBRA_FAULT_FOLDER"), folder);
    variables.insert(QStringLiteral("TEMBRA_FAULT_AT"), QString::number(step));
    variables.insert(QStringLiteral("TEMBRA_FAULT_KIND"), QString::fromLatin1(kind));
    variables.insert(QStringLiteral("TEMBRA_FAULT_LOG"), log.fileName());
    process.setProcessEnvironment(variables);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(program, prepare(folder));
    if (!process.waitForFinished(60'000))
        qFatal("%s does not end: %s", qPrintable(program), qPrintable(process.errorString()));
    Run run{.folder = folder, .kind = kind, .step = step};
    if (log.open(QIODevice::ReadOnly))
        run.calls = log.readAll().trimmed().split('\n');
    run.wasKilled = process.exitStatus() == QProcess::CrashExit;
    run.exitCode = process.exitCode();
    return run;
}

int FaultWalk::walk(const QByteArrayList &kinds) const {
    int calls = 0;
    for (const QByteArray &kind : kinds) {
        bool wentWrong = true;
        for (int step = 1; wentWrong; ++step) {
            const QTemporaryDir folder(quickFolder() + QStringLiteral("/fault-walk-XXXXXX"));
            const Run run = this->run(kind, step, QDir(folder.path()).canonicalPath());
            check(run);
            wentWrong = run.wentWrong();
            calls = static_cast<int>(run.calls.size());
        }
    }
    return calls;
}

} // namespace tembra
