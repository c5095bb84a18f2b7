#include "shell/exercise.h"
#include "core/lang.h"
#include "core/phrases.h"
#include "shell/focus.h"
#include "shell/keypad.h"
#include "shell/pictures.h"
#include "shell/program.h"

#include <QKeyEvent>
#include <limits>

namespace contarello {

namespace {
// Where the screens write the question and its prompt.
const QStringList kEtichetteDomanda = {QStringLiteral("EtichettaNumero"), QStringLiteral("EtNumero"),
                                       QStringLiteral("Label3")};
} // namespace

QString FiltroCifre(const QString& text) {
    QString digits;
    for (QChar c : text)
        if (Asc(c) >= 48 && Asc(c) < 58) digits += c;
    return digits;
}

ExerciseForm::ExerciseForm(Program& program, Variante variante, int16_t numeroScheda, int widthTwips,
                           int heightTwips, FrameOptions options)
    : Form(program, widthTwips, heightTwips), variante_(variante), numeroScheda_(numeroScheda),
      options_(options) {
    const MenuCaptions& c = options.captions;
    MenuAzzera = menu(options.azzera, QString::fromUtf8(c.azzera));
    if (options.stampaScheda) mnuStampa = menu(options.stampa, QString::fromUtf8(c.stampa));
    MenuInformazioni = menu(options.informazioni, QString::fromUtf8(c.informazioni));
    mnuEsci = menu(options.esci, QStringLiteral("Esci"));

    const FrameLayout& at = options.layout;
    auto place = [this](const char* name, const QString& caption, const Rect& r, const QFont& font) {
        return label(QLatin1String(name), caption, r.left, r.top, r.width, r.height, font);
    };
    Label1 = place("Label1", QStringLiteral("Esatti"), at.label1, Arial(12));
    EtichettaEsatti = place("EtichettaEsatti", QStringLiteral("0"), at.esatti, Arial(18));
    Label2 = place("Label2", QStringLiteral("Errati"), at.label2, Arial(12));
    EtichettaErrati = place("EtichettaErrati", QStringLiteral("0"), at.errati, Arial(18));

    // The two faces share one place, so exactly one of them is seen: the sad one until a right answer.
    const Rect& f = at.facce;
    ComandoIconaSi =
        button(QStringLiteral("ComandoIconaSi"), QString(), f.left, f.top, f.width, f.height, Arial(8));
    ComandoIconaSi->setPicture(pictures::FacciaSorridente());
    ComandoIconaSi->setVisible(false);
    ComandoIconaSi->setFocusPolicy(Qt::NoFocus);
    ComandoIconaNo =
        button(QStringLiteral("ComandoIconaNo"), QString(), f.left, f.top, f.width, f.height, Arial(8));
    ComandoIconaNo->setPicture(pictures::FacciaTriste());
    ComandoIconaNo->setFocusPolicy(Qt::NoFocus);

    if (options.bottoneAvanti) {
        const Rect& a = at.avanti;
        BottoneAvanti = button(QStringLiteral("BottoneAvanti"), QStringLiteral("avanti"), a.left, a.top,
                               a.width, a.height, Arial(14.25));
        BottoneAvanti->setPicture(pictures::Freccia());
        BottoneAvanti->setVisible(false);
        BottoneAvanti->setEnabled(false);
        BottoneAvanti->Click = [this] { BottoneAvanti_Click(); };
    }

    MenuAzzera->Click = [this] { AzzeraConteggio(); };
    if (mnuStampa) mnuStampa->Click = [this] { mnuStampa_Click(); };
    MenuInformazioni->Click = [this] { MostraInformazioni(app); };
    mnuEsci->Click = [this] { mnuEsci_Click(); };
}

void ExerciseForm::Load() {
    DomandaCliccabile();
    // Choosing the option runs its click: the limit, a question, the panel hidden.
    if (options_.limiteA99 && OpzioneNumeroMassimo(8)) OpzioneNumeroMassimo(8)->setValue(true);
    switch (options_.setUp) {
    case SetUp::OnLoad:
        Imposta();
        break;
    case SetUp::QuestionOnActivate:
        AzzeraConteggio();
        Prepara();
        break;
    case SetUp::OnActivate:
        break;
    }
}

void ExerciseForm::Activate() {
    switch (options_.setUp) {
    case SetUp::OnLoad:
        break;
    case SetUp::QuestionOnActivate:
        MostraAvanti();
        ProssimaDomanda();
        break;
    case SetUp::OnActivate:
        Imposta();
        break;
    }
    if (fuocoInSospeso_) FuocoInizio();
}

void ExerciseForm::Imposta() {
    MostraAvanti();
    AzzeraConteggio();
    Prepara();
    ProssimaDomanda();
}

void ExerciseForm::ProssimaDomanda() {
    NuovaDomanda();
    Annuncia(true);
    FuocoInizio();
}

void ExerciseForm::FuocoInizio() {
    // A screen set up as it loads isn't shown yet: the focus finds its place when it comes up.
    if (!isVisible()) {
        fuocoInSospeso_ = true;
        return;
    }
    fuocoInSospeso_ = false;
    if (QWidget* w = focusWidget(); w && w->isVisible() && w->isEnabled() && TakesTyping(w)) return;
    if (!inizio_.empty() && FocusFirst(*this, inizio_)) return;
    // A digit waiting to be placed comes before the places it can go.
    std::vector<Control*> trascinabili;
    for (Control* c : controls())
        if (auto* l = dynamic_cast<Label*>(c); l && l->DragMode() == 1) trascinabili.push_back(c);
    if (!Carried() && FocusFirst(*this, trascinabili)) return;
    // The screen's own controls: not the counters, the faces, "avanti", the limit panel or the
    // question that says itself again.
    std::vector<Control*> propri;
    for (Control* c : controls()) {
        QWidget* w = c->widget();
        if (w && w != BottoneAvanti && !(CorniceNumeroMassimo && CorniceNumeroMassimo->isAncestorOf(w)) &&
            !kEtichetteDomanda.contains(c->name()))
            propri.push_back(c);
    }
    FocusFirst(*this, propri);
}

bool ExerciseForm::focusNextPrevChild(bool next) {
    // The control the child was on went off with the step just made: the focus goes where the
    // question goes on, not nowhere.
    QWidget* w = focusWidget();
    if (w && (!w->isEnabled() || !w->isVisible())) {
        FuocoInizio();
        if (focusWidget() != w) return true;
    }
    return Form::focusNextPrevChild(next);
}

QString ExerciseForm::TestoDomanda() const {
    QStringList parti;
    for (const QString& nome : kEtichetteDomanda)
        if (auto* l = dynamic_cast<Label*>(find(nome)); l && !l->isHidden()) parti << l->Caption();
    return parti.join(u'\n');
}

void ExerciseForm::Annuncia(bool nuova) {
    if (!app.voce) return;
    nuova_ = nuova_ || nuova;
    if (std::exchange(annuncio_, true)) return;
    // Said once the handler that changed the screen has finished: the whole question as it shows,
    // once, however many steps made it.
    QMetaObject::invokeMethod(
        this,
        [this] {
            annuncio_ = false;
            const QString frase = FraseDaDire(TestoDomanda());
            if ((std::exchange(nuova_, false) || frase != detta_) && app.voce && !frase.isEmpty())
                app.speech.say(frase);
            detta_ = frase;
        },
        Qt::QueuedConnection);
}

void ExerciseForm::RipetiDomanda() {
    detta_ = FraseDaDire(TestoDomanda());
    if (app.voce && !detta_.isEmpty()) app.speech.say(detta_);
}

void ExerciseForm::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_F2 && e->modifiers() == Qt::NoModifier) {
        RipetiDomanda();
        e->accept();
        return;
    }
    Form::keyPressEvent(e);
}

