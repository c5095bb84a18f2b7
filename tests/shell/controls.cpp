// The drawn controls of the forms layer: figures in their own colours, every mouse button delivered
// as pressed, a key released where it was pressed, a label dropped for real through the drag
// filter, and a screen printed.

#include "app/screens.h"
#include "core/scripted.h"
#include "driver/recordingprinter.h"
#include "shell/form.h"
#include "shell/program.h"
#include "shell/qtservices.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QTimer>

using namespace contarello;

namespace {

struct Services {
    EventLog log;
    ScriptedRandom rnd{&log};
    RecordingSound sound{log, QStringLiteral("/app")};
    ScriptedDialogs dialogs{log};
    RecordingPrinter printer{log};
    ScriptedClock clock;
    RecordingSpeech speech{log};
    Program app{rnd, sound, dialogs, printer, clock, speech, QStringLiteral("/app"), {}, &log};
};

// A bare screen that lets the test make controls as a screen does.
class Board : public Form {
public:
    explicit Board(Program& app) : Form(app, 3000, 3000) { setBackColor(Qt::white); }
    using Form::button;
    using Form::label;
    using Form::shape;
    using Form::textBox;
    void menuItem(const char* name, const char* caption) { menu(name, caption); }
};

struct Figura {
    Shape::Kind kind;
    int backStyle, fillStyle, borderWidth;
    QColor back, fill, border;
    QPoint probe;    // a point in the 40 x 30 pixel box
    QColor expected; // white where the screen shows through
};

// The program with the real message boxes of the toolkit, everything else scripted.
struct RealBoxes {
    EventLog log;
    ScriptedRandom rnd{&log};
    RecordingSound sound{log, QStringLiteral("/app")};
    QtDialogs dialogs;
    RecordingPrinter printer{log};
    ScriptedClock clock;
    RecordingSpeech speech{log};
    Program app{rnd, sound, dialogs, printer, clock, speech, QStringLiteral("/app"), FormTable(), &log};
};

} // namespace
Q_DECLARE_METATYPE(Figura)

class ControlsTest : public QObject {
    Q_OBJECT
private slots:
    void figures_data() {
        QTest::addColumn<Figura>("f");
        const QColor none, red(0xff0000), blue(0x0000ff), green(0x00c000), white(Qt::white);
        const int O = Shape::Opaque, T = Shape::Transparent, S = Shape::Solid, N = Shape::NoFill;
        // clang-format off
        QTest::newRow("bead: opaque red circle, red in the middle") << Figura{Shape::Circle, O, N, 1, red, none, red, {20, 15}, red};
        QTest::newRow("bead: nothing outside the circle")           << Figura{Shape::Circle, O, N, 1, red, none, red, {7, 2}, white};
        QTest::newRow("long: solid rectangle to its corner")        << Figura{Shape::Rectangle, T, S, 1, none, red, red, {3, 3}, red};
        QTest::newRow("fill over the back colour")                  << Figura{Shape::Rectangle, O, S, 1, blue, red, red, {20, 15}, red};
        QTest::newRow("transparent figure shows the screen")        << Figura{Shape::Rectangle, T, N, 1, blue, red, red, {20, 15}, white};
        QTest::newRow("square keeps equal sides, middle")           << Figura{Shape::Square, T, S, 1, none, blue, blue, {20, 15}, blue};
        QTest::newRow("square keeps equal sides, beside it")        << Figura{Shape::Square, T, S, 1, none, blue, blue, {2, 15}, white};
        QTest::newRow("oval reaches the sides of its box")          << Figura{Shape::Oval, T, S, 1, none, green, green, {3, 15}, green};
        QTest::newRow("oval leaves the corners")                    << Figura{Shape::Oval, T, S, 1, none, green, green, {1, 1}, white};
        QTest::newRow("border in its own colour")                   << Figura{Shape::Rectangle, T, N, 3, none, none, red, {1, 15}, red};
        // clang-format on
    }
    void figures() {
        QFETCH(Figura, f);
        Services s;
        Board board(s.app);
        Shape* sh = board.shape(QStringLiteral("Shape1"), f.kind, 0, 0, 600, 450);
        sh->setBackStyle(f.backStyle);
        if (f.back.isValid()) sh->setBackColor(f.back);
        sh->setFillStyle(f.fillStyle);
        if (f.fill.isValid()) sh->setFillColor(f.fill);
        sh->setBorderColor(f.border);
        sh->setBorderWidth(f.borderWidth);
        const QImage picture = board.client()->grab(sh->geometry()).toImage();
        QCOMPARE(picture.pixelColor(f.probe).name(), f.expected.name());
    }

