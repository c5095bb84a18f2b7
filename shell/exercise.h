#pragma once
// The frame every exercise screen stands on: the two counters, the two faces, the "avanti" button,
// the four menu items, the random background and the limit panel. A screen adds its own controls
// and says how it draws a question; the rest is here once.

#include "shell/colori.h"
#include "shell/form.h"
#include "shell/program.h"

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

// When a screen sets itself up: the counters to 0 and the first question. As it loads, so that a
// question left open while a worksheet is printed is still there on return; the counters as it
// loads and a new question each time it comes up; or all of it each time it comes up.
enum class SetUp { OnLoad, QuestionOnActivate, OnActivate };

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
    SetUp setUp = SetUp::QuestionOnActivate;
    // A message box after each wrong answer, followed by the gentle sound once more; none if nullptr.
    const char* avvisoErrata = nullptr;
    // A message box after each right answer, before the next question; none if nullptr.
    const char* lode = nullptr;
    FrameLayout layout;
};

// How an answer box takes Enter.
struct OpzioniCasella {
    // Enter answers on its release, once even when held; or on every press, the repeats of a held
    // key included.
    bool alRilascio = true;
    // Enter released on an empty box answers too (the screens then read it as 0); otherwise it does
    // nothing. Taken on every press, Enter always answers.
    bool ancheVuota = false;
    // The key filter of the box, or nullptr for none.
    int (*filtro)(int& keyAscii) = nullptr;
    // A right answer in this box is only a step of the question: this runs instead, and nothing is
    // counted. A wrong one counts as any other.
    std::function<void()> passo = nullptr;
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
    // On the screens that ask for it the limit panel chooses 99; then the screen is set up as its
    // options say.
    void Load() override;
    void Activate() override;

    Variante variante() const { return variante_; }
    int16_t numeroScheda() const { return numeroScheda_; }

    // The question as the child sees it, in reading order, a line for each part: what the voice
    // says of it. By default the question's label (EtichettaNumero or EtNumero) and the prompt
    // (Label3), where the screen shows them.
    virtual QString TestoDomanda() const;

protected:
    bool focusNextPrevChild(bool next) override;
    // Makes the next question. The frame calls it through ProssimaDomanda, so that the voice says
    // the new question and the focus goes where the child acts first (the answer box, or the
    // material); a screen that starts a question of its own does the same.
    virtual void NuovaDomanda() = 0;
    void ProssimaDomanda();
    // With the voice on, says the question once the screen has finished showing it: a new question
    // always, a question gone on to its next stage only when what it shows has changed.
    void Annuncia(bool nuova = false);
    // Says the question again, at once: F2, or a click on the question.
    void RipetiDomanda();
    // A cell or a tick that answers nothing says its number; a blank one says nothing.
    void DiNumero(const QString& caption) { Parla(app, caption); }
    // F2 reaches the screen from whatever control has the focus, since none of them takes it.
    void keyPressEvent(QKeyEvent* e) override;
    // What the screen sets up of its own as it starts, after the counters and before the first
    // question.
    virtual void Prepara() {}
    // The answer's controls back on and whatever Riprendi puts back, then the next question.
    virtual void BottoneAvanti_Click();
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

    // ---- The answer cycle, the same however the child answers: a box, a button, a cell ----
    // A right answer: the screen's own part (Esatta), the smiling face, the count and the sound,
    // then, unless the question goes on, either the wait for "avanti" (enabled, the answer's
    // controls off, and what InAttesa shows) or, with the button hidden, the next question at once.
    // A wrong answer: the sad face, the count and the sound, and the answer stays to be mended.
    void Rispondi(bool giusta);
    // The screen's own part of a right answer, before it is counted: a number written, a cell red.
    virtual void Esatta() {}
    // After a right answer that leaves the question open, the screen goes on by itself and says
    // true: the number line asks its next tick.
    virtual bool ContinuaDomanda() { return false; }
    // What the screen shows while it waits for "avanti", besides its answer's controls off.
    virtual void InAttesa() {}
    // What "avanti" puts back besides the answer's controls, before the next question.
    virtual void Riprendi() {}
    // A control the child answers with: off while the screen waits for "avanti", on again with it.
    void RispondeCon(QWidget* control) { risposta_.push_back(control); }
    // Where a child using the keyboard starts on a new question when there is no answer box: the
    // first of these the focus can reach. By default, the first of the screen's own controls.
    void SiComincia(std::vector<Control*> controlli) { inizio_ = std::move(controlli); }
    // The box the child writes the answer in, placed and named, its text judged by giusta on Enter
    // as the options say. After a wrong answer it has the focus back.
    TextBox* CasellaRisposta(const QString& name, const Rect& r, const QFont& font,
                             std::function<bool(const QString& testo)> giusta, OpzioniCasella casella = {});

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
    // The counters to 0, the screen's own preparation and a first question.
    void Imposta();
    void MostraAvanti();
    void FuocoInizio();
    // With the voice on, a click on the question's label or its prompt says it again.
    void DomandaCliccabile();

    Variante variante_;
    int16_t numeroScheda_;
    FrameOptions options_;
    std::vector<QWidget*> risposta_;
    std::vector<Control*> inizio_;
    bool fuocoInSospeso_ = false;
    QString detta_;         // what the voice last said of the question
    bool annuncio_ = false; // the question is to be said once the screen is shown
    bool nuova_ = false;    // ...as a new one, even if it reads as the last
    bool cliccabile_ = false;
};

// The screens that ask a question in EtichettaNumero and take the answer typed in Text1 on Enter:
// counters set in Load, the question drawn in Activate.
class QuestionForm : public ExerciseForm {
    Q_OBJECT
public:
    using Look = QuestionLook;
    QuestionForm(Program& app, Variante variante, int16_t numeroScheda, Look look = {},
                 FrameOptions options = {}, OpzioniCasella casella = {});

protected:
    // Whether the text in the box answers the question: by default its digits against NumeroEsatto.
    virtual bool RispostaGiusta();
    // What a right answer shows while the screen waits for "avanti": the answer after the question.
    void InAttesa() override { MostraRispostaEsatta(); }
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
