#pragma once
// What the generators share: the heading block, the end of a row and the bounds of the two loops.
// Each group of generators lives in its own source and is reached through one entry point here.

#include "worksheets/generators/generators.h"

namespace contarello::schede {

// The screen offers at most 25 rows of 6 exercises. These caps only keep a corrupted setting from
// building a sheet without end; no sheet the screen can ask for comes near them.
constexpr int kMaxRighe = 1000;
constexpr int kMaxColonne = 100;
constexpr int kMaxNumeriInRiga = 100;

int Righe(const SchedaInput& in);
int Colonne(const SchedaInput& in);

// One exercise as it stands on the worksheet and on the correction.
struct Celle {
    QString foglio;
    QString correzione;
};

// An empty line, the heading, an empty line: on the worksheet, then on the correction.
void Intestazione(Scheda& s, const QString& foglio, const QString& correzione);
inline void Intestazione(Scheda& s, const QString& titolo) {
    Intestazione(s, titolo, titolo);
}

// Appends the same piece to both texts.
void AEntrambi(Scheda& s, const QString& pezzo);

// Rows stand one empty line apart, and the sheet ends with an empty line.
void ChiudiRiga(Scheda& s);

void FaiSchedaLettura(int numero, const SchedaInput& in, Modulo1& g, Random& rnd, Scheda& s); // 1 to 8
void FaiSchedaPassi(int numero, const SchedaInput& in, Random& rnd, Scheda& s);               // 9 to 14
void FaiSchedaSomme(int numero, const SchedaInput& in, Random& rnd, Scheda& s);               // 15 to 24

} // namespace contarello::schede
