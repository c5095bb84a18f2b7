#pragma once
// The frame every exercise screen stands on: the two counters, the two faces, the "avanti" button,
// the four menu items, the random background and the limit panel. A screen adds its own controls
// and says how it draws a question; the rest is here once.

#include "shell/colori.h"
#include "shell/form.h"

namespace contarello {

// A place on the screen, in twips.
struct Rect {
    int left, top, width, height;
};

// Where the frame's own controls stand: the counters in a row at the top, the faces at the right
// of the row, "avanti" low on the right.
struct FrameLayout {
    Rect label1{360, 480, 1095, 375};
    Rect esatti{1500, 420, 1095, 495};
    Rect label2{3000, 480, 1095, 375};
    Rect errati{4140, 420, 1095, 495};
    Rect facce{6045, 315, 855, 750};
    Rect avanti{7440, 4080, 1575, 1215};
};

// The captions of the first three menu items: their blanks space the items along the bar.
struct MenuCaptions {
    const char* azzera = "Azzera conteggio       ";
    const char* stampa = "Stampa scheda       ";
    const char* informazioni = "Informazioni          ";
};
// The spacing most screens after the first ones take.
constexpr MenuCaptions kMenuLargo{"Azzera conteggio        ", "Stampa scheda        ",
                                  "Informazioni         "};

// What a screen changes of the frame.
struct FrameOptions {
    // The names of the menu items: a few screens spell one differently.
    const char* azzera = "MenuAzzera";
    const char* stampa = "mnuStampa";
    const char* informazioni = "MenuInformazioni";
    const char* esci = "mnuEsci";
    MenuCaptions captions;
    bool bottoneAvanti = true;
    // Whether the screen prints at all, and what: formStampa with the screen's worksheet number, or a
    // drawn worksheet screen of its own.
    bool stampaScheda = true;
    const char* scheda = "formStampa";
    // The screens whose limit panel starts at 99 each time they are loaded, whatever the main menu said.
    bool limiteA99 = false;
    FrameLayout layout;
};

// The fonts and places of the question, the answer box and the prompt under it.
struct QuestionLook {
    QFont numero = Arial(18);
    QFont testo = Arial(48);
    Rect etichettaNumero{240, 1440, 8895, 855};
    Rect text1{2520, 2520, 4335, 1335};
    Rect consegna{2160, 3960, 5055, 375};
};

class ExerciseForm : public Form {
    Q_OBJECT
public:
    ExerciseForm(Program& app, Variante variante, int16_t numeroScheda, int widthTwips = 9495,
                 int heightTwips = 6510, FrameOptions options = {});

    // Closing the window from outside is the same as "Esci": it asks first.
    void CloseBox() override { mnuEsci_Click(); }
    // The frame's part of Load, which every screen's Load runs first: on the screens that ask for it,
    // the limit panel chooses 99.
    void Load() override;

    Variante variante() const { return variante_; }
    int16_t numeroScheda() const { return numeroScheda_; }

protected:
    // Makes the next question.
    virtual void NuovaDomanda() = 0;
    virtual void BottoneAvanti_Click() {}
    // Sets this screen's worksheet and shows the worksheet screen over it.
    virtual void mnuStampa_Click();
    // Asks whether to go back to the main menu, and goes on Yes.
    void mnuEsci_Click();

    void CaricaColori() { contarello::CaricaColori(*this, variante_); }
    // Both counters to 0, as the screen opens and as "Azzera conteggio" does.
    void AzzeraConteggio();
    // The smiling face, one more right answer, a cheerful sound, the counter written.
    void RispostaEsatta();
    // The sad face, one more wrong answer, the gentle sound, the counter written.
    void RispostaErrata();
    // A right answer, then either the wait for "avanti" (enabled, and what the screen shows while it
    // waits) or, with the button hidden, the next question at once.
    void RispostaEsattaPoiAvanti(const std::function<void()>& inAttesa = {});

    // A panel of choices lying over the whole screen, hidden until shown: its caption, then large
    // option tiles in columns, each choice handed to scelta with its index.
    Frame* PannelloScelte(const QString& name, const QString& caption, const QString& optionName,
                          const QStringList& scelte, int colonne, ControlArray<OptionButton>& opzioni,
                          const std::function<void(int)>& scelta);
    // The limit panel, opened by a menu item of the given name; its options set the limit from 19
    // to 99 and draw a new question.
    void AggiungiCorniceNumeroMassimo(const QString& menuName, const QString& menuCaption,
                                      MenuItem* before = nullptr);
    // Marks the option of the limit in force, without choosing it.
    void MostraNumeroMassimo();

    Label* Label1;
    Label* Label2;
    Label* EtichettaEsatti;
    Label* EtichettaErrati;
    CommandButton* ComandoIconaSi;
    CommandButton* ComandoIconaNo;
    CommandButton* BottoneAvanti = nullptr; // none on the screens without it
    MenuItem* MenuAzzera;
    MenuItem* mnuStampa = nullptr; // none on the screens that don't print
    MenuItem* MenuInformazioni;
    MenuItem* mnuEsci;
    Frame* CorniceNumeroMassimo = nullptr;
    ControlArray<OptionButton> OpzioneNumeroMassimo;

private:
    Variante variante_;
    int16_t numeroScheda_;
    FrameOptions options_;
};

// The screens that ask a question in EtichettaNumero and take the answer typed in Text1 on Enter:
// counters set in Load, the question drawn in Activate.
class QuestionForm : public ExerciseForm {
    Q_OBJECT
public:
    using Look = QuestionLook;
    QuestionForm(Program& app, Variante variante, int16_t numeroScheda, Look look = {},
                 FrameOptions options = {});

    void Load() override;
    void Activate() override;

protected:
    void BottoneAvanti_Click() override;
    // Enter released on a text that isn't empty: the answer judged, then counted.
    void Text1_KeyUp(int keyCode, int shift);
    // Whether the text in the box answers the question: by default its digits against NumeroEsatto.
    virtual bool RispostaGiusta();
    // What a right answer shows while the screen waits for "avanti": the answer after the question.
    virtual void MostraRispostaEsatta();
    // Empties the box, writes the question and gives the box the focus when it can take it.
    void ScriviDomanda(const QString& caption);
    // The fixed prompt under the answer box, "Scrivi il numero in cifre" and the like.
    void Consegna(const QString& testo);
    Rect consegna_;

    Label* EtichettaNumero;
    TextBox* Text1;
    Label* Label3 = nullptr; // the prompt, on the screens that have one
};

// The digits of a text in their order, everything else dropped.
QString FiltroCifre(const QString& text);

} // namespace contarello