    // Down and up carry the button pressed and where, in twips; only the left button clicks.
    void mouseButtons_data() {
        QTest::addColumn<QString>("kind");
        for (const char* kind : {"shape", "label", "button"})
            QTest::newRow(kind) << QString(kind);
    }
    void mouseButtons() {
        QFETCH(QString, kind);
        Services s;
        Board board(s.app);
        board.show();
        QString seen;
        auto wire = [&](auto* c) -> QWidget* {
            c->MouseDown = [&](int b, int, int x, int) {
                seen += QStringLiteral("down %1 at %2 ").arg(b).arg(x);
            };
            c->MouseUp = [&](int b, int, int, int) { seen += QStringLiteral("up %1, ").arg(b); };
            c->Click = [&] { seen.prepend("click, "); };
            return c;
        };
        QWidget* w = kind == "shape"   ? wire(board.shape("Shape1", Shape::Circle, 300, 300, 600, 600))
                     : kind == "label" ? wire(board.label("Label1", QString(), 300, 300, 600, 600, Arial(12)))
                                       : wire(board.button("Bot_da", "da", 300, 300, 600, 600, Arial(12)));
        for (Qt::MouseButton b : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
            QTest::mousePress(w, b, {}, QPoint(10, 20));
            QTest::mouseRelease(w, b, {}, QPoint(10, 20));
        }
        QCOMPARE(seen, "click, down 1 at 150 up 1, down 2 at 150 up 2, down 4 at 150 up 4, ");
    }

