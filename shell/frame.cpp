#include "shell/frame.h"
#include "shell/lang.h"
#include "shell/pictures.h"
#include "shell/program.h"

#include <limits>

namespace contarello {

namespace {
const QString kBlanks7 = QStringLiteral("       ");
}

QString FiltroCifre(const QString& text) {
    QString digits;
    for (QChar c : text)
        if (Asc(c) >= 48 && Asc(c) < 58) digits += c;
    return digits;
}

ExerciseForm::ExerciseForm(Program& program, const QString& name, Variante variante, int16_t numeroScheda,
                           int widthTwips, int heightTwips, FrameOptions names)
    : Form(program, name, widthTwips, heightTwips), variante_(variante), numeroScheda_(numeroScheda) {
    MenuAzzera = menu(names.azzera, QStringLiteral("Azzera conteggio") + kBlanks7);
    mnuStampa = menu(names.stampa, QStringLiteral("Stampa scheda") + kBlanks7);
    MenuInformazioni = menu(names.informazioni, QStringLiteral("Informazioni          "));
    mnuEsci = menu(names.esci, QStringLiteral("Esci"));

    Label1 = label(QStringLiteral("Label1"), QStringLiteral("Esatti"), 360, 480, 1095, 375, Arial(12));
    EtichettaEsatti =
        label(QStringLiteral("EtichettaEsatti"), QStringLiteral("0"), 1500, 420, 1095, 495, Arial(18));
    Label2 = label(QStringLiteral("Label2"), QStringLiteral("Errati"), 3000, 480, 1095, 375, Arial(12));
    EtichettaErrati =
        label(QStringLiteral("EtichettaErrati"), QStringLiteral("0"), 4140, 420, 1095, 495, Arial(18));

    // The two faces share one place, so exactly one of them is seen: the sad one until a right answer.
    ComandoIconaSi = button(QStringLiteral("ComandoIconaSi"), QString(), 6045, 315, 855, 750, Arial(8));
    ComandoIconaSi->setPicture(pictures::FacciaSorridente());
    ComandoIconaSi->setVisible(false);
    ComandoIconaSi->setFocusPolicy(Qt::NoFocus);
    ComandoIconaNo = button(QStringLiteral("ComandoIconaNo"), QString(), 6045, 315, 855, 750, Arial(8));
    ComandoIconaNo->setPicture(pictures::FacciaTriste());
    ComandoIconaNo->setFocusPolicy(Qt::NoFocus);

    if (names.bottoneAvanti) {
        BottoneAvanti = button(QStringLiteral("BottoneAvanti"), QStringLiteral("avanti"), 7440, 4080, 1575,
                               1215, Arial(14.25));
        BottoneAvanti->setPicture(pictures::Freccia());
        BottoneAvanti->setVisible(false);
        BottoneAvanti->setEnabled(false);
        BottoneAvanti->Click = [this] { BottoneAvanti_Click(); };
    }

    MenuAzzera->Click = [this] { AzzeraConteggio(); };
    mnuStampa->Click = [this] { mnuStampa_Click(); };
    MenuInformazioni->Click = [this] { MostraInformazioni(app); };
    mnuEsci->Click = [this] { mnuEsci_Click(); };
}

void ExerciseForm::mnuEsci_Click() {
    if (app.dialogs.MsgBox(QStringLiteral("Vuoi tornare al menù?"), vbYesNoQuestion, kTitolo) == vbYes) {
        GoTo(QStringLiteral("FormMenu"));
    }
}

void ExerciseForm::mnuStampa_Click() {
    g.NumeroScheda = numeroScheda_;
    Show(QStringLiteral("formStampa"));
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

void ExerciseForm::RispostaEsattaPoiAvanti(const std::function<void()>& inAttesa) {
    RispostaEsatta();
    if (BottoneAvanti && BottoneAvanti->Visible()) {
        BottoneAvanti->setEnabled(true);
        if (inAttesa) inAttesa();
    } else {
        NuovaDomanda();
    }
}

void ExerciseForm::RispostaErrata() {
    ComandoIconaSi->setVisible(false);
    ComandoIconaNo->setVisible(true);
    countUp(g.Errati);
    SuonoErrato(app);
    EtichettaErrati->setCaption(Str(g.Errati));
}

void ExerciseForm::AggiungiCorniceNumeroMassimo(const QString& menuName, const QString& menuCaption,
                                                MenuItem* before) {
    CorniceNumeroMassimo = frame(QStringLiteral("CorniceNumeroMassimo"),
                                 QStringLiteral("Scegli il numero massimo entro il quale lavorare"), 0, 0,
                                 11355, 7890, Arial(14.25));
    // The panel lies over the whole screen in the colour of the menus, so nothing behind it shows.
    QPalette p = CorniceNumeroMassimo->palette();
    p.setColor(QPalette::Window, QColor(0xc0, 0xff, 0xff));
    CorniceNumeroMassimo->setPalette(p);
    CorniceNumeroMassimo->setAutoFillBackground(true);
    CorniceNumeroMassimo->setVisible(false);
    for (int i = 0; i < 9; ++i) {
        const int col = i / 3, row = i % 3;
        auto* o = option(indexed(QStringLiteral("OpzioneNumeroMassimo"), i), QString::number(19 + 10 * i),
                         840 + col * 2880, 1080 + row * 1320, 1575, 855, Arial(20.25), CorniceNumeroMassimo);
        o->setAutoFillBackground(false); // the options stand on the panel, not on grey patches
        o->Click = [this, i] {
            g.NumeroMassimo = int16_t(19 + 10 * i);
            NuovaDomanda();
            CorniceNumeroMassimo->setVisible(false);
        };
        OpzioneNumeroMassimo.set(i, o);
    }
    MenuItem* item = menu(menuName, menuCaption, nullptr, before);
    item->Click = [this] {
        CorniceNumeroMassimo->setLeft(0);
        CorniceNumeroMassimo->setTop(0);
        CorniceNumeroMassimo->raise();
        CorniceNumeroMassimo->setVisible(true);
    };
}

// ---- QuestionForm ----

QuestionForm::QuestionForm(Program& program, const QString& name, Variante variante, int16_t numeroScheda,
                           Look look, FrameOptions options)
    : ExerciseForm(program, name, variante, numeroScheda, 9495, 6510, options) {
    EtichettaNumero = label(QStringLiteral("EtichettaNumero"), QString(), 240, 1440, 8895, 855, look.numero);
    EtichettaNumero->setAlignment(Qt::AlignCenter);
    Text1 = textBox(QStringLiteral("Text1"), 2520, 2520, 4335, 1335, look.testo);
    Text1->setAlignment(Qt::AlignCenter);
    Text1->KeyUp = [this](int keyCode, int shift) { Text1_KeyUp(keyCode, shift); };
}

void QuestionForm::Load() {
    AzzeraConteggio();
}

void QuestionForm::Activate() {
    BottoneAvanti->setVisible(g.AttendiBottone != False);
    NuovaDomanda();
}

void QuestionForm::BottoneAvanti_Click() {
    Text1->setEnabled(true);
    BottoneAvanti->setEnabled(false);
    NuovaDomanda();
}

void QuestionForm::ScriviDomanda(const QString& caption) {
    Text1->setText(QString());
    EtichettaNumero->setCaption(caption);
    if (Text1->isEnabled()) Text1->SetFocus();
}

void QuestionForm::Consegna(const QString& testo) {
    Label3 = label(QStringLiteral("Label3"), testo, 2160, 3960, 5055, 375, Arial(12));
    Label3->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
}

void QuestionForm::MostraRispostaEsatta() {
    EtichettaNumero->setCaption(EtichettaNumero->Caption() + Text1->Text());
}

bool QuestionForm::RispostaGiusta() {
    return Val(FiltroCifre(Text1->Text())) == g.NumeroEsatto;
}

void QuestionForm::Text1_KeyUp(int keyCode, int) {
    if (keyCode != 13 || Text1->Text().isEmpty()) return;
    if (RispostaGiusta()) {
        RispostaEsattaPoiAvanti([this] {
            Text1->setEnabled(false);
            MostraRispostaEsatta();
        });
    } else {
        RispostaErrata();
        if (Text1->isEnabled()) Text1->SetFocus();
    }
}

} // namespace contarello
