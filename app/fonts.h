#pragma once
// The fonts the screens are drawn in, set up before the application object exists.

namespace contarello {

// Gives the program a font configuration of its own: Liberation Sans and its family only, rendered
// as the desktop renders them, with the user's own rules on top. Returns whether it is in force;
// an explicit FONTCONFIG_FILE, or fonts that aren't where Debian puts them, leave the system's.
bool UseProgramFonts();

} // namespace contarello
