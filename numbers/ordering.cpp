#include "numbers/ordering.h"
#include "core/lang.h"
#include "shell/pictures.h"
#include "shell/program.h"

#include <QJsonArray>
#include <QPainter>
#include <QPainterPath>

namespace contarello {

namespace {

const QString kDalMinore = QStringLiteral("Ordina i numeri dal minore al maggiore ");
const QString kDalMaggiore = QStringLiteral("Ordina i numeri dal maggiore al minore");
const QString kFormato = QStringLiteral("###,###,##0");
constexpr int kPosti = 8; // buttons and labels of the two columns
// Wide enough for the six items of the menu bar to show in full.
constexpr int kLarghezza = 12600;

// The two columns fill the left of the screen; counters and faces in a row at the top right, the
// buttons under them.
FrameOptions Opzioni() {
    FrameOptions o;
    o.captions = kMenuLargo;
    o.layout.label1 = {7200, 300, 960, 375};
    o.layout.esatti = {8160, 240, 960, 495};
    o.layout.label2 = {9240, 300, 960, 375};
    o.layout.errati = {10200, 240, 960, 495};
    o.layout.facce = {11280, 120, 855, 750};
    o.layout.avanti = {8460, 3240, 2415, 1215};
    o.setUp = SetUp::OnLoad;
    return o;
}

} // namespace

FormOrd::FormOrd(Program& program) : ExerciseForm(program, Variante::A, 4, kLarghezza, 6660, Opzioni()) {
    setTitleBar(true);

    MenuQuantiNumeri = menu(QStringLiteral("MenuQuantiNumeri"),
                            QStringLiteral("Scegli quanti numeri da ordinare        "), nullptr, mnuStampa);
    MenuOrdinamento = menu(QStringLiteral("MenuOrdinamento"), QStringLiteral("Tipo di ordinamento        "),
                           nullptr, mnuStampa);
    MenuSu = menu(QStringLiteral("MenuSu"), QStringLiteral("Dal minore al maggiore"), MenuOrdinamento);
    MenuGiu = menu(QStringLiteral("MenuGiu"), QStringLiteral("Dal maggiore al minore"), MenuOrdinamento);
    MenuQuantiNumeri->Click = [this] { EtNumeri->MostraSopra(); };
    MenuSu->Click = [this] { ScegliOrdinamento(true); };
    MenuGiu->Click = [this] { ScegliOrdinamento(false); };

    // The two columns fill the left of the screen; counters, faces and buttons stand at the right.
    for (int i = 0; i < kPosti; ++i) {
        auto* b = button(indexed(QStringLiteral("ComandoNumero"), i), QString(), 120, 120 + 720 * i, 2775,
                         615, Arial(18));
        b->Click = [this, i] { ComandoNumero_Click(i); };
        ComandoNumero.set(i, b);
        auto* l = label(indexed(QStringLiteral("EtNumero"), i), QString(), 4440, 120 + 720 * i, 1935, 615,
                        Arial(18));
        // A placed number sits on white, readable on every background the screen can draw.
        l->setAlignment(Qt::AlignCenter);
        l->setFrameShape(QFrame::Box);
        l->setBackColor(Qt::white);
        l->setVisible(false);
        EtNumero.set(i, l);
    }

    BottoneRicomincia = button(QStringLiteral("BottoneRicomincia"), QStringLiteral("Ricomincia"), 8460, 1680,
                               2415, 1215, Arial(14.25));
    BottoneRicomincia->setPicture(pictures::FrecciaCircolare());
    BottoneRicomincia->Click = [this] { RimettiNumeri(); };

    // Read by the worksheet of this exercise as the length of its rows; never shown.
    Label3 = label(QStringLiteral("Label3"), QString(), 6720, 5040, 495, 375, Arial(8, false));
    Label3->setVisible(false);

    // How many numbers to order: six choices in one column, on the same panel as the limit's.
    EtNumeri =
        PannelloScelte(QStringLiteral("EtNumeri"), QStringLiteral("Scegli quanti numeri vuoi ordinare"),
                       QStringLiteral("Option3D1"), {"3", "4", "5", "6", "7", "8"}, 1, Option3D1,
                       [this](int i) { Option3D1_Click(i); });
}

void FormOrd::Prepara() {
    Option3D1(4)->setValue(true);
    ScegliOrdinamento(true);
    for (int i = 0; i < kPosti; ++i)
        ComandoNumero(i)->setVisible(false);
    ScriviRiga(QStringLiteral("8"));
}

void FormOrd::NuovaDomanda() {
    Scelti = 0;
    CaricaColori();
    Ordinati.fill(0);
    for (int i = 0; i < kPosti; ++i) {
        EtNumero(i)->setVisible(false);
        ComandoNumero(i)->setVisible(false);
    }
    for (int i = 0; i < QuantiNumeri; ++i) {
        ComandoNumero(i)->setVisible(true);
        ComandoNumero(i)->setEnabled(true);
        Numeri[i] = int16_t(Draw(app.rnd, g.NumeroMassimo + 1));
        ComandoNumero(i)->setCaption(Format(Numeri[i], kFormato));
    }
}

void FormOrd::ComandoNumero_Click(int k) {
    if (Scelti >= QuantiNumeri) return; // every number is placed already
    Ordinati[Scelti] = Numeri[k];
    ComandoNumero(k)->setEnabled(false);
    EtNumero(Scelti)->setVisible(true);
    EtNumero(Scelti)->setCaption(ComandoNumero(k)->Caption());
    ComandoNumero(k)->setCaption(QString());
    ++Scelti;
    if (Scelti == QuantiNumeri) ControllaOrdine();
}

// A wrong order puts the numbers back on their buttons, to be placed again.
void FormOrd::ControllaOrdine() {
    // Only a pair strictly out of order is wrong: equal numbers may stand either way round.
    bool giusto = true;
    for (int i = 1; i < Scelti; ++i)
        if (DalMinore != False ? Ordinati[i] < Ordinati[i - 1] : Ordinati[i - 1] < Ordinati[i])
            giusto = false;
    if (!giusto) RimettiNumeri();
    Rispondi(giusto);
}

void FormOrd::RimettiNumeri() {
    Scelti = 0;
    for (int i = 0; i < kPosti; ++i)
        EtNumero(i)->setVisible(false);
    for (int i = 0; i < QuantiNumeri; ++i) {
        ComandoNumero(i)->setVisible(true);
        ComandoNumero(i)->setEnabled(true);
        ComandoNumero(i)->setCaption(Format(Numeri[i], kFormato));
    }
}

void FormOrd::Option3D1_Click(int i) {
    QuantiNumeri = int16_t(Val(Option3D1(i)->Caption()));
    ScriviRiga(Str(QuantiNumeri));
    EtNumeri->setVisible(false);
    ProssimaDomanda();
}

// The title bar tells the child the order asked; the numbers already placed stay.
void FormOrd::ScegliOrdinamento(bool dalMinore) {
    setCaption(dalMinore ? kDalMinore : kDalMaggiore);
    g.OrdinaConsegna = Caption();
    DalMinore = dalMinore ? True : False;
}

void FormOrd::ScriviRiga(const QString& quanti) {
    Label3->setCaption(quanti);
    g.OrdinaRiga = quanti;
}

// Without the screen the worksheet is built as from a FormOrd just loaded.
void FormOrd::Unload() {
    g.OrdinaRiga = QStringLiteral("8");
    g.OrdinaConsegna = kDalMinore;
}

QString FormOrd::TestoDomanda() const {
    QStringList numeri;
    for (int i = 0; i < QuantiNumeri; ++i)
        if (!ComandoNumero(i)->Caption().isEmpty()) numeri << ComandoNumero(i)->Caption();
    return Caption() + QStringLiteral("\n") + numeri.join(QStringLiteral(", "));
}

QJsonObject FormOrd::fields() const {
    QJsonArray numeri, ordinati;
    for (int i = 0; i < 11; ++i) {
        numeri.append(Numeri[i]);
        ordinati.append(Ordinati[i]);
    }
    return {{"Numeri", numeri},
            {"Ordinati", ordinati},
            {"QuantiNumeri", QuantiNumeri},
            {"Scelti", Scelti},
            {"DalMinore", DalMinore}};
}

FormList OrderingForms() {
    return {Screen<FormOrd>("FormOrd")};
}

} // namespace contarello
