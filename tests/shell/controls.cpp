// The drawn controls of the forms layer: figures in their own colours, every mouse button delivered
// as pressed, and a label dropped for real through the drag filter.

#include "core/scripted.h"
#include "driver/recordingprinter.h"
#include "shell/form.h"
#include "shell/program.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTest>

using namespace contarello;

namespace {

struct Services {
    EventLog log;
    ScriptedRandom rnd{&log};
    RecordingSound sound{log, QStringLiteral("/app")};
    ScriptedDialogs dialogs{log};
    RecordingPrinter printer{log};
    Program app{rnd, sound, dialogs, printer, QStringLiteral("/app"), {}, &log};
};

// A bare screen that lets the test make controls as a screen does.
class Board : public Form {
public:
    explicit Board(Program& app) : Form(app, 3000, 3000) { setBackColor(Qt::white); }
    using Form::button;
    using Form::label;
    using Form::shape;
    void menuItem(const char* name, const char* caption) { menu(name, caption); }
};

struct Figura {
    Shape::Kind kind;
    int backStyle;
    QColor back;
    int fillStyle;
    QColor fill;
    QColor border;
    int borderWidth;
    QPoint probe;    // a point in the 40 x 30 pixel box
    QColor expected; // white where the screen shows through
};

struct Mouse {
    int vbButton;
    Qt::MouseButton qt;
};

} // namespace
Q_DECLARE_METATYPE(Figura)
Q_DECLARE_METATYPE(Mouse)

