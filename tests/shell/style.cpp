// The program's style over a long day: screens made and unloaded, menus of many buttons, questions
// answered and Qt's own coloured buttons leave the heap as they found it once warm, and the controls
// look exactly as Fusion alone draws them.

#include "shell/style.h"
#include "shell/controls.h"
#include "shell/qtservices.h"
#include "support/harness.h"
#include "support/memory.h"

#include <QApplication>
#include <QPushButton>
#include <QStyleFactory>
#include <QTest>
#include <functional>
#include <memory>

using namespace contarello;
using namespace contarello::test;

namespace {

void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

ProgramStyle* programStyle() {
    return qobject_cast<ProgramStyle*>(QApplication::style());
}

using Action = std::function<void(Harness&, int)>;
using Maker = std::function<QWidget*()>;

void showInTurn(Harness& h, int i, const QStringList& screens) {
    h.engine.execute({{"show", screens[i % screens.size()]}});
    if (i % 20 == 19) h.engine.execute({{"dump", true}}); // takes the events kept for the driver
}

// Right three times in four, wrong the fourth; "avanti" after each.
void answerOnForm1(Harness& h, int i) {
    if (i == 0) h.engine.execute({{"show", "Form1"}});
    const int esatto = h.engine.program().g.NumeroEsatto;
    h.engine.execute({{"settext", "Text1"}, {"text", QString()}});
    h.engine.execute({{"type", "Text1"}, {"text", QString::number(i % 4 == 3 ? esatto + 1 : esatto)}});
    h.engine.execute({{"key", "Text1"}, {"code", 13}});
    h.engine.execute({{"click", "BottoneAvanti"}});
    if (i % 20 == 19) h.engine.execute({{"dump", true}});
}

// Forty of Qt's own buttons on a palette of their own, made, shown, painted and deleted.
void fortyColouredButtons(Harness&, int) {
    QWidget window;
    QPalette p = window.palette();
    p.setColor(QPalette::Button, QColor(0xff, 0xc0, 0x40));
    window.setPalette(p);
    for (int b = 0; b < 40; ++b)
        (new QPushButton(QStringLiteral("%1").arg(b), &window))->setGeometry(b % 8 * 60, b / 8 * 30, 56, 26);
    window.resize(480, 150);
    window.show();
    window.repaint();
    settle();
}

} // namespace
Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Maker)

class StyleTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        PrepareToolkit(*static_cast<QApplication*>(QCoreApplication::instance()));
        QVERIFY(programStyle());
    }

    // Each bevel Fusion drew used to file a name in the toolkit's pixmap cache that stayed there for
    // good: 0.6 to 4 KB a screen, 0.8 KB an answer, 10 KB a window of forty buttons.
    void heapStaysFlat_data() {
        QTest::addColumn<Action>("action");
        QTest::addColumn<int>("times");
        QTest::addColumn<int>("bytesEach"); // allowed on average, against the kilobytes of the leak
        const QStringList screens = {"Form1", "Form10", "Form99c", "FormGraf"};
        const QStringList menus = {"FormMenu", "FormMenuNumeri"};
        QTest::newRow("screens made and unloaded")
            << Action([screens](Harness& h, int i) { showInTurn(h, i, screens); }) << 300 << 100;
        QTest::newRow("menus of many buttons, in turn")
            << Action([menus](Harness& h, int i) { showInTurn(h, i, menus); }) << 300 << 100;
        QTest::newRow("questions answered on one screen") << Action(answerOnForm1) << 400 << 100;
        QTest::newRow("Qt's buttons on a palette of their own") << Action(fortyColouredButtons) << 200 << 400;
    }
    void heapStaysFlat() {
        QFETCH(Action, action);
        QFETCH(int, times);
        QFETCH(int, bytesEach);
        Harness h;
        for (int i = 0; i < 2 * times; ++i) // warm: every screen, state and colour met once
            action(h, i);
        settle();
        const int palettes = programStyle()->palettes();
        const long long before = HeapInUse();
        for (int i = 0; i < times; ++i)
            action(h, i);
        settle();
        const long long grown = HeapInUse() - before;
        QVERIFY2(grown < (long long)times * bytesEach,
                 qPrintable(QStringLiteral("%1 bytes more after %2 times").arg(grown).arg(times)));
        QCOMPARE(programStyle()->palettes(), palettes);
    }

    // Pixel for pixel what Fusion draws, on the first paint and on the next, from the cache.
    void looksAsFusion_data() {
        QTest::addColumn<Maker>("make");
        auto button = [](QColor back, bool enabled, bool down) {
            return Maker([=] {
                auto* b = new CommandButton(nullptr);
                b->setCaption(QStringLiteral("avanti"));
                if (back.isValid()) b->setBackColor(back);
                b->setEnabled(enabled);
                b->setDown(down);
                b->resize(97, 41);
                return b;
            });
        };
        QTest::newRow("button of the toolkit's colour") << button(QColor(), true, false);
        QTest::newRow("red button") << button(QColor(0xff, 0, 0), true, false);
        QTest::newRow("dark blue button, pressed") << button(QColor(0, 0, 0x80), true, true);
        QTest::newRow("yellow button, not yet live") << button(QColor(0xff, 0xff, 0), false, false);
        QTest::newRow("coloured text box") << Maker([] {
            auto* t = new TextBox(nullptr);
            t->setBackColor(QColor(0xc0, 0xff, 0xc0));
            t->setText(QStringLiteral("42"));
            t->resize(80, 30);
            return t;
        });
        QTest::newRow("option on a colour") << Maker([] {
            auto* o = new OptionButton(nullptr);
            o->setText(QStringLiteral("fino a 20"));
            o->setBackColor(QColor(0x80, 0xff, 0xff));
            o->setChecked(true);
            o->resize(120, 24);
            return o;
        });
        QTest::newRow("frame with its caption") << Maker([] {
            auto* f = new Frame(nullptr);
            f->setCaption(QStringLiteral("Numero massimo"));
            f->resize(160, 90);
            return f;
        });
        QTest::newRow("list with a scroll bar") << Maker([] {
            auto* l = new ListBox(nullptr, false);
            for (int i = 0; i < 30; ++i)
                l->AddItem(QString::number(i));
            l->setBackColor(QColor(0xff, 0xe0, 0xe0));
            l->resize(90, 80);
            return l;
        });
    }
    void looksAsFusion() {
        QFETCH(Maker, make);
        auto shown = [](QWidget* w) { // laid out, and never focused: no caret nor focus frame
            w->setFocusPolicy(Qt::NoFocus);
            for (QWidget* part : w->findChildren<QWidget*>())
                part->setFocusPolicy(Qt::NoFocus);
            w->show();
            settle();
            return w->grab().toImage();
        };
        const std::unique_ptr<QWidget> ours(make());
        const QImage first = shown(ours.get());
        const QImage again = ours->grab().toImage();
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
        const std::unique_ptr<QWidget> plain(make());
        plain->setStyle(fusion.get());
        for (QWidget* part : plain->findChildren<QWidget*>()) // the scroll bars and the like
            part->setStyle(fusion.get());
        const QImage fusions = shown(plain.get());

        QCOMPARE(first, fusions);
        QCOMPARE(again, fusions);
    }
};

QTEST_MAIN(StyleTest)
#include "style.moc"
