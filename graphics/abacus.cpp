#include "graphics/abacus.h"
#include "core/lang.h"
#include "core/numberwords.h"
#include "shell/pictures.h"
#include "shell/program.h"

#include <QPainter>
#include <QPainterPath>

namespace contarello {

namespace {

constexpr int kPasso = 420;       // from one bead to the next one up
constexpr int kLargoDecine = 540; // the box of a tens bead; the bead is the circle inside
constexpr int kLargoUnita = 435;  // the box of a units bead
constexpr int kAltoPallina = 435; // both beads are this round

// A solid bead with a darker edge, so that two touching beads still read as two.
Shape* Pallina(Shape* s, QColor colore) {
    s->setBackStyle(Shape::Opaque);
    s->setBackColor(colore);
    s->setFillStyle(Shape::Solid);
    s->setFillColor(colore);
    s->setBorderColor(colore.darker(170));
    s->setBorderWidth(1);
    s->setVisible(false);
    return s;
}

// A green tick in a circle: "this is my answer".
QPixmap Spunta() {
    return pictures::Disegna([](QPainter& p) {
        const QColor verde(0x00, 0x80, 0x00);
        p.setPen(QPen(verde, 2));
        p.setBrush(QColor(0xe0, 0xff, 0xe0));
        p.drawEllipse(QRectF(2, 2, 28, 28));
        QPainterPath segno;
        segno.moveTo(9, 16);
        segno.lineTo(14, 22);
        segno.lineTo(24, 10);
        p.setPen(QPen(verde, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(Qt::NoBrush);
        p.drawPath(segno);
    });
}

// The menu bar the three screens share; only the blanks after "Azzera conteggio" differ.
FrameOptions Opzioni(const char* azzera, const char* scheda, FrameLayout layout, SetUp setUp) {
    FrameOptions o;
    o.setUp = setUp;
    o.captions = {azzera, "Stampa scheda        ", "Informazioni          "};
    o.scheda = scheda;
    o.layout = layout;
    return o;
}

} // namespace

// ---- AbacusForm ----

AbacusForm::AbacusForm(Program& program, int widthTwips, int heightTwips, FrameOptions options,
                       const AbacoGeometria& at)
    : ExerciseForm(program, Variante::B, 0, widthTwips, heightTwips, options) {
    FiloAbaco.set(1, line(indexed(QStringLiteral("FiloAbaco"), 1), at.xDecine, at.yDecine1, at.xDecine,
                          at.yDecine2, Qt::black, 3));
    FiloAbaco.set(2, line(indexed(QStringLiteral("FiloAbaco"), 2), at.xUnita, at.yUnita1, at.xUnita,
                          at.yUnita2, Qt::black, 3));
    // Each bead's box is centred on its wire, so the bead sits on the wire whatever its box.
    for (int i = 0; i < 9; ++i) {
        pal_da.set(i, Pallina(shape(indexed(QStringLiteral("pal_da"), i), Shape::Circle,
                                    at.xDecine - kLargoDecine / 2, at.topDecine - kPasso * i, kLargoDecine,
                                    kAltoPallina),
                              kRosso));
        pal_u.set(
            i, Pallina(shape(indexed(QStringLiteral("pal_u"), i), Shape::Circle, at.xUnita - kLargoUnita / 2,
                             at.topUnita - kPasso * i, kLargoUnita, kAltoPallina),
                       kBlu));
    }
}

QJsonObject AbacusForm::fields() const {
    return {{"NumeroUnita", NumeroUnita}, {"NumeroDecine", NumeroDecine}};
}

void AbacusForm::NascondiPalline() {
    MostraPalline(pal_da, 0);
    MostraPalline(pal_u, 0);
}

void AbacusForm::MostraPalline(ControlArray<Shape>& filo, int n) {
    for (auto& [i, s] : filo)
        s->setVisible(i < n);
}

// ---- Form99a ----

namespace {

// The counters in a row at the top, the three buttons down the right column. The screen is as wide
// as its six menu items need.
constexpr int kLargo99a = 10800, kColonna = 8280;
FrameLayout Form99aLayout() {
    FrameLayout l;
    l.facce = {kColonna + 360, 315, 855, 750};
    l.avanti = {kColonna, 5040, 1575, 1215};
    return l;
}

constexpr AbacoGeometria kForm99a{2565, 1575, 6015, 4305, 1680, 6120, 5670, 5730};

} // namespace

Form99a::Form99a(Program& program)
    : AbacusForm(program, kLargo99a, 8040,
                 Opzioni("Azzera conteggio        ", "formSt99a", Form99aLayout(), SetUp::OnLoad), kForm99a) {
    EtichettaNumero = label(QStringLiteral("EtichettaNumero"), QString(), 1035, 1020, 4800, 480, Arial(18));
    EtichettaNumero->setBackColor(kCiano);
    EtichettaNumero->setAlignment(Qt::AlignCenter);

    // Under each wire its button; only a mouse button acts on them, so they take no focus.
    auto sotto = [this](const char* name, const char* caption, int x) {
        CommandButton* b =
            button(QLatin1String(name), QLatin1String(caption), x - 450, 6300, 900, 660, Arial(24));
        b->setFocusPolicy(Qt::NoFocus);
        return b;
    };
    Bot_da = sotto("Bot_da", "da", kForm99a.xDecine);
    Bot_u = sotto("Bot_u", "u", kForm99a.xUnita);
    Bot_da->MouseDown = [this](int button, int, int, int) { Infila(pal_da, NumeroDecine, button); };
    Bot_u->MouseDown = [this](int button, int, int, int) { Infila(pal_u, NumeroUnita, button); };

    Label3 = label(QStringLiteral("Label3"),
                   QStringLiteral("Click sinistro per inserire le palline, click destro per toglierle."), 240,
                   7140, kLargo99a - 480, 375, Arial(12));
    Label3->setAlignment(Qt::AlignCenter);

    Bot_ricomincia = button(QStringLiteral("Bot_ricomincia"), QStringLiteral("Ricomincia"), kColonna, 1560,
                            1575, 1215, Arial(12));
    Bot_ricomincia->setPicture(pictures::FrecciaCircolare());
    Bot_ricomincia->Click = [this] {
        NumeroUnita = NumeroDecine = 0;
        NascondiPalline();
    };
    BottoneConferma = button(QStringLiteral("BottoneConferma"), QStringLiteral("Conferma"), kColonna, 3300,
                             1575, 1215, Arial(12));
    BottoneConferma->setPicture(Spunta());
    RispondeCon(BottoneConferma);
    BottoneConferma->Click = [this] { BottoneConferma_Click(); };

    AggiungiCorniceNumeroMassimo(QStringLiteral("mnuMassimo"), QStringLiteral("Numero massimo        "),
                                 mnuStampa);
    MenuNumero = menu(QStringLiteral("MenuNumero"), QStringLiteral("Numeri        "), nullptr,
                      static_cast<MenuItem*>(find(QStringLiteral("mnuMassimo"))));
    MenuParole = menu(QStringLiteral("MenuParole"), QStringLiteral("in parole"), MenuNumero);
    MenuCifre = menu(QStringLiteral("MenuCifre"), QStringLiteral("in cifre"), MenuNumero);
    MenuParole->Click = [this] {
        InCifre = 0;
        ProssimaDomanda();
    };
    MenuCifre->Click = [this] {
        InCifre = 1;
        ProssimaDomanda();
    };
}

QJsonObject Form99a::fields() const {
    QJsonObject f = AbacusForm::fields();
    f[QStringLiteral("InCifre")] = InCifre;
    return f;
}

void Form99a::Prepara() {
    NumeroUnita = NumeroDecine = InCifre = 0;
}

void Form99a::NuovaDomanda() {
    CaricaColori();
    NumeroUnita = NumeroDecine = 0;
    NascondiPalline();
    g.NumeroEsatto = int16_t(Draw(app.rnd, g.NumeroMassimo, 1));
    EtichettaNumero->setCaption(InCifre != 0 ? Str(g.NumeroEsatto) + QStringLiteral("    ")
                                             : InParole(g.NumeroEsatto, g));
}

void Form99a::Infila(ControlArray<Shape>& filo, int16_t& quante, int button) {
    // A full wire takes no more, a bare one gives nothing: silently.
    if (button == vbLeftButton) {
        if (quante == 9) return;
        filo(quante)->setVisible(true);
        ++quante;
    } else {
        if (quante == 0) return;
        --quante;
        filo(quante)->setVisible(false);
    }
}

// After a wrong answer the beads and the question stay, for the child to put right.
void Form99a::BottoneConferma_Click() {
    Rispondi(NumeroDecine * 10 + NumeroUnita == g.NumeroEsatto);
}

} // namespace contarello
