// Every test process draws, lays out and prints with the program's own fonts and toolkit set-up,
// as the program and the driver do, whatever fonts the machine happens to hold.

#include "shell/fonts/fonts.h"
#include "shell/qtservices.h"

#include <QApplication>

namespace {

void BeforeTheApplication() {
    contarello::UseProgramFonts();
}

void WithTheApplication() {
    if (auto* app = qobject_cast<QApplication*>(QCoreApplication::instance()))
        contarello::PrepareToolkit(*app);
}

} // namespace

Q_CONSTRUCTOR_FUNCTION(BeforeTheApplication)
Q_COREAPP_STARTUP_FUNCTION(WithTheApplication)
