// The program: real services, the table of screens, and Main.

#include "app/paths.h"
#include "app/screens.h"
#include "shell/firstpaint.h"
#include "app/fonts.h"
#include "shell/form.h"
#include "shell/program.h"
#include "shell/qtservices.h"

#include <QApplication>
#include <QScreen>

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
    return screen ? ChooseScaleFactor(screen->availableGeometry().size()) : 1.0;
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
    Program app(rnd, sound, dialogs, printer, files.data, FormTable());
    app.nav.setFollowWindowSystem(true);
    app.nav.onEnd = [] { QCoreApplication::exit(0); };
    Main(app);
    if (app.nav.ended()) return 0;
    if (qEnvironmentVariableIsSet("CONTARELLO_EXIT_AFTER_FIRST_PAINT")) {
        ExitAfterFirstPaint(app.nav.active());
    } else {
        // Qt's own texts and the sounds get ready while the child looks at the start screen.
        new AfterFirstPaint(app.nav.active(), [&] {
            InstallItalianTexts(application);
            for (const char* f : {"si1", "si2", "si3", "si4", "si", "no"})
                sound.preload(app.appPath + QStringLiteral("/suoni/") + QLatin1String(f) +
                              QStringLiteral(".wav"));
        });
    }
    return application.exec();
}
