#pragma once
// The two screens that pass between a number's word and its digits: FormScri shows the word and
// takes the digits, FormScri2 shows the digits and takes the word. One class, one table.

#include "shell/exercise.h"

#include <memory>

namespace contarello {

struct WordsMember {
    const char* form;
    const char* consegna; // what Label3 asks the child to do
    double fontTesto;     // points of the answer box
    int larghezzaTesto;   // width of the answer box, in twips
    bool randomize;       // FormScri seeds the sequence again as it opens
    // The question as the child reads it.
    QString (*domanda)(int numero, Modulo1& g);
    // Whether the text typed answers the number.
    bool (*giusta)(const QString& testo, int numero, Modulo1& g);
    // The key filter of the answer box, or nullptr for none.
    int (*filtro)(int& keyAscii);
};

// The two screens, each under its own name.
FormList WordsForms();

class WordsForm : public QuestionForm {
    Q_OBJECT
public:
    WordsForm(Program& app, const WordsMember& member);

protected:
    void Prepara() override;
    void NuovaDomanda() override;
    bool RispostaGiusta() override;
    // The question stays as it is while the screen waits: a word and its digits side by side would
    // not read as one line.
    void MostraRispostaEsatta() override {}

private:
    const WordsMember& member_;
};

} // namespace contarello
