// The program: real services, the table of screens, and Main.

#include "shell/firstpaint.h"
#include "shell/forms.h"
#include "shell/program.h"
#include "shell/qtservices.h"
#include "shell/registry.h"

#include <QApplication>

using namespace contarello;

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    PrepareToolkit(application);
    QtRandom rnd;
    QtSound sound;
    QtDialogs dialogs;
    QtPrinter printer;
    Program app(rnd, sound, dialogs, printer, QCoreApplication::applicationDirPath(), FormTable());
    app.nav.setFollowWindowSystem(true);
    app.nav.onEnd = [] { QCoreApplication::exit(0); };
    Main(app);
    if (app.nav.ended()) return 0;
    if (qEnvironmentVariableIsSet("CONTARELLO_EXIT_AFTER_FIRST_PAINT"))
        app.nav.active()->installEventFilter(new ExitAfterFirstPaint(&application));
    return application.exec();
}
