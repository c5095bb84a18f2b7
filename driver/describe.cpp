// The controls in the dump, one object each, kind by kind.

#include "driver/describe.h"
#include "shell/controls.h"
#include "shell/menuitem.h"

#include <QJsonArray>

namespace contarello {

namespace {

// What every control has.
QJsonObject common(const Control& c) {
    QJsonObject out;
    out[QStringLiteral("kind")] = c.kind();
    out[QStringLiteral("visible")] = c.Visible();
    out[QStringLiteral("enabled")] = c.Enabled();
    if (c.hasBackColor()) out[QStringLiteral("backcolor")] = colourName(c.BackColor());
    return out;
}

// A box's text, with its size only where the program chose one.
template <class Box> void text(QJsonObject& out, const Box& box) {
    out[QStringLiteral("text")] = box.Text();
    if (box.hasFontSize()) out[QStringLiteral("fontsize")] = box.font().pointSizeF();
}

} // namespace

QJsonObject describe(const Control& c) {
    QJsonObject out = common(c);
    if (auto* l = dynamic_cast<const Label*>(&c)) {
        out[QStringLiteral("caption")] = l->Caption();
        out[QStringLiteral("dragmode")] = l->DragMode();
    } else if (auto* b = dynamic_cast<const CommandButton*>(&c)) {
        out[QStringLiteral("caption")] = b->Caption();
    } else if (auto* t = dynamic_cast<const TextBox*>(&c)) {
        text(out, *t);
    } else if (auto* m = dynamic_cast<const MultiLineTextBox*>(&c)) {
        text(out, *m);
    } else if (auto* o = dynamic_cast<const OptionButton*>(&c)) {
        out[QStringLiteral("caption")] = o->Caption();
        out[QStringLiteral("value")] = o->Value();
    } else if (auto* f = dynamic_cast<const Frame*>(&c)) {
        out[QStringLiteral("caption")] = f->Caption();
    } else if (auto* s = dynamic_cast<const Shape*>(&c)) {
        out[QStringLiteral("shape")] = int(s->ShapeKind());
        out[QStringLiteral("fillcolor")] = colourName(s->FillColor());
        out[QStringLiteral("bordercolor")] = colourName(s->BorderColor());
    } else if (auto* line = dynamic_cast<const Line*>(&c)) {
        out[QStringLiteral("bordercolor")] = colourName(line->BorderColor());
    } else if (auto* list = dynamic_cast<const ListBox*>(&c)) {
        QJsonArray items;
        for (int i = 0; i < list->ListCount(); ++i)
            items.append(list->List(i));
        out[QStringLiteral("items")] = items;
        out[QStringLiteral("listindex")] = list->ListIndex();
    } else if (auto* item = dynamic_cast<const MenuItem*>(&c)) {
        out[QStringLiteral("caption")] = item->Caption();
        out[QStringLiteral("checked")] = item->Checked();
    }
    // An image shows only what every control has.
    return out;
}

} // namespace contarello