    // Keys as the window system delivers them to a box: p presses Enter, h repeats it while held,
    // r releases it, a presses A, f takes the focus away and back. Enter is taken once, on the
    // release of a press the box had.
    void keyUpAfterItsPress_data() {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<int>("taken");
        QTest::newRow("pressed and released") << "pr" << 1;
        QTest::newRow("released alone: pressed in a box that closed") << "r" << 0;
        QTest::newRow("held down, released once") << "phhhr" << 1;
        QTest::newRow("a second release without a press") << "prr" << 1;
        QTest::newRow("pressed, the focus went away and back, released") << "pfr" << 0;
        QTest::newRow("pressed again once the focus is back") << "pfpr" << 1;
        QTest::newRow("another key pressed") << "ar" << 0;
        QTest::newRow("two answers") << "prpr" << 2;
    }
    void keyUpAfterItsPress() {
        QFETCH(QString, keys);
        Services s;
        Board board(s.app);
        TextBox* box = board.textBox("Text1", 0, 0, 1500, 600, Arial(12));
        int taken = 0;
        box->KeyUp = [&taken](int keyCode, int) { taken += keyCode == 13; };
        for (QChar k : keys) {
            const QEvent::Type type = k == 'r' ? QEvent::KeyRelease : QEvent::KeyPress;
            QKeyEvent key(type, k == 'a' ? Qt::Key_A : Qt::Key_Return, Qt::NoModifier, k == 'a' ? "a" : "\r",
                          k == 'h');
            if (k == 'f') {
                QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
                QFocusEvent in(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
                QCoreApplication::sendEvent(box, &out);
                QCoreApplication::sendEvent(box, &in);
            } else {
                QCoreApplication::sendEvent(box, &key);
            }
        }
        QTEST(taken, "taken");
    }

    // The Enter that closes a real message box is pressed in the box and released on the answer box
    // the focus goes back to: it judges nothing, so the box shows once and the counters stand.
    void enterThatClosesABox_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QList<double>>("draws");
        QTest::addColumn<QString>("steps"); // clicks, n times with "*n", drags "from>to", answers "box=text"
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("esatti");
        QTest::addColumn<int>("errati");
        auto v = [](int k, int n) { return (k + 0.5) / n; };
        QTest::newRow("FormGraf: 27 + 18, a wrong sum")
            << "FormGraf" << QList<double>{0.0, v(25, 79), v(22, 35)}
            << "BotDecine1*2 BotUnita1*7 BotUnita2*8 BotDecine2 Cambio"
            << "Risultato"
            << "44" << 0 << 1;
        QTest::newRow("FormGraf1: 20 + 15, a wrong sum")
            << "FormGraf1" << QList<double>{0.0, v(3, 10), v(5, 10), v(2, 3), 0.0}
            << "BotDecine1*2 BotDecine2 BotUnita2*5"
            << "Risultato"
            << "34" << 0 << 1;
        QTest::newRow("FormGrafMeno: 52 - 27, a wrong difference")
            << "FormGrafMeno" << QList<double>{0.0, v(32, 79), v(22, 42)}
            << "BotUnita1*2 BotDecine1*5 Cambio Unita1(0) Unita1(1) Unita2(0) Unita2(1) Unita2(2) Unita2(3) "
               "Unita2(4) Decina1(3) Decina1(2)"
            << "Risultato"
            << "26" << 0 << 1;
        QTest::newRow("FormGrafMeno1: 58 - 30, a wrong difference")
            << "FormGrafMeno1" << QList<double>{0.0, v(5, 10), v(8, 10), v(3, 5), 0.0}
            << "BotDecine1*5 BotUnita1*8 Decina1(0) Decina1(1) Decina1(2)"
            << "Risultato"
            << "27" << 0 << 1;
        QTest::newRow("FormCol3: 47 - 3, Bravo")
            << "FormCol3" << QList<double>{v(7, 10), v(3, 7), v(4, 10), v(0, 4)}
            << "Lda1>Eda1 Lu1>Eu1 Lu2>Eu2 Eur=4"
            << "Edar"
            << "4" << 1 << 0;
    }
    void enterThatClosesABox() {
        QFETCH(QString, form);
        QFETCH(QList<double>, draws);
        QFETCH(QString, steps);
        QFETCH(QString, box);
        QFETCH(QString, answer);
        RealBoxes r;
        r.app.g.NumeroMassimo = 99;
        r.app.g.AttendiBottone = True;
        for (double x : draws)
            r.rnd.queue(x);
        Form* f = r.app.nav.Show(form);
        QVERIFY(f);
        auto enter = [](QWidget* w) {
            QTest::keyPress(w, Qt::Key_Return);
            QTest::keyRelease(w, Qt::Key_Return);
        };
        for (const QString& step : steps.split(' ')) {
            if (step.contains('>')) {
                Control* target = f->find(step.section('>', 1));
                QVERIFY(target && target->DragDrop);
                target->DragDrop(f->find(step.section('>', 0, 0)));
            } else if (step.contains('=')) {
                auto* t = dynamic_cast<TextBox*>(f->find(step.section('=', 0, 0)));
                QVERIFY(t && t->isEnabled());
                t->setText(step.section('=', 1));
                enter(t);
            } else {
                Control* c = f->find(step.section('*', 0, 0));
                QVERIFY2(c && c->Enabled(), qPrintable(step));
                for (int i = std::max(1, step.section('*', 1).toInt()); i > 0; --i)
                    c->userClick();
            }
        }
        auto* t = dynamic_cast<TextBox*>(f->find(box));
        QVERIFY(t && t->isVisible() && t->isEnabled());
        t->setText(answer);
        // Each box that shows is closed as a child closes it: Enter pressed in the box.
        int boxes = 0;
        QTimer closer;
        closer.setInterval(10);
        QObject::connect(&closer, &QTimer::timeout, [&boxes] {
            if (QWidget* m = QApplication::activeModalWidget()) {
                ++boxes;
                QTest::keyPress(m->focusWidget() ? m->focusWidget() : m, Qt::Key_Return);
            }
        });
        closer.start();
        enter(t);
        QCOMPARE(boxes, 1);
        // ... and released where the focus is once the box has gone.
        QTest::keyRelease(f->focusWidget() ? f->focusWidget() : t, Qt::Key_Return);
        closer.stop();
        QCOMPARE(boxes, 1);
        QFETCH(int, esatti);
        QFETCH(int, errati);
        QCOMPARE(std::pair(int(r.app.g.Esatti), int(r.app.g.Errati)), std::pair(esatti, errati));
    }

