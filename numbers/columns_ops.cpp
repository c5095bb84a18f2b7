// The two operations of the column screens: how each draws its numbers, and the step each adds,
// the carry moved up to the tens or a ten changed down into units.

#include "core/lang.h"
#include "numbers/columns.h"
#include "shell/program.h"

namespace contarello {

namespace {

// Tens and units of a number from 0 up.
void Cifre(int n, int16_t& decine, int16_t& unita) {
    decine = int16_t(Int(n / 10.0));
    unita = int16_t(n - 10 * decine);
}

// A sum from 20 to the limit less one, and a first term from 1 to the whole of it.
std::pair<int, int> SommaLibera(Random& rnd, int numeroMassimo) {
    const int s = Draw(rnd, numeroMassimo - 20, 20);
    const int p = int(Int(s * rnd.Rnd())) + 1;
    return {s, p};
}

} // namespace

// The sums of the units and of the tens are drawn first and split afterwards, so that neither
// passes 9 and nothing is ever carried.
std::optional<Colonna> TentaCol1(Random& rnd, int) {
    Colonna c;
    c.UR = int16_t(Draw(rnd, 10));
    c.U1 = int16_t(Draw(rnd, c.UR));
    c.U2 = int16_t(c.UR - c.U1);
    c.DaR = int16_t(Draw(rnd, 10));
    c.Da1 = int16_t(Draw(rnd, c.DaR));
    c.Da2 = int16_t(c.DaR - c.Da1);
    if (10 * c.Da1 + c.U1 == 0 || 10 * c.Da2 + c.U2 == 0) return std::nullopt;
    return c;
}

std::optional<Colonna> TentaCol2(Random& rnd, int numeroMassimo) {
    const auto [s, p] = SommaLibera(rnd, numeroMassimo);
    const int q = s - p;
    Colonna c;
    Cifre(p, c.Da1, c.U1);
    Cifre(q, c.Da2, c.U2);
    c.UR = int16_t(c.U1 + c.U2);
    c.DaR = int16_t(c.Da1 + c.Da2);
    if (q == 0) return std::nullopt;
    return c;
}

// Each digit of the second number is drawn below that of the first, so no ten is ever changed.
std::optional<Colonna> TentaCol3(Random& rnd, int) {
    Colonna c;
    c.U1 = int16_t(Draw(rnd, 10));
    c.U2 = int16_t(Draw(rnd, c.U1));
    c.UR = int16_t(c.U1 - c.U2);
    c.Da1 = int16_t(Draw(rnd, 10));
    c.Da2 = int16_t(Draw(rnd, c.Da1));
    c.DaR = int16_t(c.Da1 - c.Da2);
    if (10 * c.Da2 + c.U2 == 0 || 10 * c.DaR + c.UR == 0) return std::nullopt;
    return c;
}

std::optional<Colonna> TentaCol4(Random& rnd, int numeroMassimo) {
    const auto [s, p] = SommaLibera(rnd, numeroMassimo);
    const int q = s - p;
    Colonna c;
    Cifre(p, c.Da2, c.U2);
    Cifre(q, c.DaR, c.UR);
    Cifre(s, c.Da1, c.U1);
    if (q == 0) return std::nullopt;
    return c;
}

namespace {

constexpr const char* kPrimoAddendo = "Incolonna il primo addendo trascinando le cifre con il mouse.";
constexpr const char* kSecondoAddendo = "Incolonna il secondo addendo trascinando le cifre con il mouse.";
constexpr const char* kPrimoNumero = "Incolonna il primo numero trascinando le cifre con il mouse.";
constexpr const char* kSecondoNumero = "Incolonna il secondo numero trascinando le cifre con il mouse.";

constexpr ColumnMember kAddizioni[] = {
    {"FormCol1", 16, TentaCol1, false, 3120, "Informazioni          ", kPrimoAddendo, kSecondoAddendo},
    {"FormCol2", 15, TentaCol2, true, 3570, "Informazioni           ", kPrimoAddendo, kSecondoAddendo},
};
constexpr ColumnMember kSottrazioni[] = {
    {"FormCol3", 18, TentaCol3, false, 3120, "Informazioni          ", kPrimoNumero, kSecondoNumero},
    {"FormCol4", 17, TentaCol4, true, 3120, "Informazioni          ", kPrimoNumero, kSecondoNumero},
};

} // namespace

FormList ColumnForms() {
    return Join({Members<FormAddizione>(kAddizioni), Members<FormSottrazione>(kSottrazioni)});
}

// ---- Addition: the carry goes up from beside the units to above the tens ----

FormAddizione::FormAddizione(Program& program, const ColumnMember& member)
    : ColumnForm(program, member, Variante::B) {
    Label6->setCaption(QStringLiteral("+"));
    line(QStringLiteral("Line2"), 6480, 2520, 6960, 2520, Qt::black, 3);
    line(QStringLiteral("Line3"), 6720, 2280, 6720, 2760, Qt::black, 3);
    // The 1 of the carry sits where the tens digit of the units' sum would stand, and goes above
    // the tens, clear of their head.
    if (member.cambio) CreaCambio(5160, 3840, 4320, 780);
}

void FormAddizione::Prepara() {
    app.rnd.Randomize();
}

QString FormAddizione::TestoUnita() const {
    return QStringLiteral("Somma le unità. Scrivine il numero e premi invio.");
}
QString FormAddizione::TestoDecine() const {
    return QStringLiteral("Somma le decine. Scrivine il numero e premi invio.");
}

void FormAddizione::SecondoCompleto() {
    ApriUnita();
}

void FormAddizione::UnitaEsatte() {
    Eur->setEnabled(false);
    if (UR <= 9 || !CambioUp) {
        ApriDecine();
        return;
    }
    // Ten units or more: the box keeps the units digit and the 1 waits beside it to be carried.
    CambioUp->setVisible(true);
    CambioUa->setVisible(true);
    CambioUp->setCaption(QStringLiteral("1"));
    CambioUa->setCaption(QString());
    UR = int16_t(UR - 10);
    Eur->setText(Str(UR));
    Label3->setCaption(QStringLiteral("Le unità sono almeno 10. Trascina il cambio sulle decine."));
    Annuncia();
}

// Only the 1 itself is carried, and only once.
void FormAddizione::CambioUa_DragDrop(Control* source) {
    auto* dragged = dynamic_cast<Label*>(source);
    if (!dragged || CambioUp->Caption() != QLatin1String("1") || dragged->Caption() != CambioUp->Caption())
        return;
    ApriDecine();
    DaR = int16_t(DaR + 1);
    CambioUa->setCaption(CambioUp->Caption());
    CambioUp->setCaption(QString());
}

// ---- Subtraction: a ten is changed down into the units of the first number ----

FormSottrazione::FormSottrazione(Program& program, const ColumnMember& member)
    : ColumnForm(program, member, Variante::B) {
    setBackColor(kCiano);
    Label6->setCaption(QStringLiteral("-"));
    line(QStringLiteral("Line2"), 6360, 2160, 7080, 2160, Qt::black, 3);
    // The empty violet label waits above the tens, clear of their head, and goes just left of the
    // units of the first number.
    if (member.cambio) CreaCambio(4440, 780, 5160, 1800);
}

QString FormSottrazione::TestoUnita() const {
    return QStringLiteral("Sottrai le unità. Scrivi il risultato e premi invio.");
}
QString FormSottrazione::TestoDecine() const {
    return QStringLiteral("Sottrai le decine. Scrivi il risultato e premi invio.");
}

void FormSottrazione::SecondoCompleto() {
    if (CambioUp)
        ControllaSeCambio();
    else
        ApriUnita();
}

void FormSottrazione::ControllaSeCambio() {
    if (U1 >= U2) {
        ApriUnita();
        return;
    }
    Eur->setEnabled(false);
    CambioUp->setVisible(true);
    CambioUa->setVisible(true);
    CambioUp->setCaption(QString());
    CambioUa->setCaption(QString());
    Label3->setCaption(QStringLiteral(
        "Le unità non ti bastano. Cambia una decina in unità trascinando il rettangolino viola."));
    Annuncia();
}

void FormSottrazione::UnitaEsatte() {
    Eur->setEnabled(false);
    ApriDecine();
}

// The expected digits come from the true difference and stay; a further change only asks for the
// units again.
void FormSottrazione::CambioUa_DragDrop(Control* source) {
    auto* dragged = dynamic_cast<Label*>(source);
    if (!dragged || dragged->Caption() != CambioUp->Caption()) return;
    Eur->setEnabled(true);
    Eur->setText(QString());
    Eur->SetFocus();
    Label3->setCaption(TestoUnita());
    Annuncia();
    U1 = int16_t(U1 + 10);
    CambioUa->setCaption(QStringLiteral("1"));
    CambioUp->setCaption(QStringLiteral("-1"));
}

} // namespace contarello
