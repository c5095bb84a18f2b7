#pragma once
// Two screens on reading a number: FormMM asks which of ">", "<", "=" stands between two numbers,
// FormSimb shows a number as tens and units ("4 da 7 u") and asks for it in digits.

#include "shell/exercise.h"

#include <memory>

namespace contarello {

// The child answers with one of three buttons instead of typing. Everything is set up in Load, so a
// question left open while a worksheet is printed is still there when the child comes back.
class FormMM : public ExerciseForm {
    Q_OBJECT
public:
    explicit FormMM(Program& app);

    QJsonObject fields() const override;
    // The two numbers, and the sign between them once it is found.
    QString TestoDomanda() const override;

protected:
    void NuovaDomanda() override;
    void InAttesa() override;
    void Riprendi() override { Label3->setVisible(false); }

private:
    void Comando_Click(int index);

    ControlArray<Label> EtNumero;
    Label* Label3;
    ControlArray<CommandButton> Comando;

    int16_t PrimoNumero = 0;
    int16_t SecondoNumero = 0;
    int16_t SimboloEsatto = 0; // the index of the right button: 0 ">", 1 "<", 2 "="
};

class FormSimb : public QuestionForm {
    Q_OBJECT
public:
    explicit FormSimb(Program& app);

    QJsonObject fields() const override;

protected:
    void NuovaDomanda() override;
    void MostraRispostaEsatta() override;

private:
    int16_t QuanteDecine = 0;
    int16_t QuanteUnita = 0;
};

// FormMM and FormSimb, each under its own name.
FormList ComparisonForms();

} // namespace contarello
