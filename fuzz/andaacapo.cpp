// AndaACapo on any text and width: it only adds line ends. Without its CR and LF the result is the
// trimmed text without them, and it always ends in CR LF.

#include "core/lang.h"
#include "fuzz/check.h"
#include "worksheets/generators/generators.h"

using namespace contarello;
using namespace contarello::fuzz;

namespace {
QString withoutLineEnds(QString s) {
    s.remove(u'\r');
    s.remove(u'\n');
    return s;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    // Widths around the printer's 90 and 100 and far from them, down to nothing and below.
    const int larghezza = int(take<uint8_t>(data, size)) - 20;
    const QString testo = text(data, size);
    const QString out = AndaACapo(testo, larghezza);
    require(out.endsWith(CRLF), "ends with CR LF", out);
    require(withoutLineEnds(out) == withoutLineEnds(Trim(testo)), "only line ends added", testo);
    return 0;
}
