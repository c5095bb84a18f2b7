#pragma once
// Loads, activates and unloads the screens. One screen is active at a time: the one shown last,
// or the one under it when it goes away.

#include <QString>
#include <functional>
#include <memory>
#include <vector>

namespace contarello {

struct Program;
class Form;
class EventLog;

// A screen's name and what makes it. Each family lists its own screens (see Screen and Members
// below); the program's table of screens only puts the families' lists together.
using FormFactory = std::function<std::unique_ptr<Form>(Program&)>;
struct FormEntry {
    const char* name;
    FormFactory make;
};
using FormList = std::vector<FormEntry>;

// The lists one after the other.
FormList Join(std::initializer_list<FormList> lists);

// A screen of its own class, under its name.
template <class F> FormEntry Screen(const char* name) {
    return {name, [](Program& app) -> std::unique_ptr<Form> { return std::make_unique<F>(app); }};
}

// Every member of a family table, each under the name its row gives (the row's `form`), made by the
// family's class from that row. The rows must outlive the list: the families' tables are constants.
template <class F, class Table> FormList Members(const Table& table) {
    FormList list;
    for (const auto& member : table)
        list.push_back({member.form, [&member](Program& app) -> std::unique_ptr<Form> {
                            return std::make_unique<F>(app, member);
                        }});
    return list;
}

class Navigator {
public:
    Navigator(Program& app, std::vector<FormEntry> table, EventLog* log);
    ~Navigator();

    // Loads the screen if needed, shows it, and makes it the active one.
    Form* Show(const QString& name);
    // Runs its Unload handler and destroys it; the screen under it becomes active again.
    void Unload(Form* form);
    // Stops the program at once, unloading nothing.
    void End();

    // The user brings a loaded screen's window to the front.
    void bringToFront(Form* form);
    // Called by a screen when the window system activates its window; ignored unless the navigator
    // follows the window system (the real program does, the driver moves windows itself).
    void windowActivated(Form* form);
    void setFollowWindowSystem(bool on) { followWindowSystem_ = on; }

    bool exists(const QString& name) const;
    Form* find(const QString& name) const;
    Form* active() const { return order_.empty() ? nullptr : order_.back(); }
    // Loaded screens in the order they were loaded.
    std::vector<Form*> loaded() const;
    bool ended() const { return ended_; }

    std::function<void()> onEnd;

private:
    void makeActive(Form* form);

    Program& app_;
    std::vector<FormEntry> table_;
    EventLog* log_;
    std::vector<Form*> forms_; // in load order
    std::vector<Form*> order_; // in activation order, the active one last
    bool ended_ = false;
    bool followWindowSystem_ = false;
};

} // namespace contarello
