#include "graphics/longsunits.h"
#include "core/lang.h"
#include "core/numberwords.h"
#include "shell/pictures.h"
#include "shell/program.h"

#include <array>

namespace contarello {

namespace {

constexpr int kLarghezza = 11520, kAltezza = 7200;
// Rows of the drawing: a bar and a square on each, one under the other.
constexpr int kRighe = 9, kPassoRiga = 630, kLatoQuadretto = 540, kLunghezzaBarra = 4845;

FrameOptions Opzioni(const char* scheda, const FrameLayout& layout) {
    FrameOptions o;
    o.captions = MenuCaptions{"Azzera conteggio        ", "Stampa scheda        ", "Informazioni          "};
    o.scheda = scheda;
    o.limiteA99 = true;
    // The limit panel chooses 99, with a question of its own; the counters then start at 0 and the
    // question the child sees is drawn last.
    o.setUp = SetUp::OnLoad;
    o.layout = layout;
    return o;
}

// Form999x: the counters and the faces in a column of their own at the right, beside the column of
// buttons that builds the number.
FrameLayout AspettoCostruttore() {
    FrameLayout at;
    at.label1 = {9000, 795, 1095, 375};
    at.esatti = {10080, 735, 1095, 495};
    at.label2 = {9000, 1515, 1095, 375};
    at.errati = {10080, 1455, 1095, 495};
    at.facce = {9600, 2400, 855, 750};
    at.avanti = {6120, 5100, 2520, 1215};
    return at;
}

// Form999y and Form999z: right of the drawing, one above the other and centred on one line, the
// counters, the face, the prompt and the box, and "avanti" low.
FrameLayout AspettoLettore() {
    FrameLayout at;
    at.label1 = {6260, 375, 1095, 375};
    at.esatti = {7400, 315, 1095, 495};
    at.label2 = {8780, 375, 1095, 375};
    at.errati = {9920, 315, 1095, 495};
    at.facce = {8213, 1080, 855, 750};
    at.avanti = {7853, 4620, 1575, 1215};
    return at;
}

} // namespace

// ---- LongsUnitsForm ----

LongsUnitsForm::LongsUnitsForm(Program& program, const char* scheda, int left, int top,
                               const FrameLayout& layout)
    : ExerciseForm(program, Variante::B, 0, kLarghezza, kAltezza, Opzioni(scheda, layout)) {
    AggiungiCorniceNumeroMassimo(QStringLiteral("MenuNumeroMassimo"),
                                 QStringLiteral("Scegli il numero massimo        "), mnuStampa);
    for (int i = 0; i < kRighe; ++i) {
        const int y = top + kPassoRiga * i;
        Shape* barra = shape(indexed(QStringLiteral("Decine"), i), Shape::Rectangle, left, y, kLunghezzaBarra,
                             kLatoQuadretto);
        barra->setFillStyle(Shape::Solid);
        barra->setFillColor(kRosso);
        barra->setVisible(false);
        Decine.set(i, barra);
        Shape* quadretto = shape(indexed(QStringLiteral("Unita"), i), Shape::Square,
                                 left + kLunghezzaBarra + 195, y, kLatoQuadretto, kLatoQuadretto);
        quadretto->setFillStyle(Shape::Solid);
        quadretto->setFillColor(kBlu);
        quadretto->setVisible(false);
        Unita.set(i, quadretto);
    }
}

void LongsUnitsForm::NascondiDisegno() {
    for (int i = 0; i < kRighe; ++i) {
        Decine(i)->setVisible(false);
        Unita(i)->setVisible(false);
    }
}

QJsonObject LongsUnitsForm::fields() const {
    return {{"NumeroDecine", NumeroDecine}, {"NumeroUnita", NumeroUnita}};
}

// ---- Form999x ----

Form999x::Form999x(Program& program)
    : LongsUnitsForm(program, "formStampa1", 210, 735, AspettoCostruttore()) {
    EtichettaNumero = label(QStringLiteral("EtichettaNumero"), QString(), 210, 120, 5580, 540, Arial(20.25));
    EtichettaNumero->setAlignment(Qt::AlignCenter);
    EtichettaNumero->setBackColor(kCiano);

    constexpr int x = 6120, largo = 2520;
    BottoneUnita =
        button(QStringLiteral("BottoneUnita"), QStringLiteral("Unità"), x, 735, largo, 735, Arial(14.25));
    BottoneUnita->setBackColor(kBlu);
    BottoneDecine =
        button(QStringLiteral("BottoneDecine"), QStringLiteral("Decine"), x, 1620, largo, 735, Arial(14.25));
    BottoneDecine->setBackColor(kRosso);
    BottoneRicomincia = button(QStringLiteral("BottoneRicomincia"), QStringLiteral("Ricomincia"), x, 2505,
                               largo, 1095, Arial(12));
    BottoneRicomincia->setPicture(pictures::FrecciaCircolare());
    BottoneConferma = button(QStringLiteral("BottoneConferma"), QStringLiteral("Conferma"), x, 3750, largo,
                             1095, Arial(12));
    BottoneConferma->setPicture(pictures::FacciaSorridente());
    RispondeCon(BottoneConferma);

    MenuNumero = menu(QStringLiteral("MenuNumero"), QStringLiteral("Numero in        "), nullptr, mnuStampa);
    MenuParola = menu(QStringLiteral("MenuParola"), QStringLiteral("Parola"), MenuNumero);
    MenuCifre = menu(QStringLiteral("MenuCifre"), QStringLiteral("Cifre"), MenuNumero);
    MenuParola->setChecked(true);

    BottoneDecine->Click = [this] { BottoneDecine_Click(); };
    BottoneUnita->Click = [this] { BottoneUnita_Click(); };
    BottoneRicomincia->Click = [this] { BottoneRicomincia_Click(); };
    BottoneConferma->Click = [this] { BottoneConferma_Click(); };
    // Either item brings a new number; the check mark shows the choice.
    MenuParola->Click = [this] { ScegliCifre(false); };
    MenuCifre->Click = [this] { ScegliCifre(true); };
    CorniceNumeroMassimo->raise();
}

void Form999x::NuovaDomanda() {
    CaricaColori();
    NascondiDisegno();
    g.NumeroEsatto = int16_t(Draw(app.rnd, g.NumeroMassimo, 1));
    NumeroDecine = 0;
    NumeroUnita = 0;
    EtichettaNumero->setCaption(InCifre ? Format(g.NumeroEsatto, QStringLiteral("#,##0"))
                                        : InParole(g.NumeroEsatto, g));
}

void Form999x::ScegliCifre(bool cifre) {
    InCifre = cifre;
    MenuParola->setChecked(!cifre);
    MenuCifre->setChecked(cifre);
    ProssimaDomanda();
}

// Nine of a kind at most: a tenth press changes nothing, and ten squares never turn into a bar.
void Form999x::BottoneDecine_Click() {
    if (NumeroDecine == kRighe) return;
    Decine(NumeroDecine)->setVisible(true);
    ++NumeroDecine;
}

void Form999x::BottoneUnita_Click() {
    if (NumeroUnita == kRighe) return;
    Unita(NumeroUnita)->setVisible(true);
    ++NumeroUnita;
}

// The only way to take shapes off: all of them. The question and the counters stay.
void Form999x::BottoneRicomincia_Click() {
    NascondiDisegno();
    NumeroDecine = 0;
    NumeroUnita = 0;
}

// Every press is one answer; a wrong one leaves the drawing to be mended.
void Form999x::BottoneConferma_Click() {
    Rispondi(NumeroDecine * 10 + NumeroUnita == g.NumeroEsatto);
}

// ---- Form999y, Form999z ----

namespace {

// Val reads the leading number and stops at the first letter: 007, "7 " and 7a are all 7.
bool CifreGiuste(const QString& testo, int numero, Modulo1&) {
    return Val(testo) == numero;
}

// One spelling per number, in capitals, without accent or blank inside; blanks around it are forgiven.
bool ParolaGiusta(const QString& testo, int numero, Modulo1& g) {
    return Trim(testo) == InParole(numero, g);
}

constexpr std::array<LongsReaderMember, 2> kReaders = {{
    {"Form999y", "Scrivi il numero in cifre", 26.25, CifreGiuste, nullptr},
    {"Form999z", "Scrivi il numero in lettere", 12, ParolaGiusta, FiltroMaiuscole},
}};

} // namespace

FormList LongsUnitsForms() {
    return Join({{Screen<Form999x>("Form999x")}, Members<LongsReaderForm>(kReaders)});
}

LongsReaderForm::LongsReaderForm(Program& program, const LongsReaderMember& member)
    : LongsUnitsForm(program, "formStampa4", 105, 315, AspettoLettore()), member_(member) {
    Label3 = label(QStringLiteral("Label3"), QString::fromLatin1(member.consegna), 5880, 2220, 5520, 375,
                   Arial(12));
    Label3->setAlignment(Qt::AlignCenter);
    const bool grande = member.fontTesto > 20;
    // Enter released on a box that isn't empty is one answer; held down, it is released once.
    Text1 = CasellaRisposta(QStringLiteral("Text1"),
                            {grande ? 6840 : 6120, 2700, grande ? 3600 : 5040, grande ? 855 : 495},
                            Arial(member.fontTesto),
                            [this](const QString& testo) { return member_.giusta(testo, g.NumeroEsatto, g); },
                            {.filtro = member.filtro});
    CorniceNumeroMassimo->raise();
}

void LongsReaderForm::NuovaDomanda() {
    CaricaColori();
    Text1->setText(QString());
    NascondiDisegno();
    g.NumeroEsatto = int16_t(Draw(app.rnd, g.NumeroMassimo, 1));
    NumeroDecine = int16_t(g.NumeroEsatto / 10);
    NumeroUnita = int16_t(g.NumeroEsatto - 10 * NumeroDecine);
    for (int i = 0; i < NumeroDecine && i < kRighe; ++i)
        Decine(i)->setVisible(true);
    for (int i = 0; i < NumeroUnita && i < kRighe; ++i)
        Unita(i)->setVisible(true);
}

} // namespace contarello
