#include "shell/menus.h"
#include "core/lang.h"
#include "shell/colori.h"
#include "shell/pictures.h"
#include "shell/program.h"

#include <QButtonGroup>
#include <iterator>

namespace contarello {

// ---- FormAvvio ----

FormAvvio::FormAvvio(Program& program) : Form(program, 11100, 6300) {
    auto* sopra = label(indexed(QStringLiteral("Label2"), 1), QStringLiteral("Calcolario"), 480, 600, 10140,
                        495, Arial(18));
    sopra->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    Label2.set(1, sopra);
    auto* titolo = label(indexed(QStringLiteral("Label2"), 0), QStringLiteral("  Contarello"), 120, 1320,
                         10860, 1695, Arial(72));
    titolo->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    titolo->setWordWrap(false);
    Label2.set(0, titolo);
    BottoneAvvio =
        button(QStringLiteral("BottoneAvvio"), QStringLiteral("Avvio"), 4110, 3600, 2880, 1695, Arial(24));
    BottoneAvvio->setPicture(pictures::Avvio());
    BottoneAvvio->Click = [this] { GoTo(QStringLiteral("FormMenu")); };
}

void FormAvvio::Load() {
    CaricaColori(*this, Variante::A);
}

// ---- FormMenu ----

FormMenu::FormMenu(Program& program) : Form(program, 8400, 7440) {
    const QFont f = Arial(15.75);
    auto* c2 = button(QStringLiteral("Command2"), QStringLiteral("Esercizi con supporto grafico"), 1080, 480,
                      6240, 855, f);
    c2->Click = [this] { GoTo(QStringLiteral("FormMenuGrafici")); };
    auto* c3 = button(QStringLiteral("Command3"), QStringLiteral("Esercizi con solo numeri"), 1080, 1560,
                      6240, 855, f);
    c3->Click = [this] { GoTo(QStringLiteral("FormMenuNumeri")); };
    auto* c4 = button(QStringLiteral("Command4"), QStringLiteral("Scegli il numero massimo"), 1080, 2640,
                      6240, 855, f);
    c4->Click = [this] { Command4_Click(); };

    Option1.set(1, option(indexed(QStringLiteral("Option1"), 1),
                          QStringLiteral("attende la pressione del bottone per proseguire"), 1080, 3720, 6240,
                          495, Arial(12)));
    Option1.set(0, option(indexed(QStringLiteral("Option1"), 0),
                          QStringLiteral("prosegue automaticamente  negli esercizi"), 1080, 4260, 6240, 495,
                          Arial(12)));
    for (int i : {0, 1})
        Option1(i)->Click = [this, i] { g.AttendiBottone = i > 0 ? True : False; };

    // A group of their own, so that choosing the voice leaves the choice above as it is.
    auto* voce = new QButtonGroup(this);
    const char* voci[] = {"voce spenta", "voce accesa"};
    for (int i : {0, 1}) {
        auto* o = option(indexed(QStringLiteral("OpzioneVoce"), i), QLatin1String(voci[i]), 1080 + 3240 * i,
                         4920, 3000, 495, Arial(12));
        voce->addButton(o);
        // Turned on, the voice gets ready at once, while the adult is still at the menu.
        o->Click = [this, i] {
            app.voce = i > 0;
            if (app.voce) app.speech.prepare();
        };
        OpzioneVoce.set(i, o);
    }

    auto* c1 = button(QStringLiteral("Command1"), QStringLiteral("Esci"), 3300, 5640, 1800, 1215, f);
    c1->setPicture(pictures::ManoAlzata());
    c1->Click = [this] { ChiediUscita(app); };
}

void FormMenu::Load() {
    if (g.AttendiBottone == False)
        Option1(0)->setValue(true);
    else
        Option1(1)->setValue(true);
    // Shown as it stands, without choosing it again.
    OpzioneVoce(app.voce ? 1 : 0)->setChecked(true);
    CaricaColori(*this, Variante::A);
    for (int i : {0, 1}) {
        Option1(i)->setBackColor(BackColor());
        OpzioneVoce(i)->setBackColor(BackColor());
    }
}

void FormMenu::Command4_Click() {
    const QString scelta = app.dialogs.InputBox(QStringLiteral("Scrivi un numero da 20 a 99"), kTitolo,
                                                QString::number(g.NumeroMassimo));
    const double v = Val(scelta);
    // The number is tested before it becomes an integer: 19.5 passes and is stored as 20.
    if (v > 19 && v < 100)
        g.NumeroMassimo = CInt(v);
    else
        app.dialogs.MsgBox(QStringLiteral("Scelta non accettabile"), vbCritical, kTitolo);
}

// ---- The two exercise menus ----

namespace {

constexpr VoceMenu kVociNumeri[] = {
    {"Command6", "dalla parola alle cifre", "FormScri", 0, 0},
    {"Command36", "dalle cifre alle lettere", "FormScri2", 0, 1},
    {"Command8", "da  u", "FormSimb", 0, 2},
    {"Command7", "< > =", "FormMM", 0, 3},
    {"Command9", "ordina i numeri", "FormOrd", 0, 4},
    {"Command13", "trova il numero in mezzo", "Formmez", 0, 5},
    {"Command12", "trova il numero successivo", "Formdopo", 0, 6},
    {"Command11", "trova il numero precedente", "Formpri", 0, 7},
    {"Command10", "espressioni", "Formesp", 0, 8},
    {"Command37", "più 1", "Form1", 1, 0},
    {"Command14", "più unità", "Form1a", 1, 1},
    {"Command38", "più 10", "Form10", 1, 2},
    {"Command15", "più decine", "Form10a", 1, 3},
    {"Command39", "più 1 o 10", "Form100", 1, 4},
    {"Command16", "più unità o decine", "Form100bis", 1, 5},
    {"Command2", "meno 1", "Form1ma", 1, 6},
    {"Command17", "meno unità", "Form1m", 1, 7},
    {"Command3", "meno 10", "Form10m", 1, 8},
    {"Command18", "meno decine", "Form10ma", 2, 0},
    {"Command4", "meno 1 o 10", "Form100m", 2, 1},
    {"Command19", "meno unità o decine", "Form100ma", 2, 2},
    {"Command21", "addizioni in colonna         senza cambio", "FormCol1", 2, 3},
    {"Command22", "addizioni in colonna              con il cambio", "FormCol2", 2, 4},
    {"Command27", "sottrazioni in colonna         senza cambio", "FormCol3", 2, 5},
    {"Command26", "sottrazioni in colonna              con il cambio", "FormCol4", 2, 6},
};

constexpr VoceMenu kVociGrafici[] = {
    {"Command2", "dal numero al disegno", "Form999x", 0, 0},
    {"Command3", "scrivi il numero in lettere", "Form999z", 0, 1},
    {"Command34", "scrivi il numero in cifre", "Form999y", 0, 2},
    {"Command10", "addizioni senza cambio", "FormGraf1", 0, 3},
    {"Command23", "addizioni con  il cambio", "FormGraf", 0, 4},
    {"Command11", "sottrazioni senza cambio", "FormGrafMeno1", 0, 5},
    {"Command24", "sottrazioni con  il cambio", "FormGrafMeno", 0, 6},
    {"Command4", "inserisci le palline nell'abaco", "Form99a", 1, 0},
    {"Command5", "scrivi il numero in lettere", "Form99b1", 1, 1},
    {"Command35", "scrivi il numero in cifre", "Form99b", 1, 2},
    {"Command8", "addizioni  senza cambio", "Form99c1", 1, 3},
    {"Command20", "addizioni  con il cambio", "Form99c", 1, 4},
    {"Command9", "sottrazioni  senza cambio", "Form99d1", 1, 5},
    {"Command25", "sottrazioni   con il cambio", "Form99d", 1, 6},
    {"Command6", "trova il numero", "Form100Trova", 2, 0},
    {"Command7", "Riconosci il numero", "Form100Ricon", 2, 1},
    {"Command30", "aggiungi unità", "Form100a", 2, 2},
    {"Command29", " aggiungi decine", "Form100b", 2, 3},
    {"Command28", " aggiungi unità e decine", "Form100f", 2, 4},
    {"Command33", "togli unità", "Form100c", 2, 5},
    {"Command32", "togli decine", "Form100d", 2, 6},
    {"Command31", " togli unità e decine", "Form100e", 2, 7},
    // the number lines, in a row under the first two columns
    {"Command12", "con decine fisse", "FormGradi20", 0, 8},
    {"Command13", "senza decine fisse", "FormGradi20bis", 1, 8},
};

constexpr Intestazione kIntestazioniGrafici[] = {
    {"Label1", "lunghi e unità", 240, 120, 3000},
    {"Label2", "abaco", 3480, 120, 3000},
    {"Label3", "Tabella da 0 a 99", 6720, 120, 3000},
    {"Label4", "linee dei numeri", 240, 5520, 6240},
};

constexpr int kColumnLeft = 240, kColumnStep = 3240, kButtonWidth = 3000, kButtonHeight = 615, kRowStep = 675;

// On FormMenuGrafici the number lines stand under their own heading, a little below the last row
// of the columns.
constexpr ExerciseMenuForm::Layout kMenus[] = {
    {"FormMenuNumeri", 10080, 7980, kVociNumeri, int(std::size(kVociNumeri)), nullptr, 0, 240, 1, 6480},
    {"FormMenuGrafici", 10080, 7980, kVociGrafici, int(std::size(kVociGrafici)), kIntestazioniGrafici,
     int(std::size(kIntestazioniGrafici)), 600, 2, 6360},
};

} // namespace

FormList MenuForms() {
    return Join(
        {{Screen<FormAvvio>("FormAvvio"), Screen<FormMenu>("FormMenu")}, Members<ExerciseMenuForm>(kMenus)});
}

ExerciseMenuForm::ExerciseMenuForm(Program& program, const Layout& layout)
    : Form(program, layout.width, layout.height) {
    for (int i = 0; i < layout.nIntestazioni; ++i) {
        const Intestazione& h = layout.intestazioni[i];
        auto* l = label(QLatin1String(h.control), QString::fromUtf8(h.caption), h.left, h.top, h.width, 435,
                        Arial(12));
        l->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
    const QFont f = Arial(9.75);
    for (int i = 0; i < layout.nVoci; ++i) {
        const VoceMenu& v = layout.voci[i];
        // The row under the columns starts below the last row of the longest column, after its heading.
        const int top = v.row < 8 || layout.nIntestazioni == 0 ? layout.firstTop + v.row * kRowStep : 5940;
        auto* b = button(QLatin1String(v.control), QString::fromUtf8(v.caption),
                         kColumnLeft + v.column * kColumnStep, top, kButtonWidth, kButtonHeight, f);
        const QString target = QLatin1String(v.form);
        b->Click = [this, target] { GoTo(target); };
    }
    auto* torna = button(QStringLiteral("Command1"), QStringLiteral("Torna al menù generale"),
                         kColumnLeft + layout.command1Column * kColumnStep, layout.command1Top, kButtonWidth,
                         855, Arial(9.75));
    torna->Click = [this] { GoTo(QStringLiteral("FormMenu")); };
}

void ExerciseMenuForm::Load() {
    CaricaColori(*this, Variante::A);
}

} // namespace contarello
