#pragma once
// What the voice says for a text of a screen: its numbers as Italian words, with their accents,
// and its signs as words.

#include <QString>

namespace contarello {

// The words of a whole number as they are said, in small letters and with the accent that the
// screens leave out: 23 is "ventitré", 21 "ventuno". A number below 0 is "zero".
QString NumeroDetto(long long n);

// A question as a child hears it. Numbers (digits, or a number word in capitals as the screens
// show it) become words; "+" "più", "-" "meno", "x" between numbers "per", "=" "uguale" except at the
// end of a line, where the question waits for its answer; "3 da" and "5 u" are tens and units;
// a gap "___" is a pause, brackets are not said, and a line end closes a sentence.
QString FraseDaDire(const QString& testo);

} // namespace contarello
