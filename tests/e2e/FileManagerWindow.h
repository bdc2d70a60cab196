#pragma once

#include "TembraProcess.h"

#include <QElapsedTimer>
#include <QPoint>
#include <QProcess>
#include <QStringList>

namespace tembra {

// A real file manager showing a folder below the shelf, and the hand that drags from it and to it. Screen
// points.
class FileManagerWindow {
public:
    explicit FileManagerWindow(const TembraProcess &tembra);
    ~FileManagerWindow();
    FileManagerWindow(const FileManagerWindow &) = delete;
    FileManagerWindow &operator=(const FileManagerWindow &) = delete;

    [[nodiscard]] QString folder() const;
    // Shows the folder with new files of these names; whether the window came.
    [[nodiscard]] bool open(const QStringList &names);
    [[nodiscard]] QPoint middle() const;

    // The button goes down on the first file, or somewhere.
    void pressFirst();
    void pressAt(QPoint point);
    // By motion at the speed of a hand: programs that drag answer each other on the way.
    void dragTo(QPoint point);
    void release();
    void press(const QStringList &keys);
    // Where it asks what to do with what was dropped: to copy it. Whether it asked.
    [[nodiscard]] bool agreeToCopy();

private:
    [[nodiscard]] QStringList windows() const;
    void startUnlessStarting();
    void xdotool(const QStringList &words);

    const TembraProcess &m_tembra;
    QProcess m_process;
    QElapsedTimer m_sinceStart;
    QPoint m_pointer;
};

} // namespace tembra
