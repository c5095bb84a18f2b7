#include "shell/accessible.h"
#include "shell/controls.h"

#include <QAccessibleWidget>

namespace contarello {

namespace {

// A label, a shape or a button of ours: a button when a child can act on it, else text or a picture.
class MaterialInterface : public QAccessibleWidget {
public:
    MaterialInterface(QWidget* w, Control& c)
        : QAccessibleWidget(w, Actionable(c)              ? QAccessible::Button
                               : dynamic_cast<Label*>(&c) ? QAccessible::StaticText
                                                          : QAccessible::Graphic),
          control_(c) {}

    QAccessible::Role role() const override {
        if (Actionable(control_) || dynamic_cast<CommandButton*>(&control_))
            return control_.DragDrop ? QAccessible::Cell : QAccessible::Button;
        return dynamic_cast<Label*>(&control_) ? QAccessible::StaticText : QAccessible::Graphic;
    }

    QString text(QAccessible::Text t) const override {
        if (t != QAccessible::Name) return QAccessibleWidget::text(t);
        if (auto* l = dynamic_cast<Label*>(&control_); l && !l->Caption().trimmed().isEmpty())
            return l->Caption().simplified();
        if (auto* b = dynamic_cast<CommandButton*>(&control_); b && !b->Caption().trimmed().isEmpty())
            return b->Caption().simplified();
        if (!widget()->accessibleName().isEmpty()) return widget()->accessibleName();
        if (auto* s = dynamic_cast<Shape*>(&control_))
            return s->ShapeKind() == Shape::Circle || s->ShapeKind() == Shape::Oval
                       ? QStringLiteral("pallina")
                       : QStringLiteral("forma");
        if (!Actionable(control_)) return QString();
        return control_.DragDrop ? QStringLiteral("casella vuota") : QStringLiteral("casella");
    }

    QStringList actionNames() const override {
        return Actionable(control_) ? QStringList{pressAction()} : QStringList{};
    }
    void doAction(const QString& name) override {
        if (name == pressAction() && Actionable(control_)) control_.userClick();
    }

private:
    Control& control_;
};

// Asked first for the most derived class: a cell of the table of 100 is a button too. The other
// controls are the toolkit's own and described by it.
QAccessibleInterface* describe(const QString&, QObject* object) {
    auto* w = qobject_cast<QWidget*>(object);
    if (!w || !(dynamic_cast<Label*>(object) || dynamic_cast<Shape*>(object) ||
                dynamic_cast<CommandButton*>(object)))
        return nullptr;
    return new MaterialInterface(w, *dynamic_cast<Control*>(object));
}

} // namespace

void DescribeControlsToScreenReaders() {
    static const bool once = (QAccessible::installFactory(describe), true);
    Q_UNUSED(once);
}

} // namespace contarello
