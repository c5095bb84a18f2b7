// Format of any double: digits in groups of three with points, a minus only in front, and the
// number it stands for is the double rounded and held in range, as Int holds it.

#include "core/lang.h"
#include "fuzz/check.h"

#include <cmath>
#include <limits>

using namespace contarello;
using namespace contarello::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto x = take<double>(data, size);
    const QString f = Format(x, QStringLiteral("###,###,##0"));
    const bool minus = f.startsWith(u'-');
    const QStringList groups = f.mid(minus ? 1 : 0).split(u'.');
    require(!groups.isEmpty() && groups[0].size() >= 1 && groups[0].size() <= 3, "a first group of 1 to 3",
            f);
    require(groups[0].size() == 1 || groups[0][0] != u'0', "no leading zero", f);
    QString digits;
    for (qsizetype i = 0; i < groups.size(); ++i) {
        require(i == 0 || groups[i].size() == 3, "groups of three after the first", f);
        for (QChar c : groups[i])
            require(c >= u'0' && c <= u'9', "digits only", f);
        digits += groups[i];
    }
    require(!(minus && digits == u"0"), "no minus zero", f);
    // The digits against the double: Int of the rounded value is the value held in range.
    const double r = std::round(x);
    const long long held = Int(r);
    require(Str(held).trimmed() == (minus ? u'-' + digits : digits),
            "the rounded number held as Int holds it", f);
    if (std::isfinite(r) && std::fabs(r) < 9e18) require(double(held) == r, "a number in range is itself", f);
    return 0;
}