    // A drop event as the window system sends it at the end of a drag with the mouse; text from
    // elsewhere is no digit of the screen.
    void aDroppedLabelReachesItsTarget() {
        Services s;
        Board board(s.app);
        board.show();
        Label* digit = board.label("Lu1", "7", 0, 0, 300, 300, Arial(12));
        digit->setDragMode(1);
        Label* place = board.label("Eu1", QString(), 600, 0, 300, 300, Arial(12));
        QString dropped;
        place->DragDrop = [&](Control* source) { dropped += source->name(); };
        static_cast<Control*>(place)->acceptDrops();
        QMimeData foreign;
        foreign.setText("7");
        std::unique_ptr<QMimeData> data(digit->dragData());
        for (QMimeData* d : {&foreign, data.get()}) {
            QDragEnterEvent enter(QPoint(5, 5), Qt::MoveAction, d, Qt::LeftButton, {});
            QCoreApplication::sendEvent(place, &enter);
            QCOMPARE(enter.isAccepted(), d != &foreign);
            QDropEvent drop(QPointF(5, 5), Qt::MoveAction, d, Qt::LeftButton, {});
            QCoreApplication::sendEvent(place, &drop);
        }
        QCOMPARE(dropped, QStringLiteral("Lu1"));
    }

    // The screen under its menu bar goes on the page across its printable width, centred, without
    // the menu bar.
    void printFormPutsTheScreenOnThePage() {
        Services s;
        Board board(s.app);
        const QColor blue(0x00, 0x00, 0xff);
        board.setBackColor(blue);
        board.menuItem("MenuAzzera", "Azzera conteggio");
        board.show();
        board.PrintForm();
        const QImage page = s.printer.lastPage();
        int left = page.width(), right = -1, top = page.height();
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x)
                if (page.pixelColor(x, y) == blue)
                    left = std::min(left, x), right = std::max(right, x), top = std::min(top, y);
        QVERIFY(right - left > page.width() * 3 / 4);
        QVERIFY(std::abs(left - (page.width() - 1 - right)) <= 2);
        QVERIFY(top <= 30); // where the page's printable area starts
        QCOMPARE(s.log.take().back().value("event").toString(), QStringLiteral("printform"));
    }

    void anAutoSizedLabelFollowsItsCaption() {
        Services s;
        Board board(s.app);
        Label* l = board.label("Label3", "7", 150, 150, 3000, 3000, Arial(12));
        l->setAutoSize(true);
        const int narrow = l->width();
        l->setCaption("settantasette");
        QVERIFY(l->width() > narrow && l->height() < 100);
        QCOMPARE(l->pos(), QPoint(10, 10)); // from where it stands
    }
};

QTEST_MAIN(ControlsTest)
#include "controls.moc"
