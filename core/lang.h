#pragma once
// The number and text functions the screens are written with. They keep the old conventions on
// purpose: captions and worksheet lines depend on every blank these functions put in.

#include <QString>
#include <cstdint>

namespace contarello {

class Random;

// Decimal text with one leading blank for a number not below 0, a minus sign otherwise.
QString Str(long long n);

// The leading number of a text, 0 if there is none. Blanks, tabs and line feeds are skipped
// wherever they stand ("1 2" is 12); a sign, one decimal point and an exponent (E or D) are read;
// "&H" and "&O" start hexadecimal and octal numbers. Never fails: a huge number comes back as inf.
double Val(const QString& text);

// Formats with the patterns "#,##0" and "###,###,##0": digits grouped by thousands with the
// Italian separator, no blank in front. Rounds half away from zero; beyond the range of a long long
// the number is held at its ends as by Int, and NaN is "0".
QString Format(double n, const QString& pattern);

// The next integer down: Int(-0.5) is -1. Beyond the range of a long long (infinities included) the
// result is held at its nearer end; NaN gives 0.
long long Int(double x);

// A fraction stored in a 16-bit integer: nearest integer, a half to the even neighbour. Values
// outside the 16-bit range are held at its ends instead of failing.
int16_t CInt(double x);

// Int(Rnd * n) + m, the one shape every draw of the program takes. n may be 0 or negative.
int Draw(Random& random, double n, int m = 0);

// Removes blanks (only blanks) at both ends.
QString Trim(const QString& s);
// 1-based substring; a start past the end gives an empty text.
QString Mid(const QString& s, int start, int length = -1);
QString Left(const QString& s, int length);
// 1-based position of what in s, 0 if absent.
int InStr(const QString& s, const QString& what);
// ANSI (Windows-1252) code of the first character, 0 for an empty text, 63 for a character that
// has none.
int Asc(const QString& s);
int Asc(QChar c);
QString Chr(int code);

inline const QString CRLF = QStringLiteral("\r\n");

} // namespace contarello
