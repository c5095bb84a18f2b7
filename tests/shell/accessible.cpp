// What a screen reader hears: the name and role of a control of each family of screens, read back
// through the toolkit's accessibility interface, and the focus moving announced.

#include "shell/form.h"
#include "support/harness.h"

#include <QAccessible>
#include <QTest>

using namespace contarello;
using contarello::test::Harness;

class AccessibleTest : public QObject {
    Q_OBJECT
private slots:
    void names_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("name"); // a * matches any number
        QTest::addColumn<int>("role");
        QTest::newRow("answer box") << "Form1"
                                    << "Text1"
                                    << "risposta" << int(QAccessible::EditableText);
        QTest::newRow("button") << "Form1"
                                << "BottoneAvanti"
                                << "avanti" << int(QAccessible::Button);
        QTest::newRow("a cell of the table") << "Form100a"
                                             << "Numero(47)"
                                             << "47" << int(QAccessible::Button);
        QTest::newRow("a blank cell") << "Form100Trova"
                                      << "Numero(48)"
                                      << "casella" << int(QAccessible::Button);
        QTest::newRow("a digit to place") << "FormCol2"
                                          << "Lu1"
                                          << "*" << int(QAccessible::Button);
        QTest::newRow("where it goes") << "FormCol2"
                                       << "Eu1"
                                       << "unità del primo numero" << int(QAccessible::Cell);
        QTest::newRow("a wire's button") << "Form99a"
                                         << "Bot_da"
                                         << "da" << int(QAccessible::Button);
        QTest::newRow("a bead") << "Form99b"
                                << "pal_u(0)"
                                << "pallina" << int(QAccessible::Graphic);
        QTest::newRow("a number to order") << "FormOrd"
                                           << "ComandoNumero(0)"
                                           << "*" << int(QAccessible::Button);
        QTest::newRow("an option") << "FormMenu"
                                   << "Option1(0)"
                                   << "prosegue automaticamente  negli esercizi"
                                   << int(QAccessible::RadioButton);
        QTest::newRow("a plain caption") << "Form1"
                                         << "Label1"
                                         << "Esatti" << int(QAccessible::StaticText);
    }
    void names() {
        QFETCH(QString, form);
        QFETCH(QString, control);
        QFETCH(QString, name);
        QFETCH(int, role);
        Harness h;
        h.rnd({0.0, 0.47, 0.5, 0.5, 0.5, 0.5, 0.5});
        h.run(QStringLiteral(R"({"show": "%1"})").arg(form));
        Control* c = h.engine.program().nav.find(form)->find(control);
        QVERIFY(c && c->widget());
        QAccessibleInterface* a = QAccessible::queryAccessibleInterface(c->widget());
        QVERIFY(a);
        const QString heard = a->text(QAccessible::Name);
        if (name == "*")
            QVERIFY2(QRegularExpression("^\\d+$").match(heard).hasMatch(), qPrintable(heard));
        else
            QCOMPARE(heard, name);
        QCOMPARE(int(a->role()), role);
    }

    // Where the focus went after a key, as a screen reader asks the window for it.
    void focusFollowed() {
        Harness h;
        h.run(R"({"show": "Form99a"})");
        h.run(R"({"press": "Tab"})");
        QAccessibleInterface* window = QAccessible::queryAccessibleInterface(h.engine.program().nav.active());
        QAccessibleInterface* focus = window ? window->focusChild() : nullptr;
        QVERIFY(focus);
        QCOMPARE(focus->object()->objectName(), h.dump().value("focus").toString());
        QVERIFY(!focus->text(QAccessible::Name).isEmpty());
    }
};

QTEST_MAIN(AccessibleTest)
#include "accessible.moc"
