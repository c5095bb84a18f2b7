#include "numbers/words.h"
#include "core/lang.h"
#include "core/numberwords.h"
#include "shell/program.h"

#include <array>

namespace contarello {

namespace {

QString Cifre(int numero, Modulo1&) {
    return Str(numero);
}

// Blanks, signs and letters anywhere in the text don't count: only its digits do.
bool CifreGiuste(const QString& testo, int numero, Modulo1&) {
    return Val(FiltroCifre(testo)) == numero;
}

// One spelling per number, in capitals, with no accent and no blank inside; blanks around the word
// are forgiven. Capitals come from the key filter only, so a word pasted in small letters is wrong.
bool ParolaGiusta(const QString& testo, int numero, Modulo1& g) {
    return Trim(testo) == InParole(numero, g);
}

constexpr std::array<WordsMember, 2> kMembers = {{
    {"FormScri", "Scrivi il numero in cifre", 36, 4335, true,
     [](int n, Modulo1& g) { return InParole(n, g); }, CifreGiuste, nullptr},
    {"FormScri2", "Scrivi il numero in lettere", 18, 8670, false, Cifre, ParolaGiusta, FiltroMaiuscole},
}};

// The word, what to do, then the box in the middle of the screen, clear of the "avanti" arrow.
QuestionLook Aspetto(const WordsMember& m) {
    QuestionLook look{Arial(26.25), Arial(m.fontTesto)};
    look.etichettaNumero = {240, 1260, 8895, 855};
    look.consegna = {240, 2220, 8895, 375};
    look.text1 = {(9495 - m.larghezzaTesto) / 2, 2760, m.larghezzaTesto, m.fontTesto > 24 ? 1095 : 615};
    return look;
}

FrameOptions Opzioni() {
    FrameOptions o;
    o.captions = kMenuLargo;
    return o;
}

} // namespace

FormList WordsForms() {
    return Members<WordsForm>(kMembers);
}

WordsForm::WordsForm(Program& program, const WordsMember& member)
    : QuestionForm(program, Variante::D, 1, Aspetto(member), Opzioni(), {.filtro = member.filtro}),
      member_(member) {
    AggiungiCorniceNumeroMassimo(QStringLiteral("mnuNumeroMassimo"),
                                 QStringLiteral("Numero Massimo          "), mnuStampa);

    Consegna(QString::fromLatin1(member.consegna));
    Label3->setAlignment(Qt::AlignCenter);
    // The limit panel lies over all the rest.
    CorniceNumeroMassimo->raise();
}

void WordsForm::Prepara() {
    if (member_.randomize) app.rnd.Randomize();
}

void WordsForm::NuovaDomanda() {
    CaricaColori();
    g.NumeroEsatto = int16_t(Draw(app.rnd, g.NumeroMassimo, 1));
    ScriviDomanda(member_.domanda(g.NumeroEsatto, g));
}

bool WordsForm::RispostaGiusta() {
    return member_.giusta(Text1->Text(), g.NumeroEsatto, g);
}

} // namespace contarello
