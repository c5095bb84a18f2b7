// The yardstick of the start-up benchmark: a bare Qt window of an exercise screen's size, shown
// and painted once, then gone.

#include "shell/firstpaint.h"

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget w(nullptr, Qt::Window | Qt::FramelessWindowHint);
    w.setFixedSize(633, 434);
    w.installEventFilter(new contarello::ExitAfterFirstPaint(&application));
    w.show();
    return application.exec();
}
