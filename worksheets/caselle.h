#pragma once
// The words of a drawn worksheet in the boxes under its cells.

#include "shell/controls.h"

#include <QStringList>

namespace contarello {

// Writes each text into its box, shown from its first letter, all in Arial bold at one size: the
// sheet's own size in points, grown with the screens like everything on them, or smaller, as much
// as the longest text needs to show whole in its box. A page whose words grow and shrink from box
// to box reads as a mistake.
void ScriviInCaselle(const ControlArray<TextBox>& caselle, const QStringList& testi, double punti);

} // namespace contarello
