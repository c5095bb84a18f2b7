#pragma once
// A control as the driver's dump shows it: what every control has (kind, visible, enabled, the fill
// the program gave it) and what fits its kind (caption, text, value, items...), read from the
// control's own properties.

#include <QJsonObject>

namespace contarello {

class Control;

QJsonObject describe(const Control& c);

} // namespace contarello
