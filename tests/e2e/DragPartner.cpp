// DragPartner FILE: a window on the left from which the file is dragged by a press, and one on the right that
// writes what is dropped on it to the standard output, as a program of the desktop that is not ours.

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QTextStream>
#include <QUrl>
#include <QWidget>

namespace {

class Source final : public QWidget {
protected:
    void mousePressEvent(QMouseEvent *) override {
        auto *const content = new QMimeData;
        content->setUrls({QUrl::fromLocalFile(QCoreApplication::arguments().value(1))});
        auto *const drag = new QDrag(this);
        drag->setMimeData(content);
        drag->exec(Qt::CopyAction);
    }
};

class Target final : public QWidget {
public:
    Target() { setAcceptDrops(true); }

protected:
    void dragEnterEvent(QDragEnterEvent *event) override { event->acceptProposedAction(); }
    void dropEvent(QDropEvent *event) override {
        QTextStream out(stdout);
        for (const QUrl &url : event->mimeData()->urls())
            out << "dropped " << url.toLocalFile() << Qt::endl;
        event->acceptProposedAction();
    }
    void showEvent(QShowEvent *) override { QTextStream(stdout) << "ready" << Qt::endl; }
};

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    Source source;
    source.setWindowTitle(QStringLiteral("source"));
    source.show();
    Target target;
    target.show();
    return QApplication::exec();
}
