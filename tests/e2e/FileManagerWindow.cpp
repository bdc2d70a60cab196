#include "FileManagerWindow.h"

#include <QDir>
#include <QFile>
#include <QSize>

namespace tembra {

namespace {

constexpr QPoint origin{200, 350};
constexpr QSize size{800, 400};
// The name of the first file, which is where a press always hits it.
constexpr QPoint firstName{205, 161};
constexpr QPoint insideView{500, 250};

const QStringList search{QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--class"),
                         QStringLiteral("pcmanfm-qt")};

QString number(int value) {
    return QString::number(value);
}

} // namespace

FileManagerWindow::FileManagerWindow(const TembraProcess &tembra) : m_tembra(tembra) {
    QDir().mkpath(folder());
}

FileManagerWindow::~FileManagerWindow() {
    m_process.kill();
    m_process.waitForFinished();
}

QString FileManagerWindow::folder() const {
    return m_tembra.home() + QStringLiteral("/Drawer");
}

bool FileManagerWindow::open(const QStringList &names) {
    for (const QString &name : names) {
        QFile file(folder() + u'/' + name);
        if (!file.open(QIODevice::WriteOnly) || file.write("kept") != 4)
            return false;
    }
    m_process.setProcessEnvironment(m_tembra.environment());
    const bool isShown = m_tembra.waitFor([this](const QJsonObject &) {
        startUnlessStarting();
        return m_process.waitForStarted() && windows().size() == 1;
    });
    xdotool(search + QStringList{QStringLiteral("windowmove"), QStringLiteral("--sync"), number(origin.x()),
                                 number(origin.y()), QStringLiteral("windowsize"), QStringLiteral("--sync"),
                                 number(size.width()), number(size.height())});
    return isShown;
}

// One that was just ended may still hold its place on the bus: the new one hands over to it and ends too. And
// now and then one waits for ever for the list of the folder that it already has.
void FileManagerWindow::startUnlessStarting() {
    constexpr qint64 patience = 3000;
    if (m_process.state() != QProcess::NotRunning && m_sinceStart.hasExpired(patience)) {
        m_process.kill();
        m_process.waitForFinished();
    }
    if (m_process.state() != QProcess::NotRunning)
        return;
    m_process.start(QStringLiteral("pcmanfm-qt"), {folder()});
    m_sinceStart.start();
}

QPoint FileManagerWindow::middle() const {
    return origin + insideView;
}

void FileManagerWindow::pressFirst() {
    pressAt(origin + firstName);
}

void FileManagerWindow::pressAt(QPoint point) {
    xdotool({QStringLiteral("mousemove"), number(point.x()), number(point.y()), QStringLiteral("mousedown"),
             QStringLiteral("1")});
    m_pointer = point;
}

void FileManagerWindow::dragTo(QPoint point) {
    constexpr int steps = 20;
    const QPoint way = point - m_pointer;
    QPoint gone;
    QStringList words;
    for (int step = 1; step <= steps; ++step) {
        const QPoint next = way * step / steps;
        words += {QStringLiteral("mousemove_relative"), QStringLiteral("--"),    number(next.x() - gone.x()),
                  number(next.y() - gone.y()),          QStringLiteral("sleep"), QStringLiteral("0.02")};
        gone = next;
    }
    xdotool(words);
    m_pointer = point;
}

void FileManagerWindow::press(const QStringList &keys) {
    xdotool(QStringList{QStringLiteral("key")} + keys);
}

void FileManagerWindow::release() {
    xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
}

bool FileManagerWindow::agreeToCopy() {
    constexpr QPoint firstItem{30, 12};
    const bool isAsked = m_tembra.waitFor([this](const QJsonObject &) { return windows().size() == 2; });
    // A click on a menu that has only just come may be lost, or close it.
    const QPoint item = m_pointer + firstItem;
    return isAsked && m_tembra.waitFor([&](const QJsonObject &) {
        xdotool({QStringLiteral("mousemove"), number(item.x()), number(item.y()), QStringLiteral("sleep"),
                 QStringLiteral("0.4"), QStringLiteral("click"), QStringLiteral("1"), QStringLiteral("sleep"),
                 QStringLiteral("0.3")});
        return windows().size() == 1;
    });
}

QStringList FileManagerWindow::windows() const {
    return m_tembra.tool(QStringLiteral("xdotool"), search).output.split(u'\n', Qt::SkipEmptyParts);
}

void FileManagerWindow::xdotool(const QStringList &words) {
    m_tembra.tool(QStringLiteral("xdotool"), words);
}

} // namespace tembra
