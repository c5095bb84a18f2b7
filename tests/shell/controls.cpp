// The drawn controls of the forms layer: figures in their own colours, every mouse button delivered
// as pressed, a label dropped for real through the drag filter, and a screen printed.

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
    int backStyle, fillStyle, borderWidth;
    QColor back, fill, border;
    QPoint probe;    // a point in the 40 x 30 pixel box
    QColor expected; // white where the screen shows through
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
