#pragma once
// Scripted services for the driver and the tests: draws queued in advance, sounds and boxes recorded
// with the answers a script gave them.

#include "core/services.h"

#include <deque>
#include <map>
#include <random>

namespace contarello {

class ScriptedRandom : public Random {
public:
    explicit ScriptedRandom(EventLog* log = nullptr, unsigned seed = 1) : log_(log), gen_(seed) {}
    double Rnd() override;
    void Randomize() override;
    void queue(double v) { queued_.push_back(v); }
    void seed(unsigned s) { gen_.seed(s); }
    size_t pending() const { return queued_.size(); }

private:
    EventLog* log_;
    std::mt19937 gen_;
    std::deque<double> queued_;
};

class RecordingSound : public Sound {
public:
    RecordingSound(EventLog& log, QString appPath) : log_(log), appPath_(std::move(appPath)) {}
    void play(const QString& path) override;

private:
    EventLog& log_;
    QString appPath_;
};

class ScriptedDialogs : public Dialogs {
public:
    explicit ScriptedDialogs(EventLog& log) : log_(log) {}
    int MsgBox(const QString& text, int style, const QString& title) override;
    QString InputBox(const QString& prompt, const QString& title, const QString& defaultText) override;
    // With no path queued the answer is Cancel: a script writes no file it didn't ask for.
    QString SaveFile(const QString& title, const QString& defaultName, const QString& filter) override;
    void queueAnswer(int a) { answers_.push_back(a); }
    void queueText(const QString& t) { texts_.push_back(t); }
    void queuePath(const QString& p) { paths_.push_back(p); }

private:
    EventLog& log_;
    std::deque<int> answers_;
    std::deque<QString> texts_;
    std::deque<QString> paths_;
};

// Time moves only when the script says so: advance runs, in order, whatever falls due.
class ScriptedClock : public Clock {
public:
    qint64 msecs() override { return now_; }
    int after(int ms, std::function<void()> what) override;
    void cancel(int ticket) override { due_.erase(ticket); }
    void advance(int ms);

private:
    struct Due {
        qint64 at;
        std::function<void()> what;
    };
    qint64 now_ = 0;
    int next_ = 1;
    std::map<int, Due> due_;
};

// Records each text the voice is given, as a speak event.
class RecordingSpeech : public Speech {
public:
    explicit RecordingSpeech(EventLog& log) : log_(log) {}
    void say(const QString& text) override;

private:
    EventLog& log_;
};

} // namespace contarello
