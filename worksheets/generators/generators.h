#pragma once
// The text worksheets of formStampa and the line breaker of their printouts. Each generator builds
// the worksheet and its correction in one pass over the same draws, so a scripted sequence of draws
// fixes both texts to the last blank.

#include "core/globals.h"
#include "core/services.h"

#include <QString>

namespace contarello {

struct SchedaInput {
    int NumeroRighe = 5;   // 3,5,10,15,20,25
    int NumeroColonne = 2; // 1..6
    // The numbers to a row and the order FormOrd asks (FaiScheda4); by default as from a FormOrd
    // just loaded, never blank.
    QString ordRowLength = QStringLiteral("8");
    QString ordTask = QStringLiteral("Ordina i numeri dal minore al maggiore ");
};

struct Scheda {
    QString txtCD;   // the worksheet
    QString TextCor; // its correction
};

// numero 1..24 selects FaiScheda<numero>; any other value gives two empty texts.
// Reads g.NumeroMassimo; FaiScheda8 overwrites g.NumeroEsatto; uses g.ParoleNumeri via NumeroInParole.
Scheda FaiScheda(int numero, const SchedaInput& in, Modulo1& g, Random& rnd);

// Breaks the lines of testo longer than larghezza characters after the last blank that fits, for
// the printer. The result always ends in CR LF.
QString AndaACapo(QString testo, int larghezza);

} // namespace contarello
