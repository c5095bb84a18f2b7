// NumeroInParole on any number of the range it serves (and beyond it, below 0): capitals only, one
// word with no blank, the number used up, the same words for the same number, and a new number for
// each new word below a thousand.

#include "core/numberwords.h"
#include "fuzz/check.h"

using namespace contarello;
using namespace contarello::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const long long raw = take<long long>(data, size);
    constexpr long long kLargest = 999'999'999'999LL;
    const long long numero = raw < 0 ? (raw % 1000) : raw % (kLargest + 1);
    Modulo1 g;
    long long n = numero;
    const QString parole = NumeroInParole(n, g);
    require(!parole.isEmpty(), "some word", QString::number(numero));
    for (QChar c : parole)
        require(c >= u'A' && c <= u'Z', "capitals only", parole);
    require(numero <= 0 ? parole == u"ZERO" : parole != u"ZERO", "ZERO for nothing only", parole);
    if (numero > 0) require(n == 0, "the number used up", QString::number(n));
    long long again = numero;
    require(NumeroInParole(again, g) == parole, "the same words each time", parole);
    if (numero > 0 && numero < 999) {
        long long next = numero + 1;
        require(NumeroInParole(next, g) != parole, "two numbers, two spellings", parole);
    }
    return 0;
}
