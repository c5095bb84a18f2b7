#pragma once
// The worksheet screen: a page of exercises of the kind of the screen that opened it, with its
// correction, chosen in rows, columns and print size, and sent to the printer. It opens over the
// exercise, which waits loaded behind it.

#include "shell/form.h"
#include "shell/printout.h"

#include <memory>

namespace contarello {

class formStampa : public Form {
    Q_OBJECT
public:
    explicit formStampa(Program& app);

    void Activate() override;
    QJsonObject fields() const override;

    // Empties both boxes and fills them again from one pass of the worksheet of NumeroScheda.
    void NuovaScheda();

private:
    // A copy of each text, its long lines broken for the printer: the sheet at 100 characters,
    // the correction at 90, in the size chosen.
    TestoStampato Foglio() const;
    TestoStampato Correzione() const;
    // "Contarello - scheda 9": what the print queue and the PDF call the document.
    QString NomeDocumento(const QString& cosa) const;
    void Stampa(const TestoStampato& documento, const QString& nome);

    MultiLineTextBox* txtCD;
    MultiLineTextBox* TextCor;
    ListBox* List1;
    Frame* Frame1;
    Frame* Frame2;
    Frame* Frame3;
    ControlArray<OptionButton> OptionRighe;
    ControlArray<OptionButton> OptionColonne;
    ControlArray<OptionButton> OptionCarattere;
    CommandButton* btnCD;
    CommandButton* Command1;
    CommandButton* Command2;
    CommandButton* BottoneEsci;
    CommandButton* btnPDF;

    int16_t NumeroRighe = 5;
    int16_t NumeroColonne = 2;
    int16_t GrandezzaCarattere = 12;
};

// formStampa under its name.
FormList StampaForms();

} // namespace contarello
