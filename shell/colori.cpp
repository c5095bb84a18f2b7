#include "shell/colori.h"
#include "core/lang.h"
#include "shell/form.h"
#include "shell/program.h"

#include <array>

namespace contarello {

namespace {

// Slot 0 is never drawn. A colour that stands in two slots is twice as likely.
constexpr std::array<QRgb, 19> kColori = {
    0,        0xffc0c0, 0xff8080,           0 /* by variant */, 0xffc080, 0xff8000, 0xffffc0,
    0xffff00, 0xc04000, 0 /* by variant */, 0x00c000,           0xc0ffff, 0x00ffff, 0xc0c0ff,
    0xffc0ff, 0xffc0ff, 0xe0e0e0,           0 /* by variant */, 0xff00ff};

struct SlotVariabili {
    QRgb slot3, slot9, slot17;
};

constexpr std::array<SlotVariabili, 4> kVarianti = {{
    {0xff0000, 0x80ff80, 0x0000ff}, // A
    {0xffffc0, 0x80ff80, 0x80ff80}, // B
    {0xffc080, 0xffc0ff, 0x0000ff}, // C
    {0xffc0c0, 0x80ff80, 0xffc0ff}, // D
}};

} // namespace

QColor ColoreSlot(Variante v, int slot) {
    const SlotVariabili& s = kVarianti[static_cast<int>(v)];
    switch (slot) {
    case 3:
        return QColor(s.slot3);
    case 9:
        return QColor(s.slot9);
    case 17:
        return QColor(s.slot17);
    default:
        return QColor(kColori.at(std::clamp(slot, 1, 18)));
    }
}

namespace {
const char* const kVariante = "variante";
}

void CaricaColori(Form& form, Variante v) {
    form.setProperty(kVariante, static_cast<int>(v));
    form.setBackColor(ColoreSlot(v, Draw(form.app.rnd, 18, 1)));
}

std::optional<Variante> VarianteDi(const Form& form) {
    const QVariant v = form.property(kVariante);
    if (!v.isValid()) return std::nullopt;
    return static_cast<Variante>(v.toInt());
}

} // namespace contarello
