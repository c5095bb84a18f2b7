#pragma once
// The four services the screens use: the random sequence, the sounds, the message and input boxes
// and the printer. main builds the real ones; the driver and the tests build scripted ones that
// record every call.

#include <QJsonObject>
#include <QString>
#include <deque>
#include <functional>
#include <random>
#include <vector>

class QWidget;

namespace contarello {

// What happened, in order, for the driver's dump and the tests. The real program keeps none.
class EventLog {
public:
    void add(QJsonObject e) { events_.push_back(std::move(e)); }
    std::vector<QJsonObject> take() { return std::exchange(events_, {}); }
    const std::vector<QJsonObject>& peek() const { return events_; }

private:
    std::vector<QJsonObject> events_;
};

class Random {
public:
    virtual ~Random() = default;
    // A number in [0, 1). Every draw of the program takes the next one.
    virtual double Rnd() = 0;
    // Seeds from the clock.
    virtual void Randomize() = 0;
};

class Sound {
public:
    virtual ~Sound() = default;
    // Plays a file without waiting; a new sound replaces the one playing; a missing file is silent.
    virtual void play(const QString& path) = 0;
    // Gets a file ready, so that its first play starts at once.
    virtual void preload(const QString& path) { Q_UNUSED(path); }
};

enum MsgBoxStyle : int { vbOKOnly = 0, vbCritical = 16, vbYesNoQuestion = 36, vbInformation = 64 };
enum MsgBoxResult : int { vbOK = 1, vbYes = 6, vbNo = 7 };

class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual int MsgBox(const QString& text, int style, const QString& title) = 0;
    // The text typed, or an empty text on Cancel.
    virtual QString InputBox(const QString& prompt, const QString& title, const QString& defaultText) = 0;
    // Asks where to save a file, proposing defaultName; the path chosen, or an empty text on Cancel.
    virtual QString SaveFile(const QString& title, const QString& defaultName, const QString& filter) {
        Q_UNUSED(title);
        Q_UNUSED(defaultName);
        Q_UNUSED(filter);
        return {};
    }
};

class Printer {
public:
    virtual ~Printer() = default;
    // Every failure is swallowed: with no printer nothing comes out and nothing is said.
    virtual void setFontName(const QString& name) = 0;
    virtual void setFontSize(double points) = 0;
    virtual void print(const QString& text) = 0;
    virtual void endDoc() = 0;
    virtual void printForm(QWidget& form, const QString& formName) = 0;
    // The name of the next document (endDoc or printForm), as the print queue shows it.
    virtual void setDocName(const QString& name) { Q_UNUSED(name); }
};

// Time, for what waits on it (a finger resting on the screen). The driver and the tests script it,
// so that no test waits for real time.
class Clock {
public:
    virtual ~Clock() = default;
    // Milliseconds from a fixed moment of the run.
    virtual qint64 msecs() = 0;
    // Runs what once, ms milliseconds from now, unless cancelled first; gives the ticket to cancel it.
    virtual int after(int ms, std::function<void()> what) = 0;
    virtual void cancel(int ticket) = 0;
};

// The voice: says a text, cutting short what it was saying, and never waits for the speech service.
// Silent when there is no voice.
class Speech {
public:
    virtual ~Speech() = default;
    virtual void say(const QString& text) = 0;
    // The voice was turned on: it gets ready now, so that the first question doesn't wait for it.
    virtual void prepare() {}
};

class SilentSpeech : public Speech {
public:
    void say(const QString& text) override { Q_UNUSED(text); }
};

// A printer that gathers the document until endDoc, which takes it.
class BufferedPrinter : public Printer {
public:
    void setFontName(const QString& name) override { font_ = name; }
    void setFontSize(double points) override { size_ = points; }
    void print(const QString& text) override { text_ += text; }
    void setDocName(const QString& name) override { docName_ = name; }

protected:
    QString takeText() { return std::exchange(text_, QString()); }
    // A document nobody named still says whose it is in the queue.
    QString takeDocName() {
        const QString name = std::exchange(docName_, QString());
        return name.isEmpty() ? QStringLiteral("Contarello") : name;
    }
    QString font_ = QStringLiteral("Arial");
    double size_ = 12;

private:
    QString text_;
    QString docName_;
};

} // namespace contarello
