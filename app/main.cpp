// The program: real services, the table of screens, and Main.

#include "app/paths.h"
#include "app/screens.h"
#include "shell/firstpaint.h"
#include "shell/fonts/fonts.h"
#include "shell/form.h"
#include "shell/keypad.h"
#include "shell/program.h"
#include "shell/qtservices.h"
#include "shell/speech.h"

#include <QApplication>
#include <QFileInfo>
#include <QScreen>
#include <cstdio>

using namespace contarello;

namespace {

// The scale of the screens: "--scale F" on the command line, else CONTARELLO_SCALE, else what fits
// the display. A value that isn't a number is passed over.
double ScalaScelta(const QStringList& args) {
    bool ok = false;
    const int at = int(args.indexOf(QStringLiteral("--scale")));
    if (at >= 0 && at + 1 < args.size()) {
        const double f = args[at + 1].toDouble(&ok);
        if (ok && f > 0) return f;
    }
    const double f = qEnvironmentVariable("CONTARELLO_SCALE").toDouble(&ok);
    if (ok && f > 0) return f;
    const QScreen* screen = QGuiApplication::primaryScreen();
    // At the classroom's panel the keypad takes room under the screens.
    const int room = args.contains(QStringLiteral("--lavagna")) ? kKeypadRoomTwips : 0;
    return screen ? ChooseScaleFactor(screen->availableGeometry().size(), room) : 1.0;
}

} // namespace

int main(int argc, char** argv) {
    UseProgramFonts();
    QApplication application(argc, argv);
    PrepareToolkit(application);
    SetScaleFactor(ScalaScelta(QCoreApplication::arguments()));
    const ProgramFiles files = FindProgramFiles(QCoreApplication::applicationDirPath());
    // The install check: where the sounds and their module were found, and nothing else.
    if (qEnvironmentVariableIsSet("CONTARELLO_CHECK_FILES")) return ReportProgramFiles(files);
    QtRandom rnd;
    LazySound sound(files.modules);
    QtDialogs dialogs;
    QtPrinter printer(files.modules);
    QtClock clock;
    // The voice module is looked for only when the voice is turned on, and on the voice's own thread.
    BackgroundSpeech speech([modules = files.modules]() -> Speech* {
        using Make = Speech* (*)();
        const auto make = reinterpret_cast<Make>(ResolveModule(modules, kSpeechModule));
        return make ? make() : nullptr;
    });
    Program app(rnd, sound, dialogs, printer, clock, speech, files.data, FormTable());
    // "--voce": the voice on from the start, as if chosen on the main menu.
    app.voce = QCoreApplication::arguments().contains(QStringLiteral("--voce"));
    app.nav.setFollowWindowSystem(true);
    app.nav.onEnd = [] { QCoreApplication::exit(0); };
    app.lavagna = QCoreApplication::arguments().contains(QStringLiteral("--lavagna"));
    Main(app);
    if (app.nav.ended()) return 0;
    const QString exitAfter = qEnvironmentVariable("CONTARELLO_EXIT_AFTER_FIRST_PAINT");
    if (exitAfter == QStringLiteral("paint")) {
        ExitAfterFirstPaint(app.nav.active()); // the start-up benchmark: the start alone
    } else {
        // Qt's own texts and the sounds get ready while the child looks at the start screen. The
        // start check ends here, failing when any of them is missing.
        new AfterFirstPaint(app.nav.active(), [&] {
            if (app.voce) speech.prepare();
            bool ready = InstallItalianTexts(application) && sound.loaded();
            for (const char* f : {"si1", "si2", "si3", "si4", "si", "no"}) {
                const QString path =
                    files.data + QStringLiteral("/suoni/") + QLatin1String(f) + QStringLiteral(".wav");
                ready = ready && QFileInfo::exists(path);
                sound.preload(path);
            }
            if (!exitAfter.isEmpty()) {
                if (!ready)
                    std::fputs("contarello: Qt's Italian texts, the sound module or a sound is missing\n",
                               stderr);
                QCoreApplication::exit(ready ? 0 : 1);
            }
        });
    }
    return application.exec();
}