class ControlsTest : public QObject {
    Q_OBJECT
private slots:
    void figures_data() {
        QTest::addColumn<Figura>("f");
        const QColor none, red(0xff0000), blue(0x0000ff), green(0x00c000), white(Qt::white);
        const int O = Shape::Opaque, T = Shape::Transparent, S = Shape::Solid, N = Shape::NoFill;
        // clang-format off
        QTest::newRow("bead: opaque red circle, red in the middle") << Figura{Shape::Circle, O, red, N, none, red, 1, {20, 15}, red};
        QTest::newRow("bead: nothing outside the circle")           << Figura{Shape::Circle, O, red, N, none, red, 1, {7, 2}, white};
        QTest::newRow("long: solid rectangle to its corner")        << Figura{Shape::Rectangle, T, none, S, red, red, 1, {3, 3}, red};
        QTest::newRow("fill over the back colour")                  << Figura{Shape::Rectangle, O, blue, S, red, red, 1, {20, 15}, red};
        QTest::newRow("transparent figure shows the screen")        << Figura{Shape::Rectangle, T, blue, N, red, red, 1, {20, 15}, white};
        QTest::newRow("square keeps equal sides, middle")           << Figura{Shape::Square, T, none, S, blue, blue, 1, {20, 15}, blue};
        QTest::newRow("square keeps equal sides, beside it")        << Figura{Shape::Square, T, none, S, blue, blue, 1, {2, 15}, white};
        QTest::newRow("oval reaches the sides of its box")          << Figura{Shape::Oval, T, none, S, green, green, 1, {3, 15}, green};
        QTest::newRow("oval leaves the corners")                    << Figura{Shape::Oval, T, none, S, green, green, 1, {1, 1}, white};
        QTest::newRow("border in its own colour")                   << Figura{Shape::Rectangle, T, none, N, none, red, 3, {1, 15}, red};
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

    void mouseButtons_data() {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<Mouse>("m");
        for (const char* kind : {"shape", "label", "button"}) {
            QTest::addRow("%s left", kind) << QString(kind) << Mouse{vbLeftButton, Qt::LeftButton};
            QTest::addRow("%s right", kind) << QString(kind) << Mouse{vbRightButton, Qt::RightButton};
            QTest::addRow("%s middle", kind) << QString(kind) << Mouse{vbMiddleButton, Qt::MiddleButton};
        }
    }
    void mouseButtons() {
        QFETCH(QString, kind);
        QFETCH(Mouse, m);
        Services s;
        Board board(s.app);
        board.show();
        QWidget* w = nullptr;
        int down = 0, up = 0, clicks = 0, downX = -1;
        auto onDown = [&](int b, int, int x, int) { down = b, downX = x; };
        auto onUp = [&](int b, int, int, int) { up = b; };
        auto onClick = [&] { ++clicks; };
        if (kind == "shape") {
            auto* c = board.shape("Shape1", Shape::Circle, 300, 300, 600, 600);
            c->MouseDown = onDown, c->MouseUp = onUp, c->Click = onClick, w = c;
        } else if (kind == "label") {
            auto* c = board.label("Label1", QString(), 300, 300, 600, 600, Arial(12));
            c->MouseDown = onDown, c->MouseUp = onUp, c->Click = onClick, w = c;
        } else {
            auto* c = board.button("Bot_da", "da", 300, 300, 600, 600, Arial(12));
            c->MouseDown = onDown, c->MouseUp = onUp, c->Click = onClick, w = c;
        }
        QTest::mousePress(w, m.qt, {}, QPoint(10, 20));
        QTest::mouseRelease(w, m.qt, {}, QPoint(10, 20));
        QCOMPARE(down, m.vbButton);
        QCOMPARE(up, m.vbButton);
        QCOMPARE(downX, 10 * kTwipsPerPixel);
        QCOMPARE(clicks, m.vbButton == vbLeftButton ? 1 : 0); // only the left button clicks
    }

    // A drop event as the window system sends it at the end of a drag with the mouse.
    void aDroppedLabelReachesItsTarget() {
        Services s;
        Board board(s.app);
        board.show();
        Label* digit = board.label("Lu1", "7", 0, 0, 300, 300, Arial(12));
        digit->setDragMode(1);
        Label* place = board.label("Eu1", QString(), 600, 0, 300, 300, Arial(12));
        QString dropped;
        place->DragDrop = [&](Control* source) { dropped = source->name(); };
        static_cast<Control*>(place)->acceptDrops();

        std::unique_ptr<QMimeData> foreign(new QMimeData);
        foreign->setText("7");
        QDropEvent stranger(QPointF(5, 5), Qt::MoveAction, foreign.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(place, &stranger);
        QVERIFY(dropped.isEmpty()); // text from elsewhere is no digit of the screen

        std::unique_ptr<QMimeData> data(digit->dragData());
        QDragEnterEvent enter(QPoint(5, 5), Qt::MoveAction, data.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(place, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::MoveAction, data.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(place, &drop);
        QCOMPARE(dropped, QStringLiteral("Lu1"));
    }

    // The screen under its menu bar goes on the page across its printable width, centred.
    void printFormPutsTheScreenOnThePage() {
        Services s;
        Board board(s.app);
        board.setBackColor(QColor(0x00, 0x00, 0xff));
        board.menuItem("MenuAzzera", "Azzera conteggio");
        board.show();
        board.PrintForm();
        const QImage page = s.printer.lastPage();
        QVERIFY(!page.isNull());
        int left = page.width(), right = -1, top = page.height();
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x)
                if (page.pixelColor(x, y) == QColor(0x00, 0x00, 0xff)) {
                    left = std::min(left, x), right = std::max(right, x), top = std::min(top, y);
                }
        QVERIFY(right > left);
        QVERIFY(std::abs(left - (page.width() - 1 - right)) <= 2); // centred
        QVERIFY(right - left > page.width() * 3 / 4);              // across the printable width
        // No menu bar on paper: the screen's colour starts where the page's printable area does.
        QVERIFY(top <= 30);
        QCOMPARE(s.log.take().back().value("event").toString(), QStringLiteral("printform"));
    }

    void anAutoSizedLabelFollowsItsCaption() {
        Services s;
        Board board(s.app);
        Label* l = board.label("Label3", "7", 150, 150, 3000, 3000, Arial(12));
        l->setAutoSize(true);
        const int narrow = l->width();
        l->setCaption("settantasette");
        QVERIFY(l->width() > narrow);
        QVERIFY(l->height() < 100);
        QCOMPARE(l->pos(), QPoint(10, 10));
    }
};

QTEST_MAIN(ControlsTest)
#include "controls.moc"
