// The yardsticks of the start-up benchmark, at the scale the program would pick on this display,
// shown and painted once, then gone:
//   contarello-bare-window             a bare Qt window of an exercise screen's size;
//   contarello-bare-window --captions  the start screen's captions and button in plain Qt widgets,
//                                      with the program's fonts: what drawing that text costs.

#include "shell/firstpaint.h"
#include "shell/fonts/fonts.h"
#include "shell/scale.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QWidget>
#include <cmath>
#include <cstring>

int main(int argc, char** argv) {
    const bool captions = argc > 1 && std::strcmp(argv[1], "--captions") == 0;
    if (captions) contarello::UseProgramFonts();
    QApplication application(argc, argv);
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double f = screen ? contarello::ChooseScaleFactor(screen->availableGeometry().size()) : 1.0;
    const auto px = [f](int pixels) { return int(std::lround(pixels * f)); };
    QWidget w(nullptr, Qt::Window | Qt::FramelessWindowHint);
    if (captions) {
        w.setFixedSize(px(740), px(420));
        const auto font = [f](double points) {
            QFont font(QStringLiteral("Liberation Sans"));
            font.setPointSizeF(points * f);
            font.setBold(true);
            return font;
        };
        auto* top = new QLabel(QStringLiteral("Calcolario"), &w);
        top->setFont(font(18));
        top->setGeometry(px(32), px(40), px(676), px(33));
        top->setAlignment(Qt::AlignHCenter);
        auto* title = new QLabel(QStringLiteral("  Contarello"), &w);
        title->setFont(font(72));
        title->setGeometry(px(8), px(88), px(724), px(113));
        title->setAlignment(Qt::AlignHCenter);
        auto* start = new QPushButton(QStringLiteral("Avvio"), &w);
        start->setFont(font(24));
        start->setGeometry(px(274), px(240), px(192), px(113));
    } else {
        w.setFixedSize(px(633), px(434));
    }
    contarello::ExitAfterFirstPaint(&w);
    w.show();
    return application.exec();
}
