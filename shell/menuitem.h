#pragma once
// A menu item: the one control that is no widget but an action on the screen's menu bar or in one
// of its menus, named and handled as the other controls are.

#include "shell/controls.h"

class QAction;
class QMenu;

namespace contarello {

class MenuItem : public QObject, public Control {
    Q_OBJECT
public:
    MenuItem(QObject* parent, QAction* action);
    QString kind() const override { return QStringLiteral("menu"); }
    QObject* object() override { return this; }
    QWidget* widget() override { return nullptr; }
    bool userClick() override;
    bool Visible() const override;
    bool Enabled() const override;
    void setVisible(bool v);
    void setEnabled(bool e);

    QString Caption() const { return caption_; }
    void setCaption(const QString& c);
    bool Checked() const;
    void setChecked(bool c);
    QAction* action() const { return action_; }
    QMenu* submenu(); // made on first use: the item then opens a menu instead of acting

    std::function<void()> Click;

private:
    QAction* action_;
    QMenu* submenu_ = nullptr;
    QString caption_;
};

} // namespace contarello
