#include "core/lang.h"
#include "core/services.h"

#include <cmath>
#include <limits>

namespace contarello {

QString Str(long long n) {
    if (n >= 0) return QLatin1Char(' ') + QString::number(n);
    return QString::number(n);
}

namespace {

bool isSkipped(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n';
}

double radixValue(const QString& text, int from, int radix) {
    double v = 0;
    for (int i = from; i < text.size(); ++i) {
        const char16_t u = text[i].toUpper().unicode();
        if (isSkipped(text[i])) continue;
        int d = -1;
        if (u >= u'0' && u <= u'9')
            d = u - u'0';
        else if (u >= u'A' && u <= u'F')
            d = u - u'A' + 10;
        if (d < 0 || d >= radix) break;
        v = v * radix + d;
    }
    return v;
}

} // namespace

double Val(const QString& text) {
    int i = 0;
    while (i < text.size() && isSkipped(text[i]))
        ++i;
    if (i + 1 < text.size() && text[i] == u'&') {
        const QChar r = text[i + 1].toUpper();
        if (r == u'H') return radixValue(text, i + 2, 16);
        if (r == u'O') return radixValue(text, i + 2, 8);
    }
    // Gather the number without its blanks, then let the C library read it.
    std::string num;
    bool digits = false, point = false, exponent = false, expDigits = false;
    for (; i < text.size(); ++i) {
        const QChar c = text[i];
        if (isSkipped(c)) continue;
        const char16_t u = c.unicode();
        if ((u == u'+' || u == u'-') && (num.empty() || (exponent && (num.back() == 'e')))) {
            num += char(u);
        } else if (u >= u'0' && u <= u'9') {
            num += char(u);
            (exponent ? expDigits : digits) = true;
        } else if (u == u'.' && !point && !exponent) {
            num += '.';
            point = true;
        } else if ((u == u'e' || u == u'E' || u == u'd' || u == u'D') && digits && !exponent) {
            num += 'e';
            exponent = true;
        } else {
            break;
        }
    }
    if (!digits) return 0;
    if (exponent && !expDigits) {
        // "2e" or "2e-" reads as 2: drop the unfinished exponent.
        num.erase(num.find('e'));
    }
    return std::strtod(num.c_str(), nullptr);
}

namespace {

constexpr double kTwoTo63 = 9223372036854775808.0;

// A whole number held in a long long: beyond its range it stays at the nearer end, and NaN, which
// has no side, is 0. No screen passes such values, but the functions hold for every double.
long long HeldInRange(double whole) {
    if (std::isnan(whole)) return 0;
    if (whole >= kTwoTo63) return std::numeric_limits<long long>::max();
    if (whole < -kTwoTo63) return std::numeric_limits<long long>::min();
    return static_cast<long long>(whole);
}

} // namespace

QString Format(double n, const QString& pattern) {
    Q_UNUSED(pattern); // both patterns the program uses group thousands and show at least one digit
    const long long v = HeldInRange(std::round(n));
    // The magnitude as unsigned, so the lowest long long has one too.
    const unsigned long long m =
        v < 0 ? 0ULL - static_cast<unsigned long long>(v) : static_cast<unsigned long long>(v);
    QString digits = QString::number(m);
    for (int pos = digits.size() - 3; pos > 0; pos -= 3)
        digits.insert(pos, QLatin1Char('.'));
    return v < 0 ? QLatin1Char('-') + digits : digits;
}

long long Int(double x) {
    return HeldInRange(std::floor(x));
}

int16_t CInt(double x) {
    if (std::isnan(x)) return 0;
    const double r = std::nearbyint(x); // the default rounding mode: half to even
    if (r > 32767) return 32767;
    if (r < -32768) return -32768;
    return static_cast<int16_t>(r);
}

int Draw(Random& random, double n, int m) {
    return static_cast<int>(Int(random.Rnd() * n)) + m;
}

QString Trim(const QString& s) {
    int a = 0, b = s.size();
    while (a < b && s[a] == u' ')
        ++a;
    while (b > a && s[b - 1] == u' ')
        --b;
    return s.mid(a, b - a);
}

QString Mid(const QString& s, int start, int length) {
    if (start < 1 || start > s.size()) return {};
    return s.mid(start - 1, length);
}

QString Left(const QString& s, int length) {
    return s.left(std::max(0, length));
}

int InStr(const QString& s, const QString& what) {
    return s.indexOf(what) + 1;
}

namespace {
// Windows-1252 places 0x80 to 0x9F on these code points.
constexpr char16_t kCp1252High[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
} // namespace

int Asc(QChar c) {
    const char16_t u = c.unicode();
    if (u < 0x80 || (u >= 0xA0 && u < 0x100)) return u;
    for (int i = 0; i < 32; ++i)
        if (kCp1252High[i] == u && u != 0) return 0x80 + i;
    return 63;
}

int Asc(const QString& s) {
    return s.isEmpty() ? 0 : Asc(s[0]);
}

QString Chr(int code) {
    if (code >= 0x80 && code < 0xA0 && kCp1252High[code - 0x80])
        return QString(QChar(kCp1252High[code - 0x80]));
    return QString(QChar(char16_t(code & 0xFF)));
}

} // namespace contarello
