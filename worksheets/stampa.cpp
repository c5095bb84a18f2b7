#include "worksheets/stampa.h"
#include "shell/colori.h"
#include "shell/pictures.h"
#include "shell/printout.h"
#include "shell/program.h"
#include "worksheets/generators/generators.h"

#include <array>

namespace contarello {

namespace {

constexpr std::array<int16_t, 6> kRighe = {3, 5, 10, 15, 20, 25};
constexpr std::array<int16_t, 3> kGrandezze = {10, 12, 14};
// Each size option is captioned in the size it stands for, so the adult sees what "grande" means.
constexpr std::array<double, 3> kGrandezzeDidascalia = {9.75, 12, 18};
const std::array<QString, 3> kCaratteri = {QStringLiteral("piccolo"), QStringLiteral("medio"),
                                           QStringLiteral("grande")};

MultiLineTextBox* Pagina(QWidget* parent) {
    auto* box = new MultiLineTextBox(parent);
    box->setFont(Arial(12, false));
    box->MaxLength = 64000;
    return box;
}

} // namespace

formStampa::formStampa(Program& program) : Form(program, 9480, 6795) {
    setBackColor(kGiallo);

    // Made first, so the sheet is first in the tab order: the adult may correct it by hand.
    txtCD = adopt(Pagina(client()), QStringLiteral("txtCD"), 75, 165, 6090, 6630);
    TextCor = adopt(Pagina(client()), QStringLiteral("TextCor"), 120, 3240, 6090, 6630);
    TextCor->setVisible(false);
    // The sorting aid of the ordering worksheet; never seen.
    List1 = adopt(new ListBox(client(), true), QStringLiteral("List1"), 7140, 1050, 1575, 2430);
    List1->setVisible(false);

    const QFont titolo = SansSerif(9.75, true);
    const QFont scelta = SansSerif(12, true);
    Frame1 = frame(QStringLiteral("Frame1"), QStringLiteral("Righe"), 6360, 120, 3015, 1215, titolo);
    Frame2 = frame(QStringLiteral("Frame2"), QStringLiteral("Colonne"), 6360, 1440, 3015, 1215, titolo);
    Frame3 = frame(QStringLiteral("Frame3"), QStringLiteral("Carattere"), 6360, 2760, 3015, 1215, titolo);

    // Six choices in two rows of three; no choice is marked until the adult makes one.
    for (int i = 0; i < 6; ++i) {
        const int left = 120 + (i % 3) * 960, top = 300 + (i / 3) * 420;
        auto* r = option(indexed(QStringLiteral("OptionRighe"), i), QString::number(kRighe[size_t(i)]), left,
                         top, 900, 375, scelta, Frame1);
        r->Click = [this, i] {
            NumeroRighe = kRighe[size_t(i)];
            NuovaScheda();
        };
        OptionRighe.set(i, r);
        auto* c = option(indexed(QStringLiteral("OptionColonne"), i), QString::number(i + 1), left, top, 900,
                         375, scelta, Frame2);
        c->Click = [this, i] {
            NumeroColonne = int16_t(i + 1);
            NuovaScheda();
        };
        OptionColonne.set(i, c);
    }
    // The size changes the printout and the box, never the numbers on the sheet.
    const std::array<QRect, 3> posti = {QRect(120, 300, 1335, 375), QRect(1500, 300, 1395, 375),
                                        QRect(120, 690, 2775, 480)};
    for (int i = 0; i < 3; ++i) {
        const QRect& p = posti[size_t(i)];
        auto* o = option(indexed(QStringLiteral("OptionCarattere"), i), kCaratteri[size_t(i)], p.x(), p.y(),
                         p.width(), p.height(), SansSerif(kGrandezzeDidascalia[size_t(i)]), Frame3);
        o->Click = [this, i] {
            GrandezzaCarattere = kGrandezze[size_t(i)];
            txtCD->setFontSize(GrandezzaCarattere);
        };
        OptionCarattere.set(i, o);
    }
    OptionCarattere(1)->setChecked(true);

    const QFont bottoni = SansSerif(8.25);
    btnCD = button(QStringLiteral("btnCD"), QStringLiteral("Stampa scheda"), 6480, 4440, 1335, 855, bottoni);
    btnCD->setPicture(pictures::Stampante());
    btnCD->Click = [this] { Stampa(Foglio(), NomeDocumento(QStringLiteral("scheda"))); };
    Command1 = button(QStringLiteral("Command1"), QStringLiteral("Stampa correzione"), 7920, 4440, 1335, 855,
                      bottoni);
    Command1->setPicture(pictures::Stampante());
    // The correction knows nothing of what was corrected by hand on the sheet.
    Command1->Click = [this] { Stampa(Correzione(), NomeDocumento(QStringLiteral("correzione"))); };
    // In the room left between the size frame and the print buttons.
    btnPDF = button(QStringLiteral("btnPDF"), QStringLiteral("Salva PDF"), 6480, 4020, 2775, 375, bottoni);
    btnPDF->Click = [this] {
        contarello::SalvaPdf(app, NomeDocumento(QStringLiteral("scheda")), {Foglio(), Correzione()});
    };
    Command2 =
        button(QStringLiteral("Command2"), QStringLiteral("Nuova scheda"), 6510, 5565, 1335, 855, bottoni);
    Command2->setPicture(pictures::FoglioNuovo());
    Command2->Click = [this] { NuovaScheda(); };
    BottoneEsci =
        button(QStringLiteral("BottoneEsci"), QStringLiteral("Esci"), 7980, 5565, 1215, 855, SansSerif(13.5));
    BottoneEsci->setPicture(pictures::Porta());
    // The exercise behind becomes active again.
    BottoneEsci->Click = [this] { UnloadMe(); };
}

// Every time the screen comes to the front, a new sheet in the usual size, whatever the option
// buttons still show from the last time.
void formStampa::Activate() {
    NumeroRighe = 5;
    NumeroColonne = 2;
    GrandezzaCarattere = 12;
    NuovaScheda();
}

void formStampa::NuovaScheda() {
    txtCD->setText(QString());
    TextCor->setText(QString());
    SchedaInput in;
    in.NumeroRighe = NumeroRighe;
    in.NumeroColonne = NumeroColonne;
    // The ordering worksheet asks for rows as long, and in the order, that its screen asks for.
    in.ordRowLength = g.OrdinaRiga;
    in.ordTask = g.OrdinaConsegna;
    const Scheda scheda = FaiScheda(g.NumeroScheda, in, g, app.rnd);
    txtCD->setText(scheda.txtCD);
    TextCor->setText(scheda.TextCor);
}

TestoStampato formStampa::Foglio() const {
    return {QStringLiteral("MS Sans Serif"), double(GrandezzaCarattere), AndaACapo(txtCD->Text(), 100)};
}

TestoStampato formStampa::Correzione() const {
    return {QStringLiteral("MS Sans Serif"), double(GrandezzaCarattere), AndaACapo(TextCor->Text(), 90)};
}

QString formStampa::NomeDocumento(const QString& cosa) const {
    return QStringLiteral("Contarello - %1 %2").arg(cosa).arg(g.NumeroScheda);
}

void formStampa::Stampa(const TestoStampato& documento, const QString& nome) {
    app.printer.setDocName(nome);
    app.printer.setFontName(documento.fontName);
    app.printer.setFontSize(documento.fontSize);
    app.printer.print(documento.text);
    app.printer.endDoc();
}

QJsonObject formStampa::fields() const {
    return {{QStringLiteral("NumeroRighe"), NumeroRighe},
            {QStringLiteral("NumeroColonne"), NumeroColonne},
            {QStringLiteral("GrandezzaCarattere"), GrandezzaCarattere}};
}

FormList StampaForms() {
    return {Screen<formStampa>("formStampa")};
}

} // namespace contarello
