#pragma once
// The real services: the clock-seeded random sequence, the sounds, Qt's message
// and input boxes, and the system's default printer.

#include "core/services.h"

#include <QObject>
#include <map>
#include <memory>

class QApplication;

namespace contarello {

// Fonts, style and the Italian texts of Qt's own boxes, once at start.
void PrepareToolkit(QApplication& app);

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

private:
    Sound* module();

    QString moduleDir_;
    std::unique_ptr<Sound> sound_;
    bool tried_ = false;
};

class QtDialogs : public Dialogs {
public:
    int MsgBox(const QString& text, int style, const QString& title) override;
    QString InputBox(const QString& prompt, const QString& title, const QString& defaultText) override;
    QString SaveFile(const QString& title, const QString& defaultName, const QString& filter) override;

private:
    QString folder_; // where the last file went, for the next one in this run
};

class QtPrinter : public BufferedPrinter {
public:
    void endDoc() override;
    void printForm(QWidget& form, const QString& formName) override;
};

} // namespace contarello
