// Val on any text: never NaN, blanks in front change nothing, and what follows the number doesn't
// count. A sign is read only at the start, so the text after it is tried with a letter after it.

#include "core/lang.h"
#include "fuzz/check.h"

#include <cmath>

using namespace contarello;
using namespace contarello::fuzz;

namespace {
bool same(double a, double b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString t = text(data, size);
    const double v = Val(t);
    require(!std::isnan(v), "Val is never NaN", t);
    require(same(Val(QStringLiteral(" \t") + t), v), "leading blanks change nothing", t);
    // X is no digit, no exponent, no hexadecimal digit: it ends whatever number stands before it.
    require(same(Val(t + QStringLiteral("X1")), v), "what follows the number doesn't count", t);
    return 0;
}
