#include "shell/fonts/fonts.h"

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

QString ProgramFontFile(bool bold) {
    FcPattern* pattern = FcPatternCreate();
    const QByteArray family = ProgramFamily().toUtf8();
    FcPatternAddString(pattern, FC_FAMILY, reinterpret_cast<const FcChar8*>(family.constData()));
    FcPatternAddInteger(pattern, FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcConfigSubstitute(nullptr, pattern, FcMatchPattern);
    FcDefaultSubstitute(pattern);
    FcResult result = FcResultNoMatch;
    FcPattern* match = FcFontMatch(nullptr, pattern, &result);
    QString file;
    FcChar8* found = nullptr;
    FcChar8* path = nullptr;
    int weight = 0;
    if (match && FcPatternGetString(match, FC_FAMILY, 0, &found) == FcResultMatch &&
        QString::fromUtf8(reinterpret_cast<const char*>(found)) == ProgramFamily() &&
        FcPatternGetInteger(match, FC_WEIGHT, 0, &weight) == FcResultMatch &&
        (weight >= FC_WEIGHT_BOLD) == bold && FcPatternGetString(match, FC_FILE, 0, &path) == FcResultMatch)
        file = QString::fromUtf8(reinterpret_cast<const char*>(path));
    if (match) FcPatternDestroy(match);
    FcPatternDestroy(pattern);
    return QFileInfo::exists(file) ? file : QString();
}

} // namespace contarello
