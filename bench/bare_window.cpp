// The floor that a start of the program is measured against: a bare Qt Widgets window.

#include <QApplication>
#include <QWidget>

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(744, 256);
    window.show();
    return QApplication::exec();
}
