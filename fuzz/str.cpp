// Str of any long long: a blank or a minus in front, then digits only, and Val reads the number
// back; Int gives it back whole wherever a double holds it exactly.

#include "core/lang.h"
#include "fuzz/check.h"

using namespace contarello;
using namespace contarello::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto n = take<long long>(data, size);
    const QString s = Str(n);
    require(s.size() >= 2 && s[0] == (n >= 0 ? u' ' : u'-'), "a blank or a minus in front", s);
    for (qsizetype i = 1; i < s.size(); ++i)
        require(s[i] >= u'0' && s[i] <= u'9', "digits after the sign", s);
    require(Val(s) == double(n), "Val reads Str back", s);
    if (n > -(1LL << 53) && n < (1LL << 53)) require(Int(Val(s)) == n, "Int gives the number back", s);
    return 0;
}
