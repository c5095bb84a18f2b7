#include "graphics/abacus_ops.h"
#include "core/lang.h"
#include "shell/pictures.h"
#include "shell/program.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace contarello {

namespace {

constexpr AbacusOpMember kSomme[] = {
    {"Form99c", 15, true},
    {"Form99c1", 16, false},
};
constexpr AbacusOpMember kDifferenze[] = {
    {"Form99d", 17, true},
    {"Form99d1", 18, false},
};

// A red arrow across the button: towards the tens wire, or away from it towards the units.
QPixmap FrecciaRossa(bool aSinistra) {
    return pictures::Disegna([aSinistra](QPainter& p) {
        if (aSinistra) { // mirrored on the grid
            p.translate(32, 0);
            p.scale(-1, 1);
        }
        QPainterPath freccia;
        freccia.moveTo(2, 12);
        freccia.lineTo(18, 12);
        freccia.lineTo(18, 5);
        freccia.lineTo(30, 16);
        freccia.lineTo(18, 27);
        freccia.lineTo(18, 20);
        freccia.lineTo(2, 20);
        freccia.closeSubpath();
        p.setPen(QPen(QColor(0x80, 0x00, 0x00), 1.2));
        p.setBrush(kRosso);
        p.drawPath(freccia);
    });
}

} // namespace

FormList AbacusOpForms() {
    return Join({Members<AbacusSumForm>(kSomme), Members<AbacusDifferenceForm>(kDifferenze)});
}

namespace {
FrameOptions Opzioni(FrameLayout layout) {
    FrameOptions o;
    o.captions = kMenuLargo;
    o.layout = layout;
    o.setUp = SetUp::OnLoad;
    return o;
}
} // namespace

AbacusOpForm::AbacusOpForm(Program& program, const AbacusOpMember& member, int widthTwips, int heightTwips,
                           FrameLayout layout)
    : ExerciseForm(program, Variante::B, member.numeroScheda, widthTwips, heightTwips, Opzioni(layout)),
      member_(member) {}

void AbacusOpForm::CreaDomanda(int larghezzaDomanda, int leftRisultato) {
    EtichettaNumero = label(QStringLiteral("EtichettaNumero"), QString(), 120, 120, larghezzaDomanda, 615,
                            SansSerif(18, true));
    EtichettaNumero->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // Enter alone answers: an empty box reads as 0.
    Text1 = CasellaRisposta(QStringLiteral("Text1"), {leftRisultato, 120, 1335, 615}, Arial(18),
                            [this](const QString& testo) { return Val(testo) == RispostaAttesa(); },
                            {.ancheVuota = true});
    Text1->setVisible(false);
}

void AbacusOpForm::CreaAbaco(const Geometria& geo) {
    auto filo = [&](int i, int x) {
        FiloAbaco.set(i, line(indexed(QStringLiteral("FiloAbaco"), i), x, geo.filoAlto, x, geo.filoBasso,
                              Qt::black, 3));
    };
    filo(1, 1950);
    if (member_.cambio) {
        filo(2, 5475);
        filo(0, 5055);
    } else {
        filo(2, 5265);
    }
    auto pallina = [&](ControlArray<Shape>& array, const char* name, int i, int left, int top, int width,
                       QColor colour) {
        Shape* s = shape(indexed(QLatin1String(name), i), Shape::Circle, left, top, width, 435);
        s->setBackStyle(Shape::Opaque);
        s->setBackColor(colour);
        s->setFillStyle(Shape::Solid);
        s->setFillColor(colour);
        s->setBorderColor(colour);
        s->setVisible(false);
        array.set(i, s);
    };
    for (int i = 0; i < 9; ++i)
        pallina(pal_da, "pal_da", i, i < 2 ? 1680 : 1695, geo.daTop - 420 * i, 540, kRosso);
    if (member_.cambio) {
        for (int i = 0; i < 19; ++i) {
            int left = 5250, top = geo.uTop - 420 * i;
            if (i == 9) top = geo.u9Top;
            if (i >= 10) left = 4830, top = geo.uTop - 420 * (i - 10);
            if (i == 18 && geo.u18Top) top = geo.u18Top;
            pallina(pal_u, "pal_u", i, left, top, 435, kBlu);
        }
    } else {
        for (int i = 0; i < 9; ++i)
            pallina(pal_u, "pal_u", i, 5040, geo.uTop - 420 * i, 435, kBlu);
    }
    if (member_.cambio) {
        const int left = geo.frecciaASinistra ? 2835 : 2730, top = geo.frecciaASinistra ? 3150 : 3045;
        BottoneCambio = button(QStringLiteral("BottoneCambio"), QStringLiteral("Cambio"), left, top, 1485,
                               960, Arial(12));
        BottoneCambio->setPicture(FrecciaRossa(geo.frecciaASinistra));
        BottoneCambio->Click = [this] { BottoneCambio_Click(); };
    }
}

QString AbacusOpForm::TestoDomanda() const {
    return EtichettaNumero->Caption() + QStringLiteral("\n") + Label5->Caption();
}

QJsonObject AbacusOpForm::fields() const {
    return {{"NumeroUnita", NumeroUnita},
            {"NumeroDecine", NumeroDecine},
            {"Fase", Fase},
            {"NumeroEsatto", RispostaAttesa()}};
}

void AbacusOpForm::MostraPalline() {
    // The beads always stand from the bottom of their wire up, as many as counted: after a change the
    // units left over come down the first wire, so a bead taken off is always one that shows.
    for (auto& [i, s] : pal_da)
        s->setVisible(i < NumeroDecine);
    for (auto& [i, s] : pal_u)
        s->setVisible(i < NumeroUnita);
    Label3->setCaption(Str(NumeroUnita));
    Label4->setCaption(Str(NumeroDecine));
}

void AbacusOpForm::AzzeraAbaco() {
    Fase = 1;
    NumeroUnita = 0;
    NumeroDecine = 0;
    MostraPalline();
    if (BottoneCambio) BottoneCambio->setEnabled(true);
}

bool AbacusOpForm::AggiungiDecina() {
    if (NumeroDecine >= 9) return false;
    ++NumeroDecine;
    MostraPalline();
    return true;
}

bool AbacusOpForm::TogliDecina() {
    if (NumeroDecine <= 0) return false;
    --NumeroDecine;
    MostraPalline();
    return true;
}

bool AbacusOpForm::AggiungiUnita() {
    if (NumeroUnita >= LimiteUnita()) return false;
    ++NumeroUnita;
    MostraPalline();
    return true;
}

bool AbacusOpForm::TogliUnita() {
    if (NumeroUnita <= 0) return false;
    --NumeroUnita;
    MostraPalline();
    return true;
}

void AbacusOpForm::ApriRisultato() {
    Text1->setText(QString());
    Text1->setVisible(true);
    if (Text1->isEnabled()) Text1->SetFocus();
}

} // namespace contarello
