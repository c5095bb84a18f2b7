#pragma once
// A seeded monkey: random user actions over the program through the driver's own commands, with
// the program's invariants checked after each one. It knows no screen: it learns what a screen
// offers from the dump (its controls, their kinds, whether they are shown and enabled) and reaches
// the screens through their menus, as a child would.

#include "driver/engine.h"

#include <QJsonObject>
#include <QSet>
#include <QStringList>
#include <deque>
#include <map>
#include <memory>
#include <random>

namespace contarello::test {

class Monkey {
public:
    // route: what a user does at each start of the program before the monkey takes over, such as
    // the clicks from the start screen to one exercise.
    explicit Monkey(unsigned seed, std::vector<QJsonObject> route = {});

    // Runs so many actions; false as soon as an invariant fails, with failure() telling which,
    // after what.
    bool run(long actions);

    QString failure() const { return failure_; }
    // Every screen that was on show at some point, and how many runs of the program ended.
    const QSet<QString>& visited() const { return visited_; }
    int programsEnded() const { return ended_; }
    // How many times a typed answer was checked.
    int answersChecked() const { return answersChecked_; }

private:
    QJsonObject execute(const QJsonObject& command);
    bool step();
    bool check(const QJsonObject& dump);
    bool checkAnswer(QJsonObject& dump);
    QJsonObject pickAction(const QJsonObject& dump);
    QString pickControl(const QJsonObject& dump, const QStringList& kinds, bool dragSourceOnly = false);
    QString randomText();
    bool fail(const QString& why);
    int below(int n) { return int(rng_() % unsigned(std::max(1, n))); }
    bool chance(double p) { return std::uniform_real_distribution<double>(0, 1)(rng_) < p; }

    std::mt19937 rng_;
    std::vector<QJsonObject> route_;
    std::unique_ptr<DriverEngine> engine_;
    QJsonObject last_;               // the dump after the last action
    std::deque<QByteArray> recent_;  // the last commands, for the report
    std::map<QString, int> clicks_;  // "Screen/Control": how often it was acted on
    std::map<QString, int> answers_; // which way each screen takes its typed answer: 0 digits, 1 words
    QSet<QString> visited_;
    QString failure_;
    long done_ = 0;
    int ended_ = 0;
    int answersChecked_ = 0;
};

} // namespace contarello::test
