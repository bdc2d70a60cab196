#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

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
    // Waits until the status is as wished, at most ten seconds.
    [[nodiscard]] bool waitFor(const std::function<bool(const QJsonObject &)> &wish) const;
    [[nodiscard]] bool waitForEnd();
    [[nodiscard]] bool isRunning() const { return m_process.state() == QProcess::Running; }
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
    QProcess m_process;
    QString m_log;
};

} // namespace tembra
