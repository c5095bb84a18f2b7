#pragma once
// The two drawn worksheets on the table of 0 to 99, printed as a picture of the screen:
// formStampa2 lists eight numbers to colour alike in the list and in the table, formStampa3 marks
// eight cells with X for the child to name. A menu chooses how much of the table is printed.

#include "shell/form.h"

namespace contarello {

class FoglioTabella : public Form {
    Q_OBJECT
public:
    // facile: whether the sheet offers the level with the whole table.
    FoglioTabella(Program& app, const QString& consegna, bool facile);

    // New items each time the sheet comes up.
    void Activate() override;

protected:
    // The eight items of the sheet.
    virtual void Genera8Numeri() = 0;
    // The captions of the table by the level checked; on formStampa3 new marks too.
    virtual void RiempiTabella();

    MultiLineTextBox* Text2;
    ControlArray<Label> numero;
    ControlArray<TextBox> Text1;
    MenuItem* mnustampa;
    MenuItem* mnuTabella;
    MenuItem* mnuFacile = nullptr;
    MenuItem* mnuMedia;
    MenuItem* mnudifficile;
    MenuItem* mnuesci;

private:
    void Scegli(MenuItem* item);
};

class formStampa2 : public FoglioTabella {
    Q_OBJECT
public:
    explicit formStampa2(Program& app);
    void Activate() override;

protected:
    void Genera8Numeri() override;
};

class formStampa3 : public FoglioTabella {
    Q_OBJECT
public:
    explicit formStampa3(Program& app);

protected:
    void Genera8Numeri() override;
    void RiempiTabella() override;
};

// formStampa2 and formStampa3, each under its own name.
FormList TableSheetForms();

} // namespace contarello
