#pragma once
// The program's colours: its own few, and the background colours drawn at random for each question,
// four variants of one table that differ in slots 3, 9 and 17 only.

#include <QColor>
#include <optional>

namespace contarello {

class Form;

// The program's own colours: red tens and blue units wherever they stand, and the few grounds the
// screens share.
inline const QColor kRosso{0xff, 0x00, 0x00};
inline const QColor kBlu{0x00, 0x00, 0xff};
inline const QColor kCiano{0x00, 0xff, 0xff};
inline const QColor kMagenta{0xff, 0x00, 0xff};
inline const QColor kViola{0xc0, 0x00, 0xc0};
inline const QColor kGiallo{0xff, 0xff, 0x00};
inline const QColor kNero{0x00, 0x00, 0x00};
inline const QColor kBianco{0xff, 0xff, 0xff};

enum class Variante { A, B, C, D };

// The colour of slot 1 to 18 of a variant.
QColor ColoreSlot(Variante v, int slot);

// Draws a slot from 1 to 18 with equal chance and gives the form that background.
void CaricaColori(Form& form, Variante v);

// The variant a screen draws its background from; none for a screen that has a fixed one. Known
// once the screen has drawn its first colour.
std::optional<Variante> VarianteDi(const Form& form);

} // namespace contarello
