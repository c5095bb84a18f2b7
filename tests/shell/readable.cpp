// What a child must be able to see: captions readable on every background, "avanti" plainly on or
// off, choice panels with the choice in force marked, and boxes wide enough for their title.

#include "app/screens.h"
#include "shell/colori.h"
#include "shell/focus.h"
#include "shell/form.h"
#include "shell/program.h"
#include "shell/qtservices.h"
#include "support/harness.h"

#include <QApplication>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

using namespace contarello;
using namespace contarello::test;

namespace {

// Enough for large bold captions; every caption here is bold, 12 points or more.
constexpr double kContrastoMinimo = 3.0;

// What the caption is painted on, found from the widgets themselves: a button's face, a box's
// field, an option's own tile, else the nearest fill behind it, up to the screen's background.
QColor behind(Control* c) {
    QWidget* w = c->widget();
    if (qobject_cast<QRadioButton*>(w)) return c->captionGround();
    if (qobject_cast<QAbstractButton*>(w)) return w->palette().color(QPalette::Button);
    if (w->inherits("QLineEdit") || w->inherits("QPlainTextEdit") || w->inherits("QListWidget"))
        return w->palette().color(QPalette::Base);
    for (; w; w = w->parentWidget()) {
        if (auto* f = qobject_cast<Form*>(w)) return f->BackColor();
        if (w->autoFillBackground()) return w->palette().color(w->backgroundRole());
    }
    return {};
}

// Every enabled caption too close in colour to what it stands on, shown or not: a hidden one shows
// later on the same background.
QStringList unreadable(Form* form, const QString& where) {
    form->grab(); // paints what shows, as the screen on the display does
    QStringList bad;
    for (Control* c : form->controls()) {
        QWidget* w = c->widget();
        if (!w || c->captionRole() == QPalette::NoRole || !c->Enabled()) continue;
        const QColor ink = w->palette().color(QPalette::Active, c->captionRole());
        const QColor ground = behind(c);
        if (Contrasto(ink, ground) < kContrastoMinimo)
            bad << QStringLiteral("%1 %2: %3 on %4")
                       .arg(where, c->name(), colourName(ink), colourName(ground));
    }
    return bad;
}

// The strongest colour on a button's face, inside its edge: 0 for greys only.
int saturation(const QImage& im) {
    int most = 0;
    for (int y = 4; y < im.height() - 4; ++y)
        for (int x = 4; x < im.width() - 4; ++x)
            most = std::max(most, QColor(im.pixel(x, y)).hsvSaturation());
    return most;
}

// The focus ring, once Tab has shown it: the middle of its band against what lies round the control.
QStringList ringUnreadable(Harness& h, Form* form, const QString& where) {
    h.run(R"J({"press": "Tab"})J");
    const QRect r = RingRect(*form);
    QWidget* w = form->focusWidget();
    if (r.isEmpty() || !w)
        return FocusOrder(*form).empty() ? QStringList() : QStringList{where + ": no ring"};
    QColor ground = form->BackColor();
    for (QWidget* p = w->parentWidget(); p && p != form; p = p->parentWidget())
        if (p->autoFillBackground()) {
            ground = p->palette().color(p->backgroundRole());
            break;
        }
    const QColor ink = form->grab().toImage().pixelColor(r.center().x(), r.top() + RingWidth() / 2);
    if (Contrasto(ink, ground) >= kContrastoMinimo) return {};
    return {QStringLiteral("%1 ring round %2: %3 on %4")
                .arg(where, w->objectName(), colourName(ink), colourName(ground))};
}

} // namespace

class ReadableTest : public QObject {
    Q_OBJECT
    static Form* show(Harness& h, const QString& name) {
        h.run(QStringLiteral(R"J({"show": "%1"})J").arg(name));
        return h.engine.program().nav.find(name);
    }
private slots:
    // Every screen of the program at every colour its background can take, its captions and the
    // ring round the focus.
    void captionsOnEveryBackground() {
        QStringList bad;
        for (const FormEntry& entry : FormTable()) {
            Harness h;
            const QString name = QLatin1String(entry.name);
            Form* form = show(h, name);
            QVERIFY(form);
            const std::optional<Variante> v = VarianteDi(*form);
            if (!v) bad << unreadable(form, name);
            for (int slot = 1; v && slot <= 18; ++slot) {
                h.rnd({(slot - 0.5) / 18});
                CaricaColori(*form, *v);
                QCOMPARE(form->BackColor(), ColoreSlot(*v, slot));
                bad << unreadable(form, QStringLiteral("%1 slot %2").arg(name).arg(slot));
                bad << ringUnreadable(h, form, QStringLiteral("%1 slot %2").arg(name).arg(slot));
            }
        }
        QVERIFY2(bad.isEmpty(), qPrintable(bad.join(u'\n')));
    }

