#pragma once
// "Ordina i numeri": a column of numbers on buttons, clicked one after the other into a second
// column, the order judged as a whole once the last one is placed. The task stands in the title
// bar, the one screen of the program that has one.

#include "core/globals.h"
#include "shell/exercise.h"

#include <array>
#include <memory>

namespace contarello {

class FormOrd : public ExerciseForm {
    Q_OBJECT
public:
    explicit FormOrd(Program& app);

    QJsonObject fields() const override;
    // The order asked, then the numbers still on their buttons.
    QString TestoDomanda() const override;
    void Unload() override;

protected:
    // Everything is set up as the screen loads and nothing as it comes up: coming back from the
    // worksheet keeps the question the child was ordering.
    void Prepara() override;
    void NuovaDomanda() override;

private:
    void ComandoNumero_Click(int k);
    void ControllaOrdine();
    // The same numbers back on their buttons and the second column emptied.
    void RimettiNumeri();
    void Option3D1_Click(int i);
    void ScegliOrdinamento(bool dalMinore);
    // The numbers to a row of the worksheet, in the hidden Label3 and for the worksheet.
    void ScriviRiga(const QString& quanti);

    ControlArray<CommandButton> ComandoNumero;
    ControlArray<Label> EtNumero;
    CommandButton* BottoneRicomincia;
    Frame* EtNumeri;
    ControlArray<OptionButton> Option3D1;
    Label* Label3;
    MenuItem* MenuQuantiNumeri;
    MenuItem* MenuOrdinamento;
    MenuItem* MenuSu;
    MenuItem* MenuGiu;

    std::array<int16_t, 11> Numeri{};
    std::array<int16_t, 11> Ordinati{};
    int16_t QuantiNumeri = 7;
    int16_t Scelti = 0;
    int16_t DalMinore = True;
};

// FormOrd under its name.
FormList OrderingForms();

} // namespace contarello
