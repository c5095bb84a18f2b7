#include "worksheets/abaco.h"
#include "core/lang.h"
#include "core/numberwords.h"
#include "shell/colori.h"
#include "shell/program.h"
#include "worksheets/caselle.h"

#include <QJsonArray>
#include <QTextDocument>

namespace contarello {

namespace {

// The page is 7200 twips high under its menu bar.
constexpr int kLargo = 9570, kAlto = 7200 + 360;

} // namespace

SchedaAbaco::SchedaAbaco(Program& program, const QString& titolo, int text2Height, const Celle& celle)
    : Form(program, kLargo, kAlto), textPoints_(celle.textPoints) {
    setBackColor(kBianco);
    mnustampa = menu(QStringLiteral("mnustampa"), QStringLiteral("Stampa   "));
    menu(QStringLiteral("mnuPdf"), QStringLiteral("Salva PDF   "))->Click = [this] { SalvaPdf(); };
    mnuesci = menu(QStringLiteral("mnuesci"), QStringLiteral("Esci"));
    // The page as it shows, with whatever has been written into the boxes.
    mnustampa->Click = [this] { PrintForm(); };
    mnuesci->Click = [this] { UnloadMe(); };

    // The heading, on one line of a box the adult may still write in; no scroll bars on the page.
    Text2 = adopt(new MultiLineTextBox(client()), QStringLiteral("Text2"), 60, 60, kLargo - 120, text2Height);
    Text2->setFont(Arial(15.75));
    Text2->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Text2->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Text2->setFrameStyle(QFrame::NoFrame);
    Text2->document()->setDocumentMargin(2);
    Text2->setText(titolo + CRLF);
    Text2->setFocusPolicy(Qt::ClickFocus); // the page opens on the first box, not on its heading

    for (int i = 0; i < 8; ++i) {
        const int c = i % 4, riga = i / 4;
        Frame1.set(i, frame(indexed(QStringLiteral("Frame1"), i), QString(), celle.frameLeft[c],
                            celle.frameTop[i], celle.frameWidth, celle.frameHeight, Arial(6)));
        TextBox* t = textBox(indexed(QStringLiteral("Text1"), i), 120 + 2400 * c, celle.textTop[riga],
                             celle.textWidth, 495, Arial(celle.textPoints));
        t->setTextMargins(0, 0, 0, 0);
        if (celle.centrato) t->setAlignment(Qt::AlignCenter);
        Text1.set(i, t);
    }
}

QJsonObject SchedaAbaco::fields() const {
    QJsonArray numeri;
    for (int n : numeri_)
        numeri.append(n);
    return {{"numeri", numeri}};
}

int SchedaAbaco::Disegna() {
    return Draw(app.rnd, g.NumeroMassimo, 1);
}

void SchedaAbaco::Scrivi(const QString (&testi)[8]) {
    ScriviInCaselle(Text1, QStringList(std::begin(testi), std::end(testi)), textPoints_);
}

// ---- formSt99a ----

namespace {

const SchedaAbaco::Celle kCelle99a{{120, 2400, 4800, 7200},
                                   {720, 720, 720, 720, 4080, 4080, 4080, 4080},
                                   2055,
                                   2175,
                                   {3120, 6480},
                                   2000,
                                   9.75,
                                   false};

} // namespace

formSt99a::formSt99a(Program& program)
    : SchedaAbaco(program, QStringLiteral("Metti le palline sull'abaco e scrivi il numero in cifra"), 615,
                  kCelle99a) {
    for (int i = 0; i < 8; ++i) {
        Frame* f = Frame1(i);
        Line1.set(2 * i, line(indexed(QStringLiteral("Line1"), 2 * i), 600, 1800, 600, 240, Qt::black, 2, f));
        Line1.set(2 * i + 1,
                  line(indexed(QStringLiteral("Line1"), 2 * i + 1), 1320, 1800, 1320, 240, Qt::black, 2, f));
        Label1.set(i, label(indexed(QStringLiteral("Label1"), i), QStringLiteral("     da         u"), 120,
                            1800, 1695, 255, Arial(11.25), f));
    }
}

void formSt99a::Genera8Numeri() {
    QString testi[8];
    for (int i = 0; i < 8; ++i) {
        numeri_[i] = Disegna();
        testi[i] = InParole(numeri_[i], g) + QStringLiteral(" ___ ");
    }
    Scrivi(testi);
}

// ---- formSt99b ----

namespace {

// The last cell stands a little lower than the other three of its row.
const SchedaAbaco::Celle kCelle99b{{120, 2520, 4920, 7320},
                                   {600, 600, 600, 600, 3840, 3840, 3840, 3960},
                                   2175,
                                   2175,
                                   {2880, 6120},
                                   2175,
                                   12,
                                   true};

// A bead: a solid round bead in the middle of its small box.
Shape* Pallina(Shape* s, QColor colore) {
    s->setBackStyle(Shape::Opaque);
    s->setBackColor(colore);
    s->setBorderColor(colore.darker(170));
    s->setVisible(false);
    return s;
}

} // namespace

formSt99b::formSt99b(Program& program)
    : SchedaAbaco(program, QStringLiteral("Scrivi il numero in parola e in cifre"), 495, kCelle99b) {
    for (int i = 0; i < 8; ++i) {
        Frame* f = Frame1(i);
        Line1.set(i, line(indexed(QStringLiteral("Line1"), i), 600, 1800, 600, 360, Qt::black, 2, f));
        Line2.set(i, line(indexed(QStringLiteral("Line2"), i), 1440, 1800, 1440, 360, Qt::black, 2, f));
        Label1.set(i, label(indexed(QStringLiteral("Label1"), i), QStringLiteral("     da          u"), 120,
                            1800, 1815, 255, Arial(12), f));
        for (int j = 0; j < 9; ++j) {
            const int k = 9 * i + j, top = 1680 - 120 * j;
            Shape1.set(
                k, Pallina(shape(indexed(QStringLiteral("Shape1"), k), Shape::Circle, 480, top, 255, 135, f),
                           kRosso));
            Shape2.set(
                k, Pallina(shape(indexed(QStringLiteral("Shape2"), k), Shape::Circle, 1320, top, 255, 135, f),
                           kBlu));
        }
    }
}

void formSt99b::Genera8Numeri() {
    for (int i = 0; i < 8; ++i) {
        Text1(i)->setText(QString());
        for (int j = 0; j < 9; ++j) {
            Shape1(9 * i + j)->setVisible(false);
            Shape2(9 * i + j)->setVisible(false);
        }
    }
    // Tens first, then the units left over, each from the bottom of its wire; a wire holds nine.
    for (int i = 0; i < 8; ++i) {
        int x = numeri_[i] = Disegna();
        for (int j = 0; x > 9 && j < 9; ++j, x -= 10)
            Shape1(9 * i + j)->setVisible(true);
        for (int j = 0; x > 0 && j < 9; ++j, --x)
            Shape2(9 * i + j)->setVisible(true);
    }
}

FormList AbacoSheetForms() {
    return {Screen<formSt99a>("formSt99a"), Screen<formSt99b>("formSt99b")};
}

} // namespace contarello
