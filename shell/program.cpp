#include "shell/program.h"
#include "core/lang.h"
#include "core/phrases.h"

namespace contarello {

void Main(Program& app) {
    app.rnd.Randomize();
    app.g.AttendiBottone = True;
    app.g.NumeroMassimo = 99;
    app.nav.Show(QStringLiteral("FormAvvio"));
}

void MostraInformazioni(Program& app) {
    const QString testo = QStringLiteral("Nora Belli  ") + CRLF +
                          QStringLiteral(" ----------------------- ") + CRLF +
                          QStringLiteral("https://contarello.example.org") + CRLF +
                          QStringLiteral("mail: contarello@example.org");
    app.dialogs.MsgBox(testo, vbInformation, kTitolo);
}

void ChiediUscita(Program& app) {
    if (app.dialogs.MsgBox(QStringLiteral("Vuoi uscire dal programma?"), vbYesNoQuestion, kTitolo) == vbYes)
        app.nav.End();
}

int FiltroMaiuscole(int& keyAscii) {
    if (keyAscii >= 97 && keyAscii <= 122) keyAscii -= 32;
    return keyAscii;
}

void SuonoEsatto(Program& app) {
    const int r = Draw(app.rnd, 4, 1);
    app.sound.play(app.appPath + QStringLiteral("/suoni/si") + QString::number(r) + QStringLiteral(".wav"));
}

void SuonoErrato(Program& app) {
    app.sound.play(app.appPath + QStringLiteral("/suoni/no.wav"));
}

void suona(Program& app) {
    app.sound.play(app.appPath + QStringLiteral("/suoni/si.wav"));
}

void Parla(Program& app, const QString& testo) {
    if (!app.voce) return;
    const QString frase = FraseDaDire(testo);
    if (!frase.isEmpty()) app.speech.say(frase);
}

} // namespace contarello
