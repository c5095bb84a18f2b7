#include "shell/accessible.h"
#include "shell/controls.h"

#include <QAccessibleWidget>

namespace contarello {

namespace {

// A label or a shape: a button when a child can act on it, else text or a picture.
class MaterialInterface : public QAccessibleWidget {
public:
    MaterialInterface(QWidget* w, Control& c)
        : QAccessibleWidget(w, Actionable(c)              ? QAccessible::Button
                               : dynamic_cast<Label*>(&c) ? QAccessible::StaticText
                                                          : QAccessible::Graphic),
          control_(c) {}

    QAccessible::Role role() const override {
        if (Actionable(control_)) return control_.DragDrop ? QAccessible::Cell : QAccessible::Button;
        return dynamic_cast<Label*>(&control_) ? QAccessible::StaticText : QAccessible::Graphic;
    }

    QString text(QAccessible::Text t) const override {
        if (t != QAccessible::Name) return QAccessibleWidget::text(t);
        if (auto* l = dynamic_cast<Label*>(&control_); l && !l->Caption().trimmed().isEmpty())
            return l->Caption().simplified();
        if (!widget()->accessibleName().isEmpty()) return widget()->accessibleName();
        if (auto* s = dynamic_cast<Shape*>(&control_))
            return s->ShapeKind() == Shape::Circle || s->ShapeKind() == Shape::Oval
                       ? QStringLiteral("pallina")
                       : QStringLiteral("forma");
        return control_.DragDrop ? QStringLiteral("casella vuota") : QString();
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

QAccessibleInterface* describe(const QString& className, QObject* object) {
    if (className != QLatin1String("contarello::Label") && className != QLatin1String("contarello::Shape"))
        return nullptr;
    auto* w = qobject_cast<QWidget*>(object);
    auto* c = dynamic_cast<Control*>(object);
    return w && c ? new MaterialInterface(w, *c) : nullptr;
}

} // namespace

void DescribeControlsToScreenReaders() {
    static const bool once = (QAccessible::installFactory(describe), true);
    Q_UNUSED(once);
}

} // namespace contarello
