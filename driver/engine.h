#pragma once
// The program driven by commands, one JSON object each, with scripted services. The driver reads
// them from its input; the end-to-end tests call the same engine in process.

#include "core/scripted.h"
#include "driver/recordingprinter.h"
#include "shell/program.h"

#include <QJsonObject>
#include <memory>

namespace contarello {

class Control;
class Form;

class DriverEngine {
public:
    // A QApplication must exist. appPath is where the sounds are looked for.
    explicit DriverEngine(const QString& appPath = QString());
    ~DriverEngine();

    QJsonObject execute(const QJsonObject& command);
    // One line in, one line out (without its line end).
    QByteArray executeLine(const QByteArray& line);

    Program& program() { return *app_; }
    bool started() const { return started_; }

private:
    QJsonObject dump(Form* form);
    QJsonObject act(const QString& verb, const QJsonObject& command);
    void settle();

    EventLog log_;
    ScriptedRandom rnd_;
    RecordingSound sound_;
    ScriptedDialogs dialogs_;
    RecordingPrinter printer_;
    ScriptedClock clock_;
    RecordingSpeech speech_;
    std::unique_ptr<Program> app_;
    bool started_ = false;
};

} // namespace contarello