void ExerciseForm::DomandaCliccabile() {
    // Only with the voice on: a label that answers a click is one more place for the keyboard to
    // stop at, and without the voice it would do nothing.
    if (!app.voce || std::exchange(cliccabile_, true)) return;
    for (const QString& nome : kEtichetteDomanda)
        if (auto* l = dynamic_cast<Label*>(find(nome));
            l && !l->Click && !l->MouseDown && !l->DragDrop && l->DragMode() == 0)
            l->Click = [this] { RipetiDomanda(); };
}

// "avanti" shows only where the main menu asked for the wait.
void ExerciseForm::MostraAvanti() {
    if (BottoneAvanti) BottoneAvanti->setVisible(g.AttendiBottone != False);
}

void ExerciseForm::mnuEsci_Click() {
    if (app.dialogs.MsgBox(QStringLiteral("Vuoi tornare al menù?"), vbYesNoQuestion, kTitolo) == vbYes) {
        GoTo(QStringLiteral("FormMenu"));
    }
}

void ExerciseForm::mnuStampa_Click() {
    const QString scheda = QString::fromUtf8(options_.scheda);
    if (scheda == QLatin1String("formStampa")) g.NumeroScheda = numeroScheda_;
    Show(scheda);
}

void ExerciseForm::AzzeraConteggio() {
    EtichettaEsatti->setCaption(QStringLiteral("0"));
    EtichettaErrati->setCaption(QStringLiteral("0"));
    g.Esatti = 0;
    g.Errati = 0;
}

