#pragma once
// Whole numbers written as Italian words, in capitals and in one piece: 21 is VENTUNO.

#include "core/globals.h"

#include <QString>

namespace contarello {

// Writes n (0 to 999,999,999,999) in words and uses n up: it is 0 afterwards, so callers pass a
// copy. Fills g.ParoleNumeri afresh on every call. A number not above 0 gives "ZERO".
QString NumeroInParole(long long& n, Modulo1& g);
// The words of a number, handed to NumeroInParole as a copy: the caller's number stays.
QString InParole(long long numero, Modulo1& g);

} // namespace contarello
