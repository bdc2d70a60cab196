#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <chrono>
#include <functional>

namespace tembra {

// The built program with a home of its own, driven as a user or a script would: by its command line, a real
// pointer and real tools. It ends with this object. TEMBRA_TEST_WRAPPER is a command that runs it, such as
// valgrind, and TEMBRA_TEST_PATIENCE how many times longer it is then waited for.
class TembraProcess {
public:
    struct Answer {
        int exitStatus = -1;
        QString output;
        QString error;
    };

    TembraProcess();
    ~TembraProcess();
    TembraProcess(const TembraProcess &) = delete;
    TembraProcess &operator=(const TembraProcess &) = delete;

    [[nodiscard]] QString home() const { return m_home.path(); }
    // Where the screenshot tool of this desktop saves.
    [[nodiscard]] QString screenshots() const;
    [[nodiscard]] QString settingsFile() const;
    // The program is to start with these settings, and unless they say otherwise as one that is new but past
    // its onboarding. Before the start; made so by the constructor.
    void setSettings(const QJsonObject &settings) const;
    // As on the first start of all.
    void forgetSettings() const;
    // Instead of X11, which the tests have it run on.
    void choosePlatformItself() { m_environment.remove(QStringLiteral("QT_QPA_PLATFORM")); }
    // In the environment of the program and of nothing else.
    void setVariable(const QString &name, const QString &value) { m_variables.insert(name, value); }
    // The log goes to the end of a file. For long runs: nobody reads the pipe meanwhile.
    void logTo(const QString &file);
    // How long it may take to do what is waited for, instead of ten seconds; as many times longer as
    // TEMBRA_TEST_PATIENCE says, for machines and wrappers that slow things.
    void setPatience(std::chrono::milliseconds patience);
    // With the same home, for other programs.
    [[nodiscard]] const QProcessEnvironment &environment() const { return m_environment; }

    // Starts the program and waits until it answers.
    void start();
    // The program sees a date that many days from now; everything else does not.
    void startInDays(int days);
    // Starts it once more, as a user does who forgot that it runs, and gives what that start said.
    Answer startAgain() const;
    Answer command(const QStringList &words) const;
    // Runs another program with the same home, in the screenshots folder.
    Answer tool(const QString &program, const QStringList &arguments) const;
    [[nodiscard]] QJsonObject status() const;
    // Waits until the status is as wished, at most for the patience.
    [[nodiscard]] bool waitFor(const std::function<bool(const QJsonObject &)> &wish) const;
    [[nodiscard]] bool waitForEnd();
    // Found out now, also where no events are processed.
    [[nodiscard]] bool hasEnded() { return !isRunning() || m_process.waitForFinished(0); }
    // And neither crashed nor failed.
    [[nodiscard]] bool endedWell() const {
        return m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }
    [[nodiscard]] bool isRunning() const { return m_process.state() == QProcess::Running; }
    [[nodiscard]] QString howItEnded() const {
        return (m_process.exitStatus() == QProcess::NormalExit ? QStringLiteral("status %1")
                                                               : QStringLiteral("signal %1"))
            .arg(m_process.exitCode());
    }
    // At once, as by a fault.
    void kill();
    [[nodiscard]] qint64 processId() const { return m_process.processId(); }
    // What the program wrote to its log so far.
    QString log();

private:
    void start(const QStringList &commandLine);
    Answer run(const QStringList &commandLine) const;

    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    QProcessEnvironment m_variables;
    std::chrono::milliseconds m_patience{};
    QProcess m_process;
    QString m_log;
    // Empty for the pipe.
    QString m_logFile;
};

} // namespace tembra