namespace {

// A counter stops at the largest value it holds: the child's score never turns negative.
void countUp(int16_t& counter) {
    if (counter < std::numeric_limits<int16_t>::max()) ++counter;
}

} // namespace

void ExerciseForm::RispostaEsatta() {
    ComandoIconaSi->setVisible(true);
    ComandoIconaNo->setVisible(false);
    countUp(g.Esatti);
    SuonoEsatto(app);
    EtichettaEsatti->setCaption(Str(g.Esatti));
}

void ExerciseForm::Rispondi(bool giusta) {
    if (!giusta) {
        RispostaErrata();
        if (options_.avvisoErrata) {
            app.dialogs.MsgBox(QString::fromUtf8(options_.avvisoErrata), vbCritical, kTitolo);
            SuonoErrato(app);
        }
        return;
    }
    Esatta();
    RispostaEsatta();
    if (options_.lode) app.dialogs.MsgBox(QString::fromUtf8(options_.lode), vbOKOnly, kTitolo);
    if (ContinuaDomanda()) return;
    if (BottoneAvanti && BottoneAvanti->Visible()) {
        BottoneAvanti->setEnabled(true);
        for (QWidget* w : risposta_)
            w->setEnabled(false);
        InAttesa();
        // The keyboard goes on from where the child is asked to: "avanti".
        BottoneAvanti->setFocus(Qt::OtherFocusReason);
    } else {
        ProssimaDomanda();
    }
}

void ExerciseForm::BottoneAvanti_Click() {
    for (QWidget* w : risposta_)
        w->setEnabled(true);
    Riprendi();
    BottoneAvanti->setEnabled(false);
    ProssimaDomanda();
}

TextBox* ExerciseForm::CasellaRisposta(const QString& name, const Rect& r, const QFont& font,
                                       std::function<bool(const QString&)> giusta, OpzioniCasella casella) {
    TextBox* box = textBox(name, r.left, r.top, r.width, r.height, font);
    box->setAlignment(Qt::AlignCenter);
    box->setAccessibleName(QStringLiteral("risposta"));
    MarkAnswerBox(*box, casella.filtro == &FiltroMaiuscole);
    RispondeCon(box);
    auto invio = [this, box, giusta = std::move(giusta), passo = casella.passo] {
        const bool esatta = giusta(box->Text());
        if (esatta && passo) return passo();
        Rispondi(esatta);
        if (!esatta && box->isEnabled()) box->SetFocus();
    };
    const auto filtro = casella.filtro;
    if (casella.alRilascio) {
        if (filtro) box->KeyPress = [filtro](int& keyAscii) { keyAscii = filtro(keyAscii); };
        box->KeyUp = [box, invio, vuota = casella.ancheVuota](int keyCode, int) {
            if (keyCode == 13 && (vuota || !box->Text().isEmpty())) invio();
        };
    } else {
        box->KeyPress = [filtro, invio](int& keyAscii) {
            if (filtro) keyAscii = filtro(keyAscii);
            if (keyAscii == 13) invio();
        };
    }
    return box;
}

void ExerciseForm::RispostaErrata() {
    ComandoIconaSi->setVisible(false);
    ComandoIconaNo->setVisible(true);
    countUp(g.Errati);
    SuonoErrato(app);
    EtichettaErrati->setCaption(Str(g.Errati));
}

