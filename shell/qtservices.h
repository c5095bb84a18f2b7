#pragma once
// The real services: the clock-seeded random sequence, the sounds, Qt's message
// and input boxes, and the system's default printer.

#include "core/services.h"

#include <QObject>
#include <map>
#include <memory>

class QApplication;
class QCoreApplication;
class QPagedPaintDevice;

namespace contarello {

// Fonts and style, once at start.
void PrepareToolkit(QApplication& app);
// The Italian texts of Qt's own boxes and menus, needed from the first box on, not for the start.
bool InstallItalianTexts(QCoreApplication& app); // whether Qt's Italian texts were found

// The program's modules, loaded when first needed: the library's name and its entry.
struct ProgramModule {
    const char* library;
    const char* entry;
};
inline constexpr ProgramModule kSoundModule{"libcontarello_sound", "contarello_make_sound"};
inline constexpr ProgramModule kPrintModule{"libcontarello_print", "contarello_default_printer"};
inline constexpr ProgramModule kSpeechModule{"libcontarello_speech", "contarello_make_speech"};

// The module's entry in moduleDir, or null when the module or its entry isn't there.
QFunctionPointer ResolveModule(const QString& moduleDir, const ProgramModule& module);

class QtRandom : public Random {
public:
    double Rnd() override;
    void Randomize() override;

private:
    std::mt19937 gen_{1};
};

// The sounds come from a module loaded on first use (or by preload, once the first screen is up);
// without the module every sound is silence.
class LazySound : public Sound {
public:
    explicit LazySound(QString moduleDir) : moduleDir_(std::move(moduleDir)) {}
    ~LazySound() override;
    void play(const QString& path) override;
    void preload(const QString& path) override;
    bool loaded() { return module() != nullptr; } // the module and the audio libraries it needs

private:
    Sound* module();

    QString moduleDir_;
    std::unique_ptr<Sound> sound_;
    bool tried_ = false;
};

// Real time, on the toolkit's timers: what falls due runs on the thread that draws the screens.
class QtClock : public Clock {
public:
    QtClock();
    ~QtClock() override;
    qint64 msecs() override;
    int after(int ms, std::function<void()> what) override;
    void cancel(int ticket) override;

private:
    struct State;
    std::unique_ptr<State> state_;
};

class QtDialogs : public Dialogs {
public:
    int MsgBox(const QString& text, int style, const QString& title) override;
    QString InputBox(const QString& prompt, const QString& title, const QString& defaultText) override;
    QString SaveFile(const QString& title, const QString& defaultName, const QString& filter) override;

private:
    QString folder_; // where the last file went, for the next one in this run
};

// The system's default printer, through the print module loaded on the first printout; without
// the module or a printer nothing comes out.
class QtPrinter : public BufferedPrinter {
public:
    explicit QtPrinter(QString moduleDir) : moduleDir_(std::move(moduleDir)) {}
    void endDoc() override;
    void printForm(QWidget& form, const QString& formName) override;

private:
    std::unique_ptr<QPagedPaintDevice> open(const QString& docName);

    using Open = QPagedPaintDevice* (*)(const QString&);
    QString moduleDir_;
    Open open_ = nullptr;
    bool tried_ = false;
};

} // namespace contarello
