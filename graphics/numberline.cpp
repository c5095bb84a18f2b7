#include "graphics/numberline.h"
#include "core/lang.h"
#include "shell/program.h"

#include <QFontMetrics>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace contarello {

namespace {

// The axis, and the ticks on it: tick i stands at kSinistra + kPasso * i.
constexpr int kSinistra = 525, kPasso = 420, kAsse = 3885, kCimaTacca = 3570;
// Wide enough that a red tick stands out from the black ones on the violet ground.
constexpr int kSpessore = 4;
// After this many draws on ticks already red, the next free tick is taken: a line has at most
// 8 red ticks of 21, so with real draws this never comes, but a stuck generator can't stop the line.
constexpr int kTentativi = 64;

constexpr std::array<NumberLineMember, 2> kMembers = {{
    {"FormGradi20", true, 3360, 18, 2835, 12, 3255},
    {"FormGradi20bis", false, kCimaTacca, 15.75, 3150, 15.75, 3255},
}};

bool Decina(int tacca) {
    return tacca % 10 == 0;
}

FrameOptions Opzioni() {
    FrameOptions o;
    o.captions = kMenuLargo;
    o.stampaScheda = false;
    // Everything is set up at each activation: coming back to the screen starts the counts afresh.
    o.setUp = SetUp::OnActivate;
    // The faces stand above the line, between the two counters.
    o.layout.facce = {3255, 315, 855, 750};
    o.layout.label1 = {360, 480, 1095, 375};
    o.layout.esatti = {1500, 420, 1095, 495};
    o.layout.label2 = {4800, 480, 1095, 375};
    o.layout.errati = {5940, 420, 1095, 495};
    return o;
}

} // namespace

FormList NumberLineForms() {
    return Members<NumberLineForm>(kMembers);
}

NumberLineForm::NumberLineForm(Program& program, const NumberLineMember& member)
    : ExerciseForm(program, Variante::A, 0, 9495, 6510, Opzioni()), member_(member) {
    setBackColor(kViola);
    Line1 = line(QStringLiteral("Line1"), kSinistra, kAsse, kSinistra + kPasso * (kTacche - 1), kAsse, kNero,
                 kSpessore);
    for (int i = 0; i < kTacche; ++i) {
        const int x = kSinistra + kPasso * i;
        const bool alta = member.decineFisse && Decina(i);
        Line2.set(i, line(indexed(QStringLiteral("Line2"), i), x, alta ? member.cimaDecine : kCimaTacca, x,
                          kAsse, kNero, kSpessore));
        const bool decina = Decina(i);
        Label* l = label(indexed(QStringLiteral("Label3"), i), QString(), x,
                         decina ? member.altoDecine : member.altoAltre, kPasso, 300,
                         Arial(decina ? member.puntiDecine : member.puntiAltre));
        l->setAutoSize(true);
        l->setVisible(false);
        // With the voice on, a number on the line says itself when touched: it answers nothing.
        if (app.voce) l->Click = [this, l] { DiNumero(l->Caption()); };
        Label3.set(i, l);
    }
    // Enter alone answers, an empty box too: its number is the tick's own, not a count from the left.
    // A wrong answer leaves the red tick and the text, for the child to put right.
    Text1 = CasellaRisposta(
        QStringLiteral("Text1"), {3255, 4620, 2955, 1065}, Arial(24),
        [this](const QString& testo) { return Val(testo) == double(NumeroIniziale + TaccaScelta); },
        {.ancheVuota = true});
}

void NumberLineForm::NuovaDomanda() {
    NumeroRisposte = 0;
    Text1->setText(QString());
    for (int i = 0; i < kTacche; ++i) {
        Line2(i)->setBorderColor(kNero);
        Segnate[size_t(i)] = false;
        Label3(i)->setVisible(false);
    }
    if (member_.decineFisse) {
        // From 10 to 70, whatever the limit: the highest number on a line is 90.
        NumeroIniziale = int16_t((Draw(app.rnd, 7) + 1) * 10);
        for (int i = 0; i < kTacche; i += 10) {
            Segna(i);
            ScriviNumero(i);
        }
    } else {
        // From 0 to the limit less 21, so the line ends below the limit.
        NumeroIniziale = int16_t(Draw(app.rnd, g.NumeroMassimo - 20));
        TaccaScelta = int16_t(std::clamp(Draw(app.rnd, kTacche), 0, kTacche - 1));
        Segna(TaccaScelta);
        ScriviNumero(TaccaScelta);
    }
    Text1->setText(QString());
    ColoraLinea();
}

void NumberLineForm::Segna(int tacca) {
    Line2(tacca)->setBorderColor(kRosso);
    Segnate[size_t(tacca)] = true;
}

void NumberLineForm::ColoraLinea() {
    int tacca = std::clamp(Draw(app.rnd, kTacche), 0, kTacche - 1);
    for (int tentativi = 1; Segnate[size_t(tacca)] && tentativi < kTentativi; ++tentativi)
        tacca = std::clamp(Draw(app.rnd, kTacche), 0, kTacche - 1);
    for (int passo = 0; Segnate[size_t(tacca)] && passo < kTacche; ++passo)
        tacca = (tacca + 1) % kTacche;
    TaccaScelta = int16_t(tacca);
    Segna(TaccaScelta);
    Text1->setText(QString());
    if (Text1->isEnabled()) Text1->SetFocus();
}

void NumberLineForm::ScriviNumero(int tacca) {
    Label* l = Label3(tacca);
    const QString numero = Str(NumeroIniziale + tacca);
    l->setCaption(numero);
    // The leading blank of the number is not counted: the digits stand over the tick.
    const QFontMetrics fm(l->font());
    const QString cifre = Trim(numero);
    const int blank = fm.horizontalAdvance(numero) - fm.horizontalAdvance(cifre);
    const int centro = tw(kSinistra + kPasso * tacca);
    l->move(centro - blank - fm.horizontalAdvance(cifre) / 2, l->y());
    l->setVisible(true);
}

QString NumberLineForm::TestoDomanda() const {
    QStringList numeri;
    for (int i = 0; i < kTacche; ++i)
        if (!Label3(i)->isHidden()) numeri << Label3(i)->Caption();
    return numeri.join(QStringLiteral(", "));
}

bool NumberLineForm::ContinuaDomanda() {
    if (++NumeroRisposte == kRisposteLinea) return false;
    ColoraLinea();
    return true;
}

QJsonObject NumberLineForm::fields() const {
    return {{QStringLiteral("NumeroIniziale"), NumeroIniziale},
            {QStringLiteral("TaccaScelta"), TaccaScelta},
            {QStringLiteral("NumeroRisposte"), NumeroRisposte},
            // What the box must give; the shared NumeroEsatto is not this screen's.
            {QStringLiteral("NumeroEsatto"), NumeroIniziale + TaccaScelta}};
}

} // namespace contarello
