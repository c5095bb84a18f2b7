#include "numbers/comparison.h"
#include "core/lang.h"
#include "shell/program.h"

namespace contarello {

// ---- FormMM ----

namespace {
FrameOptions MMOptions() {
    FrameOptions o;
    o.setUp = SetUp::OnLoad;
    return o;
}
} // namespace

FormMM::FormMM(Program& program) : ExerciseForm(program, Variante::D, 3, 9495, 6510, MMOptions()) {
    // The two numbers stand on white, whatever colour the screen takes, so they always read clearly.
    for (int i : {0, 1}) {
        auto* n = label(indexed(QStringLiteral("EtNumero"), i), QString(), i == 0 ? 600 : 6015, 1500, 2880,
                        1095, Arial(36));
        n->setAlignment(Qt::AlignCenter);
        QPalette p = n->palette();
        p.setColor(QPalette::Window, p.color(QPalette::Base));
        n->setPalette(p);
        n->setAutoFillBackground(true);
        EtNumero.set(i, n);
    }
    Label3 = label(QStringLiteral("Label3"), QString(), 3600, 1200, 2295, 1695, Arial(72));
    Label3->setAlignment(Qt::AlignCenter);
    Label3->setVisible(false);

    const char* simboli[] = {">", "<", "="};
    for (int i = 0; i < 3; ++i) {
        auto* b = button(indexed(QStringLiteral("Comando"), i), QLatin1String(simboli[i]), 600 + i * 2160,
                         3480, 1815, 1815, Arial(72));
        b->Click = [this, i] { Comando_Click(i); };
        RispondeCon(b);
        Comando.set(i, b);
    }
}

void FormMM::NuovaDomanda() {
    PrimoNumero = int16_t(Draw(app.rnd, g.NumeroMassimo, 1));
    SecondoNumero = int16_t(Draw(app.rnd, g.NumeroMassimo, 1));
    CaricaColori();
    if (PrimoNumero > SecondoNumero)
        SimboloEsatto = 0;
    else if (PrimoNumero < SecondoNumero)
        SimboloEsatto = 1;
    else
        SimboloEsatto = 2;
    EtNumero(0)->setCaption(Format(PrimoNumero, QStringLiteral("###,###,##0")));
    EtNumero(1)->setCaption(Format(SecondoNumero, QStringLiteral("###,###,##0")));
}

QString FormMM::TestoDomanda() const {
    const QString tra = Label3->isHidden() ? QStringLiteral(",") : QStringLiteral(" ") + Label3->Caption();
    return EtNumero(0)->Caption() + tra + QStringLiteral(" ") + EtNumero(1)->Caption();
}

// A wrong symbol leaves the buttons enabled: the child just tries another.
void FormMM::Comando_Click(int index) {
    Rispondi(index == SimboloEsatto);
}

// The right symbol stands between the two numbers while the buttons wait.
void FormMM::InAttesa() {
    Label3->setCaption(Comando(SimboloEsatto)->Caption());
    Label3->setVisible(true);
}

QJsonObject FormMM::fields() const {
    return {{"PrimoNumero", PrimoNumero}, {"SecondoNumero", SecondoNumero}, {"SimboloEsatto", SimboloEsatto}};
}

// ---- FormSimb ----

namespace {

QuestionLook SimbLook() {
    QuestionLook look;
    look.numero = Arial(26.25);
    look.testo = Arial(36);
    return look;
}

FrameOptions SimbOptions() {
    FrameOptions o;
    o.stampa = "mnustampa";
    return o;
}

} // namespace

FormSimb::FormSimb(Program& program) : QuestionForm(program, Variante::D, 2, SimbLook(), SimbOptions()) {
    Consegna(QStringLiteral("Scrivi il numero in cifre"));
}

void FormSimb::NuovaDomanda() {
    CaricaColori();
    const int n = g.NumeroMassimo;
    // Most questions take any number; some take whole tens or units alone, so that the child also
    // meets a number with one part missing.
    switch (Draw(app.rnd, 6)) {
    case 2:
        g.NumeroEsatto = int16_t(Int(app.rnd.Rnd() * Int(n / 10.0) + 1) * 10);
        break;
    case 3:
        g.NumeroEsatto = int16_t(Draw(app.rnd, 9, 1));
        break;
    default:
        g.NumeroEsatto = int16_t(Draw(app.rnd, n, 1));
        break;
    }
    QuanteDecine = int16_t(Int(g.NumeroEsatto / 10.0));
    QuanteUnita = int16_t(g.NumeroEsatto - 10 * QuanteDecine);

    const QString decine = QuanteDecine >= 1 ? Str(QuanteDecine) + QStringLiteral(" da   ") : QString();
    const QString unita = QuanteUnita >= 1 ? Str(QuanteUnita) + QStringLiteral(" u") : QString();
    // The order is drawn last, once the number is known: tens first on 1, units first on 0.
    ScriviDomanda(Draw(app.rnd, 2) == 1 ? decine + unita : unita + decine);
}

// The question has no equals sign of its own, so the answer comes after one.
void FormSimb::MostraRispostaEsatta() {
    EtichettaNumero->setCaption(EtichettaNumero->Caption() + QStringLiteral(" = ") + Text1->Text());
}

QJsonObject FormSimb::fields() const {
    return {{"QuanteDecine", QuanteDecine}, {"QuanteUnita", QuanteUnita}};
}

FormList ComparisonForms() {
    return Join({{Screen<FormMM>("FormMM")}, {Screen<FormSimb>("FormSimb")}});
}

} // namespace contarello
