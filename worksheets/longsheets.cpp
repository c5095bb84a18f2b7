#include "worksheets/longsheets.h"
#include "core/lang.h"
#include "core/numberwords.h"
#include "shell/colori.h"
#include "shell/program.h"
#include "worksheets/caselle.h"

namespace contarello {

namespace {

constexpr int kLarghezza = 9570, kAltezza = 7200;
constexpr int kCelle = 8, kPezzi = 9;

// Cells stand in four columns, the first row above the second.
int Colonna(int i) {
    return 120 + 2400 * (i % 4);
}

} // namespace

// ---- LongsSheetForm ----

LongsSheetForm::LongsSheetForm(Program& program, const QString& intestazione, int topTesta, int altezzaTesta)
    : Form(program, kLarghezza, kAltezza) {
    setBackColor(kBianco);
    mnustampa = menu(QStringLiteral("mnustampa"), QStringLiteral("Stampa   "));
    menu(QStringLiteral("mnuPdf"), QStringLiteral("Salva PDF   "))->Click = [this] { SalvaPdf(); };
    mnuesci = menu(QStringLiteral("mnuesci"), QStringLiteral("Esci"));
    // The page goes to the printer as it shows, words typed in the boxes included.
    mnustampa->Click = [this] { PrintForm(); };
    mnuesci->Click = [this] { UnloadMe(); };

    // The heading reads as a line of the page, not as a box: no edge, no scroll bars, no margin.
    Text2 = adopt(new MultiLineTextBox(client()), QStringLiteral("Text2"), 120, topTesta, 9330, altezzaTesta);
    Text2->setFont(Arial(15.75));
    Text2->setFrameStyle(QFrame::NoFrame);
    Text2->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Text2->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Text2->document()->setDocumentMargin(0);
    Text2->setText(intestazione + CRLF);
    // A click lets the adult reword it; the page doesn't open with a caret in it.
    Text2->setFocusPolicy(Qt::ClickFocus);
}

void LongsSheetForm::Cella(int i, Rect f, Rect b, const QFont& font, Qt::Alignment allineamento) {
    Frame* cornice =
        frame(indexed(QStringLiteral("Frame1"), i), QString(), f.left, f.top, f.width, f.height, Arial(8));
    Frame1.set(i, cornice);
    TextBox* box = textBox(indexed(QStringLiteral("Text1"), i), b.left, b.top, b.width, b.height, font);
    box->setAlignment(allineamento);
    Text1.set(i, box);
}

// ---- formStampa1 ----

formStampa1::formStampa1(Program& program)
    : LongsSheetForm(program, QStringLiteral("Disegna decine e unità e scrivi il numero in cifre"), 240,
                     480) {
    for (int i = 0; i < kCelle; ++i) {
        const bool primaRiga = i < 4;
        // The frame is left empty: it is the room where the child draws.
        Cella(i, {Colonna(i), primaRiga ? 1080 : 4080, 2175, 1935},
              {Colonna(i), primaRiga ? 3120 : 6120, 2000, 495}, Arial(9.75),
              Qt::AlignLeft | Qt::AlignVCenter);
    }
}

// Words of 0 to one below the limit; the blank after each is where the digits go.
void formStampa1::Genera8Numeri() {
    QStringList testi;
    for (int i = 0; i < kCelle; ++i) {
        long long x = Draw(app.rnd, g.NumeroMassimo);
        testi << NumeroInParole(x, g) + QStringLiteral(" ___ ");
    }
    ScriviInCaselle(Text1, testi, 9.75);
}

// ---- formStampa4 ----

formStampa4::formStampa4(Program& program)
    : LongsSheetForm(program, QStringLiteral("Scrivi il numero in parola e in cifre"), 0, 360) {
    for (int i = 0; i < kCelle; ++i) {
        const bool primaRiga = i < 4;
        Cella(i, {Colonna(i), primaRiga ? 360 : 3600, 2145, 2415},
              {Colonna(i), primaRiga ? 2880 : 6120, 2175, 495}, Arial(12), Qt::AlignCenter);
        // Longs and units fill their column from the top in some cells and from the bottom in others,
        // so the page doesn't give the number away by its outline.
        const bool dallAlto = i == 0 || i >= 5;
        for (int j = 0; j < kPezzi; ++j) {
            const int n = kPezzi * i + j;
            const int top = dallAlto ? 240 + 240 * j : 2160 - 240 * j;
            Shape* lungo =
                shape(indexed(QStringLiteral("Shape2"), n), Shape::Rectangle, 120, top, 1500, 150, Frame1(i));
            lungo->setFillStyle(Shape::Solid);
            lungo->setFillColor(kRosso);
            Shape2.set(n, lungo);
            // In the first cell the first two units stand the other way round.
            const int topUnita = n == 0 ? 480 : n == 1 ? 240 : top;
            Shape* unita = shape(indexed(QStringLiteral("Shape1"), n), Shape::Square, 1680, topUnita, 150,
                                 150, Frame1(i));
            unita->setFillStyle(Shape::Solid);
            unita->setFillColor(kBlu);
            Shape1.set(n, unita);
        }
    }
}

// Numbers from 1 to the limit, a long for each ten and a unit for each one left; the boxes stay
// empty for the child.
void formStampa4::Genera8Numeri() {
    for (int n = 0; n < kCelle * kPezzi; ++n) {
        Shape1(n)->setVisible(false);
        Shape2(n)->setVisible(false);
    }
    for (int i = 0; i < kCelle; ++i) {
        int x = Draw(app.rnd, g.NumeroMassimo, 1);
        for (int j = 0; x > 9 && j < kPezzi; ++j) {
            Shape2(kPezzi * i + j)->setVisible(true);
            x -= 10;
        }
        for (int j = 0; x > 0 && j < kPezzi; ++j) {
            Shape1(kPezzi * i + j)->setVisible(true);
            x -= 1;
        }
    }
}

FormList LongsSheetForms() {
    return {Screen<formStampa1>("formStampa1"), Screen<formStampa4>("formStampa4")};
}

} // namespace contarello