Frame* ExerciseForm::PannelloScelte(const QString& name, const QString& caption, const QString& optionName,
                                    const QStringList& scelte, int colonne,
                                    ControlArray<OptionButton>& opzioni,
                                    const std::function<void(int)>& scelta) {
    // The panel covers the screen's area under the menu bar, so nothing behind it shows.
    const int largo = twipsOf(client()->width()), alto = twipsOf(client()->height());
    Frame* pannello = frame(name, caption, 0, 0, largo, alto, Arial(14.25));
    pannello->setBackColor(QColor(0xc0, 0xff, 0xff));
    pannello->setVisible(false);
    // Large tiles in columns, filled top down, in the middle of the panel, under its caption.
    constexpr int kLargo = 2400, kSpazio = 480, kSopra = 960;
    const int righe = (int(scelte.size()) + colonne - 1) / colonne;
    const int passo = std::min(1560, (alto - kSopra - 240) / std::max(1, righe));
    const int tessera = std::min(1080, passo - 120);
    const int sinistra = (largo - colonne * kLargo - (colonne - 1) * kSpazio) / 2;
    for (int i = 0; i < int(scelte.size()); ++i) {
        const int col = i / righe, row = i % righe;
        auto* o = option(indexed(optionName, i), scelte[i], sinistra + col * (kLargo + kSpazio),
                         kSopra + row * passo, kLargo, tessera, Arial(20.25), pannello);
        o->setAutoFillBackground(false); // the tiles stand on the panel, not on grey patches
        o->Click = [scelta, i] { scelta(i); };
        opzioni.set(i, o);
    }
    pannello->raise();
    return pannello;
}

void ExerciseForm::AggiungiCorniceNumeroMassimo(const QString& menuName, const QString& menuCaption,
                                                MenuItem* before) {
    QStringList limiti;
    for (int i = 0; i < 9; ++i)
        limiti << QString::number(19 + 10 * i);
    CorniceNumeroMassimo = PannelloScelte(QStringLiteral("CorniceNumeroMassimo"),
                                          QStringLiteral("Scegli il numero massimo entro il quale lavorare"),
                                          QStringLiteral("OpzioneNumeroMassimo"), limiti, 3,
                                          OpzioneNumeroMassimo, [this](int i) {
                                              g.NumeroMassimo = int16_t(19 + 10 * i);
                                              ProssimaDomanda();
                                              CorniceNumeroMassimo->setVisible(false);
                                              FuocoInizio();
                                          });
    MenuItem* item = menu(menuName, menuCaption, nullptr, before);
    item->Click = [this] {
        MostraNumeroMassimo();
        CorniceNumeroMassimo->MostraSopra();
    };
}

void ExerciseForm::MostraNumeroMassimo() {
    // The limit in force shows as chosen; one set from the main menu, such as 25, is none of them.
    for (auto& [i, o] : OpzioneNumeroMassimo) {
        o->setAutoExclusive(false);
        o->setChecked(g.NumeroMassimo == 19 + 10 * i);
        o->setAutoExclusive(true);
    }
}

// ---- QuestionForm ----

QuestionForm::QuestionForm(Program& program, Variante variante, int16_t numeroScheda, Look look,
                           FrameOptions options, OpzioniCasella casella)
    : ExerciseForm(program, variante, numeroScheda, 9495, 6510, options), consegna_(look.consegna) {
    const Rect& n = look.etichettaNumero;
    EtichettaNumero =
        label(QStringLiteral("EtichettaNumero"), QString(), n.left, n.top, n.width, n.height, look.numero);
    EtichettaNumero->setAlignment(Qt::AlignCenter);
    Text1 = CasellaRisposta(
        QStringLiteral("Text1"), look.text1, look.testo, [this](const QString&) { return RispostaGiusta(); },
        casella);
}

void QuestionForm::ScriviDomanda(const QString& caption) {
    Text1->setText(QString());
    EtichettaNumero->setCaption(caption);
    if (Text1->isEnabled()) Text1->SetFocus();
}

void QuestionForm::Consegna(const QString& testo) {
    const Rect& r = consegna_;
    Label3 = label(QStringLiteral("Label3"), testo, r.left, r.top, r.width, r.height, Arial(12));
    Label3->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
}

void QuestionForm::MostraRispostaEsatta() {
    EtichettaNumero->setCaption(EtichettaNumero->Caption() + Text1->Text());
}

bool QuestionForm::RispostaGiusta() {
    return Val(FiltroCifre(Text1->Text())) == g.NumeroEsatto;
}

} // namespace contarello
