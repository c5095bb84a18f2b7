#include "graphics/tablefind.h"
#include "core/lang.h"
#include "shell/program.h"

#include <algorithm>
#include <vector>

namespace contarello {

// ---- TabellaLivelliForm ----

TabellaLivelliForm::TabellaLivelliForm(Program& program, const char* scheda, bool facile)
    : TabellaForm(program, 0, [scheda] {
          FrameOptions o;
          o.scheda = scheda;
          o.setUp = SetUp::OnActivate;
          return o;
      }()) {
    mnuTabella = menu(QStringLiteral("mnuTabella"), QStringLiteral("Tabella"), nullptr, mnuStampa);
    if (facile) mnuFacile = menu(QStringLiteral("mnuFacile"), QStringLiteral("facile"), mnuTabella);
    mnuMedia = menu(QStringLiteral("mnuMedia"), QStringLiteral("media"), mnuTabella);
    mnuDifficile = menu(QStringLiteral("mnuDifficile"), QStringLiteral("difficile"), mnuTabella);
    for (MenuItem* item : {mnuFacile, mnuMedia, mnuDifficile}) {
        if (!item) continue;
        item->Click = [this, item] {
            Scegli(item);
            RiempiTabella();
        };
    }
    Scegli(mnuMedia);
}

void TabellaLivelliForm::Scegli(MenuItem* item) {
    for (MenuItem* i : {mnuFacile, mnuMedia, mnuDifficile})
        if (i) i->setChecked(i == item);
}

void TabellaLivelliForm::Prepara() {
    // A screen that was waiting for "avanti" still waits, with the button live.
    Ricomincia();
    Riapri();
}

void TabellaLivelliForm::RiempiTabella() {
    if (mnuFacile && mnuFacile->Checked()) {
        ScriviTutti();
    } else if (mnuMedia->Checked()) {
        for (auto& [i, c] : Numero)
            c->setCaption(i < 10 || i % 10 == 0 ? Str(i) : QString());
    } else {
        for (auto& [i, c] : Numero)
            c->setCaption(QString());
    }
}

void TabellaLivelliForm::Ricomincia() {
    Trovati = 0;
    Rosse.fill(false);
    for (auto& [i, c] : Numero)
        c->setBackColor(kCellaLibera);
    RiempiTabella();
}

void TabellaLivelliForm::Colora(int i) {
    Numero(i)->setBackColor(kCellaRossa);
    Rosse[size_t(i)] = true;
}

void TabellaLivelliForm::Trovato() {
    if (++Trovati >= 10) Ricomincia();
}

int16_t TabellaLivelliForm::EstraiLibera(const std::function<bool(int)>& occupata) {
    constexpr int kRipescaggi = 8;
    const int limite = std::clamp(int(g.NumeroMassimo), 1, 100);
    int n = Draw(app.rnd, 100);
    for (int k = 0; k < kRipescaggi && occupata(n); ++k)
        n = Draw(app.rnd, limite);
    if (!occupata(n)) return int16_t(n);
    std::vector<int> libere;
    for (int fino : {limite, 100}) {
        for (int i = 0; i < fino; ++i)
            if (!occupata(i)) libere.push_back(i);
        if (!libere.empty()) break;
    }
    if (libere.empty()) { // nothing left to ask: a new round
        Ricomincia();
        return EstraiLibera(occupata);
    }
    return int16_t(libere[Draw(app.rnd, double(libere.size()))]);
}

QJsonObject TabellaLivelliForm::fields() const {
    return {{"Trovati", Trovati}};
}

// ---- Form100Trova ----

Form100Trova::Form100Trova(Program& program) : TabellaLivelliForm(program, "formStampa2", true) {
    constexpr int x = ColonnaTabella::left, w = ColonnaTabella::width;
    Label3 = label(QStringLiteral("Label3"), QStringLiteral("clicca sul numero"), x, 2640, w, 375, Arial(12));
    Label3->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    EtichettaNumero = label(QStringLiteral("EtichettaNumero"), QString(), x, 3120, w, 855, Arial(24));
    EtichettaNumero->setAlignment(Qt::AlignCenter);
}

void Form100Trova::Riapri() {
    AbilitaTutte();
}

void Form100Trova::NuovaDomanda() {
    CaricaColori();
    g.NumeroEsatto = EstraiLibera([this](int i) { return Rossa(i); });
    EtichettaNumero->setCaption(Str(g.NumeroEsatto));
}

void Form100Trova::Numero_Click(int i) {
    Rispondi(i == g.NumeroEsatto);
}

// The cell found shows its number, in red.
void Form100Trova::Esatta() {
    Numero(g.NumeroEsatto)->setCaption(Str(g.NumeroEsatto));
    Colora(g.NumeroEsatto);
    Trovato();
}

// The cell found is greyed while the screen waits for "avanti".
void Form100Trova::InAttesa() {
    Numero(g.NumeroEsatto)->setEnabled(false);
}

void Form100Trova::Riprendi() {
    Numero(g.NumeroEsatto)->setEnabled(true);
}

// ---- Form100Ricon ----

Form100Ricon::Form100Ricon(Program& program) : TabellaLivelliForm(program, "formStampa3", false) {
    constexpr int x = ColonnaTabella::left, w = ColonnaTabella::width;
    Label3 = label(QStringLiteral("Label3"), QString::fromUtf8("quale numero è rosso?"), x, 2640, w, 375,
                   Arial(12));
    Label3->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    // No filter here: an empty box, or one with no number in front, reads as 0.
    Text1 = CasellaRisposta(QStringLiteral("Text1"), {6600, 3360, 1665, 1335}, Arial(36),
                            [this](const QString& testo) { return Val(testo) == g.NumeroEsatto; },
                            {.ancheVuota = true});
}

void Form100Ricon::Riapri() {
    // While "avanti" waits the box stays shut; its click opens it with the next question.
    Text1->setEnabled(!BottoneAvanti->isEnabled());
}

void Form100Ricon::RiempiTabella() {
    TabellaLivelliForm::RiempiTabella();
    // A change of level mustn't write in the number the child is being asked for.
    if (Text1->isEnabled() && Rossa(g.NumeroEsatto)) Numero(g.NumeroEsatto)->setCaption(QString());
}

void Form100Ricon::NuovaDomanda() {
    CaricaColori();
    g.NumeroEsatto = EstraiLibera([this](int i) { return !Numero(i)->Caption().isEmpty(); });
    Colora(g.NumeroEsatto);
    Text1->setText(QString());
    if (Text1->isEnabled()) Text1->SetFocus();
}

// The red cell shows its number.
void Form100Ricon::Esatta() {
    Numero(g.NumeroEsatto)->setCaption(Str(g.NumeroEsatto));
    Trovato();
}

FormList TableFindForms() {
    return {Screen<Form100Trova>("Form100Trova"), Screen<Form100Ricon>("Form100Ricon")};
}

} // namespace contarello
