// The one scale of the program: the factor chosen for a display, and a screen at factor 2 laid out
// exactly as at factor 1, twice as large.

#include "app/screens.h"
#include "shell/form.h"
#include "shell/program.h"
#include "shell/qtservices.h"
#include "support/harness.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace contarello;
using contarello::test::Harness;

namespace {

// Every control's place on the screen, and the screen's own size.
QMap<QString, QRect> Places(const QString& screen, double factor) {
    SetScaleFactor(factor);
    Harness h;
    h.run(QStringLiteral(R"({"show": "%1"})").arg(screen));
    Form* form = h.engine.program().nav.find(screen);
    QMap<QString, QRect> places;
    places[screen] = form->rect();
    for (Control* c : form->controls())
        if (QWidget* w = c->widget()) places[c->name()] = QRect(w->mapTo(form, QPoint(0, 0)), w->size());
    SetScaleFactor(1);
    return places;
}

// The size a box or a drop-down menu has at a factor.
QSize SizeAt(const QString& what, double factor) {
    SetScaleFactor(factor);
    QSize size;
    if (what == "menu") {
        Harness h;
        h.run(R"({"show": "Form100Trova"})");
        auto* tabella =
            dynamic_cast<MenuItem*>(h.engine.program().nav.find("Form100Trova")->find("mnuTabella"));
        size = tabella->submenu()->sizeHint();
    } else {
        QtDialogs dialogs;
        QTimer::singleShot(0, [&size, what] {
            QWidget* box = QApplication::activeModalWidget();
            // The box, or its first button: a box can grow around buttons that keep their size.
            size = what.startsWith("button") ? box->findChild<QPushButton*>()->size() : box->size();
            box->close();
        });
        if (what.endsWith("input"))
            dialogs.InputBox(QStringLiteral("Scrivi un numero da 20 a 99"), kTitolo, QString());
        else
            dialogs.MsgBox(what.startsWith("button ") ? what.mid(7) : what,
                           what.endsWith("Bravo") ? 0 : vbYesNoQuestion, kTitolo);
    }
    SetScaleFactor(1);
    return size;
}

// Every screen's size at factor 1, window and menu bar included.
const QMap<QString, QSize>& Sizes() {
    static const QMap<QString, QSize> sizes = [] {
        QMap<QString, QSize> all;
        for (const FormEntry& e : FormTable()) {
            Harness h;
            const QString name = QLatin1String(e.name);
            h.run(QStringLiteral(R"({"show": "%1"})").arg(name));
            if (Form* form = h.engine.program().nav.find(name)) all[name] = form->size();
        }
        return all;
    }();
    return sizes;
}

} // namespace

class ScaleTest : public QObject {
    Q_OBJECT
private slots:
    // Every screen of the program fits in 85 % of the display at the factor chosen for it, and the
    // largest fills most of it; a display too small for that keeps the screens at their own size.
    void factorForTheDisplay_data() {
        QTest::addColumn<QSize>("available");
        QTest::newRow("1280x800") << QSize(1280, 770);
        QTest::newRow("1920x1080") << QSize(1920, 1050);
        QTest::newRow("portrait") << QSize(1080, 1890);
        QTest::newRow("3840x2160") << QSize(3840, 2130);
    }
    void factorForTheDisplay() {
        QFETCH(QSize, available);
        const double factor = ChooseScaleFactor(available);
        double filled = 0;
        for (const auto& [name, one] : Sizes().asKeyValueRange()) {
            const double wide = one.width() * factor / available.width();
            const double high = one.height() * factor / available.height();
            QVERIFY2(wide <= 0.85 + 1e-9 && high <= 0.85 + 1e-9, qPrintable(name));
            filled = std::max({filled, wide, high});
        }
        QVERIFY(filled > 0.8);
    }
    void neverBelowItsOwnSize() {
        QCOMPARE(ChooseScaleFactor(QSize(1024, 600)), 1.0);
        QCOMPARE(ChooseScaleFactor(QSize()), 1.0);
    }

    // Geometry, text and the menu bar grow together: nothing is placed apart from the rest.
    void twiceAsLargeAtFactorTwo_data() {
        QTest::addColumn<QString>("screen");
        QTest::newRow("a question screen") << "Form1";
        QTest::newRow("the column screen") << "FormCol1";
        QTest::newRow("the worksheet screen") << "formStampa";
    }
    void twiceAsLargeAtFactorTwo() {
        QFETCH(QString, screen);
        const QMap<QString, QRect> one = Places(screen, 1), two = Places(screen, 2);
        QCOMPARE(two.keys(), one.keys());
        for (const QString& name : one.keys()) {
            const QRect a = one[name], b = two[name];
            // The menu bar's height follows its font, so a control may sit a pixel or two off.
            QVERIFY2(qAbs(b.x() - 2 * a.x()) <= 2 && qAbs(b.y() - 2 * a.y()) <= 3 &&
                         qAbs(b.width() - 2 * a.width()) <= 2 && qAbs(b.height() - 2 * a.height()) <= 2,
                     qPrintable(name));
        }
        SetScaleFactor(2);
        const QFont big = Arial(18);
        SetScaleFactor(1);
        QCOMPARE(big.pointSizeF(), Arial(18).pointSizeF() * 2);
    }

    // Message boxes, input boxes and drop-down menus grow with the screens like everything else.
    void boxesGrowWithTheScreens_data() {
        QTest::addColumn<QString>("what");
        QTest::newRow("message box") << "Bravo";
        QTest::newRow("question with two buttons") << QString::fromUtf8("Vuoi tornare al menù?");
        QTest::newRow("input box") << "input";
        QTest::newRow("the input box's button") << "button input";
        QTest::newRow("the message box's button") << "button Bravo";
        QTest::newRow("the menu Tabella") << "menu";
    }
    void boxesGrowWithTheScreens() {
        QFETCH(QString, what);
        const QSize one = SizeAt(what, 1), two = SizeAt(what, 2);
        const QString seen = QStringLiteral("%1x%2 at 1, %3x%4 at 2")
                                 .arg(one.width())
                                 .arg(one.height())
                                 .arg(two.width())
                                 .arg(two.height());
        QVERIFY2(qAbs(two.width() / (2.0 * one.width()) - 1) < 0.1 &&
                     qAbs(two.height() / (2.0 * one.height()) - 1) < 0.1,
                 qPrintable(seen));
    }

    // F11 fills the display with the screen's own colour and keeps the screen, unchanged, in the middle;
    // F11 again puts it back where it was.
    void f11ShowsTheScreenCentred() {
        Harness h;
        h.run(R"({"show": "Form1"})");
        Form* form = h.engine.program().nav.find("Form1");
        form->move(40, 30);
        const QSize size = form->size();
        const QPoint where = form->pos();
        const QPoint at = form->client()->mapTo(form, QPoint(0, 0));
        form->activateWindow();
        QTest::keyClick(form->focusWidget() ? form->focusWidget() : form, Qt::Key_F11);
        QTRY_VERIFY(form->isFullScreen() && form->width() > size.width()); // the display is 800 wide
        const QPoint centred = form->client()->mapTo(form, QPoint(0, 0));
        QCOMPARE(centred.x() - at.x(), (form->width() - size.width()) / 2);
        QTest::keyClick(form->focusWidget() ? form->focusWidget() : form, Qt::Key_F11);
        QTRY_VERIFY(!form->isFullScreen());
        QCOMPARE(form->size(), size);
        QCOMPARE(form->pos(), where); // back where it stood, not in a corner
    }
};

QTEST_MAIN(ScaleTest)
#include "scale.moc"
