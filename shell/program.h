#pragma once
// What the whole program shares: the variables, the services and the navigator, handed to every
// screen; and the routines every screen may call.

#include "core/globals.h"
#include "core/services.h"
#include "shell/navigator.h"

#include <QString>

namespace contarello {

struct Program {
    Program(Random& r, Sound& s, Dialogs& d, Printer& p, Clock& c, Speech& v, QString path,
            std::vector<FormEntry> forms, EventLog* events = nullptr)
        : rnd(r), sound(s), dialogs(d), printer(p), clock(c), speech(v), appPath(std::move(path)),
          log(events), nav(*this, std::move(forms), events) {}

    Modulo1 g;
    Random& rnd;
    Sound& sound;
    Dialogs& dialogs;
    Printer& printer;
    Clock& clock;
    Speech& speech;
    QString appPath;      // the program's folder, where suoni/ lies
    EventLog* log;        // nullptr in the real program
    bool lavagna = false; // the keypad under the screens: from the first touch, or from the start
    // Whether the voice speaks: off unless an adult turns it on, for this run only.
    bool voce = false;
    Navigator nav;
};

inline const QString kTitolo = QStringLiteral("Contarello");

// The entry routine: seeds the random sequence, sets the two settings and shows the start screen.
void Main(Program& app);
void MostraInformazioni(Program& app);
void ChiediUscita(Program& app);
// Turns a to z into capitals, in the variable too; anything else passes unchanged.
int FiltroMaiuscole(int& keyAscii);
// One of the four cheerful sounds; takes one draw of the random sequence.
void SuonoEsatto(Program& app);
void SuonoErrato(Program& app);
// The step sound of the screens that build an answer in stages.
void suona(Program& app);
// Says a text of a screen, its numbers and signs as words, when the voice is on; nothing for a text
// with nothing to say.
void Parla(Program& app, const QString& testo);

} // namespace contarello
