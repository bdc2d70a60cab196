#include "TembraProcess.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QThread>

#include <algorithm>

namespace tembra {

namespace {

const QString program = QStringLiteral(TEMBRA_PROGRAM);

// The command line that runs the program: itself, unless TEMBRA_TEST_WRAPPER names one that is to run it.
QStringList wrapped(const QStringList &arguments) {
    return QProcess::splitCommand(qEnvironmentVariable("TEMBRA_TEST_WRAPPER")) + QStringList{program} +
           arguments;
}

} // namespace

TembraProcess::TembraProcess() : m_environment(QProcessEnvironment::systemEnvironment()) {
    m_environment.insert(QStringLiteral("HOME"), home());
    m_environment.insert(QStringLiteral("TEMBRA_HOME"), home() + QStringLiteral("/tembra"));
    // Whatever screenshot tools are installed on the machine: this desktop is a bare window manager's.
    m_environment.insert(QStringLiteral("TEMBRA_SCREENSHOT_TOOL"), QStringLiteral("generic"));
    m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home() + QStringLiteral("/.config"));
    m_environment.insert(QStringLiteral("XDG_DATA_HOME"), home() + QStringLiteral("/.local/share"));
    m_environment.insert(QStringLiteral("XDG_CACHE_HOME"), home() + QStringLiteral("/.cache"));
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    m_environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
    m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    m_environment.remove(QStringLiteral("LANGUAGE"));
    m_environment.remove(QStringLiteral("XDG_CURRENT_DESKTOP"));
    QDir().mkpath(screenshots());
    setSettings({});
    setPatience(std::chrono::seconds(10));
    m_process.setProcessChannelMode(QProcess::MergedChannels);
}

TembraProcess::~TembraProcess() {
    if (!isRunning())
        return;
    (void)command({QStringLiteral("quit")});
    if (!m_process.waitForFinished(static_cast<int>(m_patience.count())))
        m_process.kill();
    m_process.waitForFinished();
}

QString TembraProcess::screenshots() const {
    return home() + QStringLiteral("/Pictures/Screenshots");
}

QString TembraProcess::settingsFile() const {
    return home() + QStringLiteral("/tembra/config/settings.json");
}

void TembraProcess::setSettings(const QJsonObject &settings) const {
    // Whoever is past the onboarding counts as coming from an earlier version, which had other defaults.
    QJsonObject values{{QStringLiteral("hasCompletedOnboarding"), true},
                       {QStringLiteral("hoverOnTabToOpen"), false},
                       {QStringLiteral("automaticallyCopyScreenshots"), true}};
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
        values.insert(setting.key(), setting.value());
    QDir().mkpath(QFileInfo(settingsFile()).path());
    QFile file(settingsFile());
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(values).toJson()) < 0)
        qFatal("cannot write %s", qPrintable(settingsFile()));
}

void TembraProcess::setPatience(std::chrono::milliseconds patience) {
    m_patience = patience * std::max(1, qEnvironmentVariableIntValue("TEMBRA_TEST_PATIENCE"));
}

void TembraProcess::forgetSettings() const {
    QFile::remove(settingsFile());
}

void TembraProcess::kill() {
    m_process.kill();
    m_process.waitForFinished();
}

void TembraProcess::start() {
    start(wrapped({}));
}

void TembraProcess::startInDays(int days) {
    // Only the date: delays stay as they are, and files as old as they are.
    m_environment.insert(QStringLiteral("DONT_FAKE_MONOTONIC"), QStringLiteral("1"));
    m_environment.insert(QStringLiteral("NO_FAKE_STAT"), QStringLiteral("1"));
    // The library that does it comes before the sanitizers', which they mind.
    const QString asanOptions = m_environment.value(QStringLiteral("ASAN_OPTIONS"));
    m_environment.insert(QStringLiteral("ASAN_OPTIONS"),
                         asanOptions + QStringLiteral(":verify_asan_link_order=0"));
    start(QStringList{QStringLiteral("faketime"), QStringLiteral("-f"), QStringLiteral("+%1d").arg(days)} +
          wrapped({}));
}

void TembraProcess::start(const QStringList &commandLine) {
    QProcessEnvironment environment = m_environment;
    environment.insert(m_variables);
    m_process.setProcessEnvironment(environment);
    m_process.start(commandLine.first(), commandLine.sliced(1));
    m_process.waitForStarted();
    if (!waitFor([](const QJsonObject &status) { return !status.isEmpty(); }))
        qFatal("Tembra does not answer: %s", qUtf8Printable(log()));
}

TembraProcess::Answer TembraProcess::startAgain() const {
    return run(wrapped({}));
}

TembraProcess::Answer TembraProcess::command(const QStringList &words) const {
    // What is asked over and over is not slowed down.
    return run(words.value(0) == u"status" ? QStringList{program} + words : wrapped(words));
}

TembraProcess::Answer TembraProcess::tool(const QString &name, const QStringList &arguments) const {
    return run(QStringList{name} + arguments);
}

TembraProcess::Answer TembraProcess::run(const QStringList &commandLine) const {
    QProcess process;
    process.setProcessEnvironment(m_environment);
    // In the folder that captures go to, as long as it is there.
    process.setWorkingDirectory(QFileInfo::exists(screenshots()) ? screenshots() : home());
    process.start(commandLine.first(), commandLine.sliced(1));
    if (!process.waitForFinished(static_cast<int>(3 * m_patience.count())))
        return {-1, {}, process.errorString()};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QJsonObject TembraProcess::status() const {
    const Answer answer = command({QStringLiteral("status"), QStringLiteral("--json")});
    return QJsonDocument::fromJson(answer.output.toUtf8()).object();
}

bool TembraProcess::waitFor(const std::function<bool(const QJsonObject &)> &wish) const {
    const QDeadlineTimer deadline(m_patience);
    while (!wish(status())) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(20);
    }
    return true;
}

bool TembraProcess::waitForEnd() {
    return m_process.waitForFinished(static_cast<int>(m_patience.count()));
}

void TembraProcess::logTo(const QString &file) {
    m_logFile = file;
    m_process.setStandardOutputFile(file, QIODevice::Append);
}

QString TembraProcess::log() {
    if (QFile file(m_logFile); !m_logFile.isEmpty() && file.open(QIODevice::ReadOnly))
        return QString::fromUtf8(file.readAll());
    m_process.waitForReadyRead(100);
    m_log += QString::fromUtf8(m_process.readAll());
    return m_log;
}

} // namespace tembra
