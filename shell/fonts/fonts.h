#pragma once
// The fonts the screens are drawn in, set up before the application object exists.

#include <QString>

namespace contarello {

// The one face the program draws and prints in. The screens and the printouts are laid out for
// "Arial" and "MS Sans Serif"; both are drawn in Liberation Sans, which has Arial's metrics, asked
// for by its own name: a machine's own fallbacks for the other two names (DejaVu Sans on one,
// Liberation Mono on another) never decide how a sheet is laid out.
inline QString ProgramFamily() {
    return QStringLiteral("Liberation Sans");
}

// Gives the program a font configuration of its own: Liberation Sans and its family only, rendered
// as the desktop renders them, with the user's own rules on top. Returns whether it is in force;
// an explicit FONTCONFIG_FILE, or fonts that aren't where Debian puts them, leave the system's.
bool UseProgramFonts();

// The file the font configuration in force gives for the program's face, regular or bold; empty
// when it has none and would draw another face in its place.
QString ProgramFontFile(bool bold);

} // namespace contarello
