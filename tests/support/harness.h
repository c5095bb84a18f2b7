#pragma once
// The program in process, driven by the driver's own commands: what a test says is what a script
// would say.

#include "driver/engine.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace contarello::test {

class Harness {
public:
    Harness();

    // Runs one command; a command the program answers with an error fails the test.
    QJsonObject run(const QString& json);
    // Several commands, one per line.
    void script(const QString& lines);
    // Queues draws for the next questions.
    void rnd(std::initializer_list<double> values);
    // The active screen's state; the events since the last dump are in events().
    QJsonObject dump();

    QJsonObject control(const QString& name);
    QString caption(const QString& name);
    QString text(const QString& name);
    bool visible(const QString& name);
    bool enabled(const QString& name);
    int global(const QString& name);
    QString form();
    // Events since the last call, of one kind ("sound", "msgbox"...) or all.
    QJsonArray events(const QString& kind = QString());
    QStringList sounds();

    // From the start screen to an exercise through the menus, with the settings as they stand.
    void openFromMenu(const QString& menuButton, const QString& exerciseButton);
    // Sets the limit as an adult does: the main menu's "Scegli il numero massimo", answered with n.
    // Leaves the main menu on show.
    void setLimit(int n);
    // Puts the text in the box at once, as a paste does, and releases Enter on it.
    void answer(const QString& box, const QString& text);

    DriverEngine engine;

private:
    QJsonObject last_;
    QJsonArray pending_;
};

} // namespace contarello::test
