#pragma once
// The background colours drawn at random for each question. Four variants of one table: they
// differ in slots 3, 9 and 17 only.

#include <QColor>

namespace contarello {

class Form;

enum class Variante { A, B, C, D };

// The colour of slot 1 to 18 of a variant.
QColor ColoreSlot(Variante v, int slot);

// Draws a slot from 1 to 18 with equal chance and gives the form that background.
void CaricaColori(Form& form, Variante v);

} // namespace contarello
