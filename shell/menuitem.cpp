// Menu items: their caption, check mark and submenu kept on the action they stand for.

#include "shell/menuitem.h"

#include <QAction>
#include <QMenu>

namespace contarello {

MenuItem::MenuItem(QObject* parent, QAction* action) : QObject(parent), action_(action) {
    connect(action_, &QAction::triggered, this, [this] {
        if (Click) Click();
    });
}

bool MenuItem::Visible() const {
    return action_->isVisible();
}
bool MenuItem::Enabled() const {
    return action_->isEnabled();
}
void MenuItem::setVisible(bool v) {
    action_->setVisible(v);
}
void MenuItem::setEnabled(bool e) {
    action_->setEnabled(e);
}
bool MenuItem::Checked() const {
    return action_->isChecked();
}

void MenuItem::setChecked(bool c) {
    action_->setCheckable(c || action_->isCheckable());
    action_->setChecked(c);
}

void MenuItem::setCaption(const QString& c) {
    caption_ = c;
    action_->setText(c);
}

QMenu* MenuItem::submenu() {
    if (!submenu_) {
        // setMenu doesn't take the menu: the widget that holds the item owns it, so the submenu and
        // its items go with the screen.
        submenu_ = new QMenu(caption_, qobject_cast<QWidget*>(action_->parent()));
        action_->setMenu(submenu_);
    }
    return submenu_;
}

bool MenuItem::userClick() {
    if (submenu_) return true; // opening a menu does nothing of its own
    action_->trigger();
    return true;
}

} // namespace contarello
