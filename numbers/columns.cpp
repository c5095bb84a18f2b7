#include "numbers/columns.h"

#include "core/lang.h"
#include "shell/program.h"
#include <cstring>

namespace contarello {

namespace {
// No "avanti": the right tens bring a "Bravo" and the next operation. The counters and the faces
// stand right of the column.
FrameOptions Opzioni(const ColumnMember& m) {
    FrameOptions o;
    o.bottoneAvanti = false;
    o.lode = "Bravo";
    o.captions = {kMenuLargo.azzera, kMenuLargo.stampa, m.informazioni};
    o.layout.label1 = {7560, 1860, 1095, 375};
    o.layout.esatti = {8760, 1800, 1095, 495};
    o.layout.label2 = {7560, 2700, 1095, 375};
    o.layout.errati = {8760, 2640, 1095, 495};
    o.layout.facce = {8160, 3600, 855, 750};
    return o;
}
} // namespace

ColumnForm::ColumnForm(Program& program, const ColumnMember& member, Variante variante)
    : ExerciseForm(program, variante, member.numeroScheda, 10080, 5400, Opzioni(member)), member_(member) {

    // The instruction runs across the top.
    Label3 = label(QStringLiteral("Label3"), QString(), 120, 90, 9840, 660, Arial(14.25));
    Label3->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    Label3->setBackColor(kCiano);

    // The operation in a row.
    auto riga = [this](const char* name, int left, int width = 495) {
        Label* l = label(QString::fromUtf8(name), QString(), left, 1200, width, 495, Arial(18));
        l->setAlignment(Qt::AlignCenter);
        QPalette p = l->palette();
        p.setColor(QPalette::Window, Qt::white);
        l->setPalette(p);
        return l;
    };
    Lda1 = riga("Lda1", 120);
    Lu1 = riga("Lu1", 600);
    Label6 = riga("Label6", 1080);
    Lda2 = riga("Lda2", 1560);
    Lu2 = riga("Lu2", 2040);
    Label7 = riga("Label7", 2520);
    Label7->setCaption(QStringLiteral("="));
    Lris = riga("Lris", 3000, 1095);
    Lris->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    // The column: its heads, its four cells, the rule and the two boxes of the result.
    Label4 = label(QStringLiteral("Label4"), QStringLiteral("da"), 4320, 1440, 495, 345, Arial(12));
    Label5 = label(QStringLiteral("Label5"), QStringLiteral("u"), 5640, 1440, 495, 345, Arial(12));
    // Red and blue read on white, not on every background: the heads stand on white like their cells.
    for (auto [head, colour] : {std::pair{Label4, kRosso}, std::pair{Label5, kBlu}}) {
        head->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        head->setBackColor(Qt::white);
        head->setForeColor(colour);
    }
    auto casella = [this](const char* name, int left, int top, QColor colour) {
        Label* l = label(QString::fromUtf8(name), QString(), left, top, 735, 615, Arial(24));
        // Named for a screen reader as the child sees the place: the tens or units of a number.
        l->setAccessibleName(QString::fromUtf8(name[1] == 'd' ? "decine" : "unità") +
                             QString::fromUtf8(name[std::strlen(name) - 1] == '1' ? " del primo numero"
                                                                                  : " del secondo numero"));
        l->setAlignment(Qt::AlignCenter);
        l->setFrameShape(QFrame::Box);
        l->setBackColor(Qt::white);
        l->setForeColor(colour);
        l->Control::acceptDrops();
        return l;
    };
    Eda1 = casella("Eda1", 4200, 1800, kRosso);
    Eu1 = casella("Eu1", 5520, 1800, kBlu);
    Eda2 = casella("Eda2", 4200, 2640, kRosso);
    Eu2 = casella("Eu2", 5520, 2640, kBlu);
    Eda1->DragDrop = [this](Control* s) { Casella_DragDrop(Eda1, Lda1, s, true); };
    Eu1->DragDrop = [this](Control* s) { Casella_DragDrop(Eu1, Lu1, s, true); };
    Eda2->DragDrop = [this](Control* s) { Casella_DragDrop(Eda2, Lda2, s, false); };
    Eu2->DragDrop = [this](Control* s) { Casella_DragDrop(Eu2, Lu2, s, false); };

    line(QStringLiteral("Line1"), member.line1Left, 3600, 6840, 3600, Qt::black, 3);

    // Enter alone answers, an empty box as 0. The right units are a step; the right tens the answer.
    auto risultato = [this](const char* name, int left, QColor colour,
                            std::function<bool(const QString&)> giusta, std::function<void()> passo) {
        TextBox* t = CasellaRisposta(QString::fromUtf8(name), {left, 3840, 735, 615}, Arial(24),
                                     std::move(giusta), {.ancheVuota = true, .passo = std::move(passo)});
        t->setTextMargins(0, 0, 0, 0);
        t->setForeColor(colour);
        t->setEnabled(false);
        return t;
    };
    Edar = risultato("Edar", 4200, kRosso, [this](const QString& t) { return Val(t) == DaR; }, {});
    Eur = risultato(
        "Eur", 5520, kBlu, [this](const QString& t) { return Val(t) == UR; }, [this] { UnitaEsatte(); });
}

void ColumnForm::CreaCambio(int upLeft, int upTop, int uaLeft, int uaTop) {
    auto magenta = [this](const char* name, int left, int top) {
        Label* l = label(QString::fromUtf8(name), QString(), left, top, 360, 615, Arial(14.25));
        l->setAlignment(Qt::AlignCenter);
        // Edged, so that it shows also on a magenta background.
        l->setFrameShape(QFrame::Box);
        l->setBackColor(kMagenta);
        l->setVisible(false);
        return l;
    };
    CambioUp = magenta("CambioUp", upLeft, upTop);
    CambioUa = magenta("CambioUa", uaLeft, uaTop);
    Trascinabile(CambioUp, 1);
    CambioUa->Control::acceptDrops();
    CambioUa->DragDrop = [this](Control* s) { CambioUa_DragDrop(s); };
}

// A label that can be dragged shows a hand under the pointer; a digit of the row also stands on a
// white tile while it waits to be taken, so the child sees which digits move now.
void ColumnForm::Trascinabile(Label* l, int dragMode) {
    l->setDragMode(dragMode);
    l->setCursor(dragMode == 1 ? Qt::OpenHandCursor : Qt::ArrowCursor);
    if (!l->hasBackColor()) {
        l->setAutoFillBackground(dragMode == 1);
        l->setFrameShape(dragMode == 1 ? QFrame::Box : QFrame::NoFrame);
    }
}

void ColumnForm::Cifra(Label* l, int16_t cifra, bool anchePerZero) {
    l->setCaption(cifra >= 1 || anchePerZero ? Str(cifra) : QString());
}

void ColumnForm::NuovaDomanda() {
    std::optional<Colonna> c;
    do {
        if (NuoviColori()) CaricaColori();
        Eur->setEnabled(false);
        Edar->setEnabled(false);
        if (CambioUp) {
            CambioUp->setVisible(false);
            CambioUa->setVisible(false);
        }
        for (Label* l : {Lris, Eu1, Eu2, Eda1, Eda2})
            l->setCaption(QString());
        Eur->setText(QString());
        Edar->setText(QString());
        c = member_.tenta(app.rnd, g.NumeroMassimo);
    } while (!c);
    Da1 = c->Da1;
    U1 = c->U1;
    Da2 = c->Da2;
    U2 = c->U2;
    DaR = c->DaR;
    UR = c->UR;
    Cifre1 = Da1 != 0 ? 2 : 1;
    Cifre2 = Da2 != 0 ? 2 : 1;
    Cifra(Lu1, U1, true);
    Cifra(Lu2, U2, true);
    Cifra(Lda1, Da1, false);
    Cifra(Lda2, Da2, false);
    Trascinabile(Lda1, Lda1->Caption().isEmpty() ? 0 : 1);
    Trascinabile(Lu1, 1);
    Trascinabile(Lda2, 0);
    Trascinabile(Lu2, 0);
    Label3->setCaption(QString::fromUtf8(member_.primo));
    Annuncia();
}

// The texts are compared, not the controls: a digit equal to the cell's own is just as good.
void ColumnForm::Casella_DragDrop(Label* casella, Label* propria, Control* source, bool primo) {
    auto* dragged = dynamic_cast<Label*>(source);
    if (!dragged || dragged->Caption() != propria->Caption()) return;
    casella->setCaption(propria->Caption());
    Trascinabile(propria, 0);
    if (primo) {
        --Cifre1;
        Controlla1();
    } else {
        --Cifre2;
        Controlla2();
    }
}

void ColumnForm::Controlla1() {
    if (Cifre1 >= 1) return;
    if (Da2 > 0) Trascinabile(Lda2, 1);
    Trascinabile(Lu2, 1);
    Label3->setCaption(QString::fromUtf8(member_.secondo));
    Annuncia();
}

void ColumnForm::Controlla2() {
    if (Cifre2 < 1) SecondoCompleto();
}

void ColumnForm::ApriUnita() {
    Label3->setCaption(TestoUnita());
    Annuncia();
    Eur->setEnabled(true);
    Eur->SetFocus();
}

void ColumnForm::ApriDecine() {
    Edar->setEnabled(true);
    Edar->SetFocus();
    Label3->setCaption(TestoDecine());
    Annuncia();
}

void ColumnForm::Esatta() {
    Edar->setEnabled(false);
    Lris->setCaption(Str(10 * DaR + UR));
}

QString ColumnForm::TestoDomanda() const {
    return Str(10 * Da1 + U1) + QStringLiteral(" ") + Label6->Caption() + Str(10 * Da2 + U2) +
           QStringLiteral("\n") + Label3->Caption();
}

QJsonObject ColumnForm::fields() const {
    return {{"Da1", Da1}, {"U1", U1}, {"Da2", Da2},       {"U2", U2},
            {"DaR", DaR}, {"UR", UR}, {"Cifre1", Cifre1}, {"Cifre2", Cifre2}};
}

} // namespace contarello