    // The numbers placed on FormOrd and the digits left to drag on FormCol2, once they show.
    void captionsAfterMoves() {
        Harness h;
        h.dump();        // the start screen takes its colour first
        h.rnd({0.4166}); // slot 8, #c04000
        Form* col = show(h, "FormCol2");
        h.run(R"J({"drag": "Lu1", "to": "Eu1"})J");
        QStringList bad = unreadable(col, "FormCol2");
        h.rnd({0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.9444}); // two questions in Load: the second is blue
        Form* ord = show(h, "FormOrd");
        h.run(R"J({"click": "ComandoNumero(0)"})J");
        QCOMPARE(colourName(ord->BackColor()), QStringLiteral("#0000ff"));
        bad << unreadable(ord, "FormOrd");
        QVERIFY2(bad.isEmpty(), qPrintable(bad.join(u'\n')));
    }

    // Off, the arrow is grey on any background; on, it has a colour of its own.
    void avantiLooksOnOrOff() {
        Harness h;
        Form* form = show(h, "Form1");
        QWidget* avanti = form->find(QStringLiteral("BottoneAvanti"))->widget();
        QVERIFY(avanti->isVisible() && !avanti->isEnabled());
        for (QColor c : {QColor(0xff, 0x00, 0x00), QColor(0x00, 0x00, 0xff), QColor(0xff, 0xff, 0x00)}) {
            form->setBackColor(c);
            QCOMPARE(saturation(avanti->grab().toImage()), 0);
        }
        avanti->setEnabled(true);
        QVERIFY(saturation(avanti->grab().toImage()) > 150);
    }

    // The panels cover their screen, with targets a small hand hits, and mark the choice in force.
    void panels_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("limit");
        QTest::addColumn<QString>("chosen"); // empty when no option stands for the limit
        QTest::newRow("limit 39") << "FormScri" << 39 << "OpzioneNumeroMassimo(2)";
        QTest::newRow("limit 99") << "FormScri2" << 99 << "OpzioneNumeroMassimo(8)";
        QTest::newRow("limit 25 is no option") << "FormScri" << 25 << "";
        QTest::newRow("how many to order") << "FormOrd" << 99 << "Option3D1(4)";
    }
    void panels() {
        QFETCH(QString, form);
        QFETCH(int, limit);
        QFETCH(QString, chosen);
        const bool ord = form == "FormOrd";
        const QString menu =
            QStringLiteral(R"J({"menu": "%1"})J").arg(ord ? "MenuQuantiNumeri" : "mnuNumeroMassimo");
        Harness h;
        h.setLimit(limit);
        Form* f = show(h, form);
        if (!ord) { // a choice made before, then the limit changed behind the panel's back
            h.script(menu + "\n" + R"J({"click": "OpzioneNumeroMassimo(0)"})J");
            h.engine.program().g.NumeroMassimo = int16_t(limit);
        }
        h.run(menu);
        QWidget* p = f->find(ord ? "EtNumeri" : "CorniceNumeroMassimo")->widget();
        QCOMPARE(p->geometry(), f->client()->rect());
        const QList<QRadioButton*> options = p->findChildren<QRadioButton*>();
        QVERIFY(options.size() >= 6);
        for (QRadioButton* o : options) {
            QVERIFY2(p->rect().contains(o->geometry()) && o->height() >= 48 && o->width() >= 120,
                     qPrintable(o->objectName()));
            QCOMPARE(o->isChecked(), o->objectName() == chosen);
        }
    }

    // The real boxes, closed as soon as they show: room for the title beside the bar's icon and
    // its buttons.
    void boxesShowTheirTitle() {
        Harness h; // the application's fonts as the program has them
        QtDialogs dialogs;
        for (int input = 0; input < 2; ++input) {
            int width = 0, room = 0;
            QTimer::singleShot(0, [&] {
                QWidget* box = QApplication::activeModalWidget();
                QVERIFY(box);
                width = box->width();
                room = QFontMetrics(box->font()).horizontalAdvance(kTitolo) + 120;
                box->close();
            });
            input ? void(dialogs.InputBox("Quanti?", kTitolo, QString()))
                  : void(dialogs.MsgBox("Bravo", 0, kTitolo));
            QVERIFY2(width >= room, qPrintable(QStringLiteral("%1 < %2").arg(width).arg(room)));
        }
    }
};

QTEST_MAIN(ReadableTest)
#include "readable.moc"
