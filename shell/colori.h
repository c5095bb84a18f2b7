#pragma once
// The background colours drawn at random for each question. Four variants of one table: they
// differ in slots 3, 9 and 17 only.

#include <QColor>
#include <optional>

namespace contarello {

class Form;

enum class Variante { A, B, C, D };

// The colour of slot 1 to 18 of a variant.
QColor ColoreSlot(Variante v, int slot);

// Draws a slot from 1 to 18 with equal chance and gives the form that background.
void CaricaColori(Form& form, Variante v);

// The variant a screen draws its background from; none for a screen that has a fixed one. Known
// once the screen has drawn its first colour.
std::optional<Variante> VarianteDi(const Form& form);

} // namespace contarello
