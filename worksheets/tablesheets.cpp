#include "worksheets/tablesheets.h"
#include "core/lang.h"
#include "shell/program.h"

namespace contarello {

// ---- FoglioTabella ----

FoglioTabella::FoglioTabella(Program& program, const QString& consegna, bool facile)
    : Form(program, 9645, 7245) {
    setBackColor(Qt::white);
    mnustampa = menu(QStringLiteral("mnustampa"), QStringLiteral("Stampa        "));
    mnuTabella = menu(QStringLiteral("mnuTabella"), QStringLiteral("Tabella        "));
    if (facile) mnuFacile = menu(QStringLiteral("mnuFacile"), QStringLiteral("facile"), mnuTabella);
    mnuMedia = menu(QStringLiteral("mnuMedia"), QStringLiteral("media"), mnuTabella);
    mnudifficile = menu(QStringLiteral("mnudifficile"), QStringLiteral("difficile"), mnuTabella);
    menu(QStringLiteral("mnuPdf"), QStringLiteral("Salva PDF   "))->Click = [this] { SalvaPdf(); };
    mnuesci = menu(QStringLiteral("mnuesci"), QStringLiteral("Esci"));

    // The heading prints with the page: no scroll bars, no frame.
    Text2 = adopt(new MultiLineTextBox(client()), QStringLiteral("Text2"), 105, 60, 9420, 435);
    Text2->setFont(Arial(12));
    Text2->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Text2->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Text2->setFrameShape(QFrame::NoFrame);
    Text2->setFocusPolicy(Qt::ClickFocus); // no caret on the printed page unless the adult edits it
    Text2->setText(consegna + QStringLiteral("\r\n"));

    const QFont cifre = SansSerif(13.5, true);
    for (int i = 0; i < 100; ++i) {
        auto* l = label(indexed(QStringLiteral("numero"), i), QString(), 105 + 630 * (i % 10),
                        525 + 630 * (i / 10), 645, 645, cifre);
        l->setAlignment(Qt::AlignCenter);
        l->setFrameShape(QFrame::Box);
        numero.set(i, l);
    }
    for (int i = 0; i < 8; ++i) {
        auto* t = textBox(indexed(QStringLiteral("Text1"), i), 6915, 1050 + 630 * i, 1000, 495, Arial(9.75));
        t->setAlignment(Qt::AlignCenter);
        Text1.set(i, t);
    }

    mnustampa->Click = [this] { PrintForm(); };
    mnuesci->Click = [this] { UnloadMe(); };
    for (MenuItem* item : {mnuFacile, mnuMedia, mnudifficile}) {
        if (!item) continue;
        item->Click = [this, item] {
            Scegli(item);
            RiempiTabella();
        };
    }
    Scegli(mnuMedia);
}

void FoglioTabella::Scegli(MenuItem* item) {
    for (MenuItem* i : {mnuFacile, mnuMedia, mnudifficile})
        if (i) i->setChecked(i == item);
}

void FoglioTabella::Activate() {
    RiempiTabella();
}

void FoglioTabella::RiempiTabella() {
    const bool tutti = mnuFacile && mnuFacile->Checked();
    const bool media = mnuMedia->Checked();
    for (auto& [i, l] : numero)
        l->setCaption(tutti || (media && (i < 10 || i % 10 == 0)) ? Str(i) : QString());
}

// ---- formStampa2 ----

formStampa2::formStampa2(Program& program)
    : FoglioTabella(program, QStringLiteral("Colora nello stesso modo il numero e la casella corrispondente"),
                    true) {}

void formStampa2::Activate() {
    // The numbers first: a change of level later redraws the table and keeps them.
    Genera8Numeri();
    FoglioTabella::Activate();
}

void formStampa2::Genera8Numeri() {
    for (auto& [i, t] : Text1) {
        g.NumeroEsatto = int16_t(Draw(app.rnd, 99));
        t->setText(Str(g.NumeroEsatto));
    }
}

// ---- formStampa3 ----

formStampa3::formStampa3(Program& program)
    : FoglioTabella(program, QStringLiteral("Scrivi il valore delle caselle indicate con X"), false) {}

void formStampa3::RiempiTabella() {
    // Each level gets fresh marks: the old ones go with the captions.
    FoglioTabella::RiempiTabella();
    Genera8Numeri();
}

void formStampa3::Genera8Numeri() {
    for (auto& [i, t] : Text1) {
        g.NumeroEsatto = int16_t(Draw(app.rnd, 99));
        t->setText(QString());
        numero(g.NumeroEsatto)->setCaption(QStringLiteral("X"));
    }
}

FormList TableSheetForms() {
    return {Screen<formStampa2>("formStampa2"), Screen<formStampa3>("formStampa3")};
}

} // namespace contarello
