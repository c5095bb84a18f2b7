#include "app/fonts.h"

#include <QFileInfo>
#include <QString>
#include <fontconfig/fontconfig.h>

namespace contarello {

// Reading the system's whole font configuration (dozens of rule files, then every installed font)
// costs more at start than all the rest of the start screen; the screens only ever draw in
// Liberation Sans, the font with Arial's metrics they are laid out for.
bool UseProgramFonts() {
    if (qEnvironmentVariableIsSet("FONTCONFIG_FILE") ||
        !QFileInfo::exists(
            QStringLiteral("/usr/share/fonts/truetype/liberation2/LiberationSans-Regular.ttf")))
        return false;
    static constexpr char xml[] = R"(<?xml version="1.0"?>
<fontconfig>
  <dir>/usr/share/fonts/truetype/liberation2</dir>
  <cachedir>/var/cache/fontconfig</cachedir>
  <cachedir prefix="xdg">fontconfig</cachedir>
  <match target="pattern"><edit name="hintstyle" mode="append"><const>hintslight</const></edit></match>
  <match target="pattern"><edit name="antialias" mode="append"><bool>true</bool></edit></match>
  <match target="pattern"><edit name="lcdfilter" mode="append"><const>lcddefault</const></edit></match>
  <include ignore_missing="yes" prefix="xdg">fontconfig/fonts.conf</include>
</fontconfig>)";
    FcConfig* config = FcConfigCreate();
    const bool ok = config &&
                    FcConfigParseAndLoadFromMemory(config, reinterpret_cast<const FcChar8*>(xml), FcFalse) &&
                    FcConfigBuildFonts(config) && FcConfigSetCurrent(config);
    if (config) FcConfigDestroy(config); // the library keeps its own reference to the current one
    return ok;
}

} // namespace contarello
