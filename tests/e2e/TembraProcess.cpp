#include "TembraProcess.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QThread>

namespace tembra {

namespace {

const QString program = QStringLiteral(TEMBRA_PROGRAM);

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

void TembraProcess::forgetSettings() const {
    QFile::remove(settingsFile());
}

void TembraProcess::kill() {
    m_process.kill();
    m_process.waitForFinished();
}

void TembraProcess::start() {
    start(program, {});
}

void TembraProcess::startInDays(int days) {
    // Only the date: delays stay as they are, and files as old as they are.
    m_environment.insert(QStringLiteral("DONT_FAKE_MONOTONIC"), QStringLiteral("1"));
    m_environment.insert(QStringLiteral("NO_FAKE_STAT"), QStringLiteral("1"));
    // The library that does it comes before the sanitizers', which they mind.
    const QString asanOptions = m_environment.value(QStringLiteral("ASAN_OPTIONS"));
    m_environment.insert(QStringLiteral("ASAN_OPTIONS"),
                         asanOptions + QStringLiteral(":verify_asan_link_order=0"));
    start(QStringLiteral("faketime"), {QStringLiteral("-f"), QStringLiteral("+%1d").arg(days), program});
}

void TembraProcess::start(const QString &name, const QStringList &arguments) {
    QProcessEnvironment environment = m_environment;
    environment.insert(m_variables);
    m_process.setProcessEnvironment(environment);
    m_process.start(name, arguments);
    m_process.waitForStarted();
    if (!waitFor([](const QJsonObject &status) { return !status.isEmpty(); }))
        qFatal("Tembra does not answer: %s", qUtf8Printable(log()));
}

TembraProcess::Answer TembraProcess::startAgain() const {
    return run(program, {});
}

TembraProcess::Answer TembraProcess::command(const QStringList &words) const {
    return run(program, words);
}

TembraProcess::Answer TembraProcess::tool(const QString &name, const QStringList &arguments) const {
    return run(name, arguments);
}

TembraProcess::Answer TembraProcess::run(const QString &name, const QStringList &arguments) const {
    QProcess process;
    process.setProcessEnvironment(m_environment);
    // In the folder that captures go to, as long as it is there.
    process.setWorkingDirectory(QFileInfo::exists(screenshots()) ? screenshots() : home());
    process.start(name, arguments);
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
