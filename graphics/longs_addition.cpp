#include "core/lang.h"
#include "graphics/longs.h"
#include "shell/program.h"

#include <QJsonObject>

namespace contarello {

LongsAddForm::LongsAddForm(Program& program, const LongsMember& member)
    : LongsOpForm(program, member, 2895, 975, 735) {
    BotDecine1 = BottoneMateriale("BotDecine1", "Decine", 6120, 1680, kRosso);
    BotUnita1 = BottoneMateriale("BotUnita1", "Unità", 6120, 2400, kBlu);
    BotDecine2 = BottoneMateriale("BotDecine2", "Decine", 6120, 4200, kRosso);
    BotUnita2 = BottoneMateriale("BotUnita2", "Unità", 6120, 4920, kBlu);
    BotDecine1->Click = [this] { Aggiungi(Decina1, NumeroDecine1, true); };
    BotUnita1->Click = [this] { Aggiungi(Unita1, NumeroUnita1, true); };
    BotDecine2->Click = [this] { Aggiungi(Decina2, NumeroDecine2, false); };
    BotUnita2->Click = [this] { Aggiungi(Unita2, NumeroUnita2, false); };
    if (member.cambio) {
        Cambio = BottoneMateriale("Cambio", "Cambio", 6120, 3360, kRosso);
        Cambio->Click = [this] { Cambio_Click(); };
    }

    // Longs in two columns of five and four, squares in pairs; one row above the strip, one below.
    for (int i = 0; i < 9; ++i) {
        const int left = i < 5 ? 240 : 2760, su = 360 * (i < 5 ? i : i - 5);
        Decina1.set(i, Pezzo(indexed(QStringLiteral("Decina1"), i), left, 1440 + su, 2415, kRosso));
        Decina2.set(i, Pezzo(indexed(QStringLiteral("Decina2"), i), left, 4080 + su, 2415, kRosso));
        const int x = 5280 + 360 * (i % 2), y = 360 * (i / 2);
        Unita1.set(i, Pezzo(indexed(QStringLiteral("Unita1"), i), x, 1440 + y, 255, kBlu));
        Unita2.set(i, Pezzo(indexed(QStringLiteral("Unita2"), i), x, 3960 + y, 255, kBlu));
    }
    if (member.cambio) DecinaCambio = Pezzo(QStringLiteral("DecinaCambio"), 240, 3480, 2415, kRosso);

    const int righe[] = {1320, 3360, 3840, 6000};
    for (int i = 0; i < 4; ++i)
        line(QStringLiteral("Line%1").arg(i + 1), 120, righe[i], 6120, righe[i], Qt::black, 2);
    line(QStringLiteral("Line5"), 120, 1320, 120, 6000, Qt::black, 2);
    line(QStringLiteral("Line6"), 6120, 1320, 6120, 6000, Qt::black, 2);
}

void LongsAddForm::Azzera() {
    Risultato->setVisible(false);
    NumeroDecine1 = NumeroUnita1 = NumeroDecine2 = NumeroUnita2 = 0;
    for (auto* row : {&Decina1, &Unita1, &Decina2, &Unita2})
        for (auto& [i, l] : *row)
            l->setVisible(false);
    if (DecinaCambio) DecinaCambio->setVisible(false);
    BotDecine1->setEnabled(true);
    BotUnita1->setEnabled(true);
    BotDecine2->setEnabled(false);
    BotUnita2->setEnabled(false);
    if (Cambio) Cambio->setEnabled(false);
}

void LongsAddForm::NuovaDomanda() {
    CaricaColori();
    Azzera();
    EstraiOperazione();
    EtNumero->setCaption(Str(g.Termine1) + QStringLiteral(" + ") + Str(g.Termine2) + QStringLiteral(" ="));
    Consegna("Forma il primo addendo");
}

void LongsAddForm::BottoneRicomincia_Click() {
    Azzera();
    Consegna("Forma il primo numero in alto");
}

void LongsAddForm::Aggiungi(ControlArray<Label>& row, int16_t& counter, bool primo) {
    if (counter == 9) return;
    row(counter)->setVisible(true);
    ++counter;
    if (primo)
        Controlla1();
    else
        Controlla2();
}

void LongsAddForm::Controlla1() {
    if (10 * NumeroDecine1 + NumeroUnita1 != g.Termine1) return;
    BotDecine1->setEnabled(false);
    BotUnita1->setEnabled(false);
    BotDecine2->setEnabled(true);
    BotUnita2->setEnabled(true);
    Consegna("Forma il secondo addendo");
    suona(app);
}

void LongsAddForm::Controlla2() {
    if (10 * NumeroDecine2 + NumeroUnita2 != g.Termine2) return;
    for (CommandButton* b : {BotDecine1, BotUnita1, BotDecine2, BotUnita2})
        b->setEnabled(false);
    ControllaSeCambio();
    suona(app);
}

void LongsAddForm::ControllaSeCambio() {
    if (NumeroUnita1 + NumeroUnita2 <= 9 || !Cambio) {
        InRisultato();
        return;
    }
    Cambio->setEnabled(true);
    Label3->setCaption(QStringLiteral("Ci sono almeno 10 unità.") + CRLF +
                       QStringLiteral("Esegui il cambio."));
    Annuncia();
}

// Ten squares go, all of the first row and as many of the second as make ten, and one long comes
// in the strip. The counters keep the squares as they were placed, so a second click does the same
// again and nothing more.
void LongsAddForm::Cambio_Click() {
    const int q = NumeroUnita1;
    for (int i = 0; i < q; ++i)
        Unita1(i)->setVisible(false);
    for (int i = 0; i <= 9 - q && i < 9; ++i)
        Unita2(i)->setVisible(false);
    DecinaCambio->setVisible(true);
    InRisultato();
}

int16_t LongsAddForm::RisultatoAtteso() const {
    return g.Meta;
}

QJsonObject LongsAddForm::fields() const {
    return {{"NumeroDecine1", NumeroDecine1},
            {"NumeroUnita1", NumeroUnita1},
            {"NumeroDecine2", NumeroDecine2},
            {"NumeroUnita2", NumeroUnita2}};
}

} // namespace contarello
