#pragma once
// The two screens that work on the table itself: Form100Trova shows a number and the child finds
// its cell; Form100Ricon turns a cell red and the child writes its number. A menu chooses how much
// of the table shows; each number found stays red until ten are found, then the table clears.

#include "graphics/numbertable.h"

#include <array>

namespace contarello {

class TabellaLivelliForm : public TabellaForm {
    Q_OBJECT
public:
    // facile: whether the screen offers the level that shows the whole table.
    TabellaLivelliForm(Program& app, const char* scheda, bool facile);

    QJsonObject fields() const override;

protected:
    // A new start each time the screen comes up, back from the worksheet included: counters, the
    // round of ten and the red cells all go, so what the child sees matches the counters. A screen
    // waiting for "avanti" goes on waiting.
    void Prepara() override;
    // Writes the captions by the level checked: all, the first row and column, or none.
    virtual void RiempiTabella();
    // A new round of ten: every cell green again, its caption by the level.
    void Ricomincia();
    // One more number found in this round; the tenth clears the table at once.
    void Trovato();
    // Cell i turned red: found, or asked for.
    void Colora(int i);
    bool Rossa(int i) const { return i >= 0 && i < 100 && Rosse[size_t(i)]; }
    // What each screen sets going again as it starts: the cells, or the answer box unless "avanti"
    // is waiting.
    virtual void Riapri() = 0;
    // A question's cell: first from the whole table; if that one is taken, again under the limit;
    // and if luck keeps failing, straight from the free cells, under the limit where there are any.
    int16_t EstraiLibera(const std::function<bool(int)>& occupata);

    MenuItem* mnuTabella;
    MenuItem* mnuFacile = nullptr;
    MenuItem* mnuMedia;
    MenuItem* mnuDifficile;
    Label* Label3 = nullptr;
    int16_t Trovati = 0;
    std::array<bool, 100> Rosse{}; // the red cells of this round

private:
    void Scegli(MenuItem* item);
};

class Form100Trova : public TabellaLivelliForm {
    Q_OBJECT
public:
    explicit Form100Trova(Program& app);

protected:
    void NuovaDomanda() override;
    void Numero_Click(int i) override;
    void Esatta() override;
    void InAttesa() override;
    void Riprendi() override;
    void Riapri() override;

private:
    Label* EtichettaNumero;
};

class Form100Ricon : public TabellaLivelliForm {
    Q_OBJECT
public:
    explicit Form100Ricon(Program& app);

protected:
    void NuovaDomanda() override;
    void Esatta() override;
    void RiempiTabella() override;
    void Riapri() override;

private:
    TextBox* Text1;
};

// Form100Trova and Form100Ricon, each under its own name.
FormList TableFindForms();

} // namespace contarello
