// contarello-driver: the program's screens driven by JSON lines on standard input, one answer a line
// on standard output. Runs without a display.

#include "driver/engine.h"
#include "shell/controls.h"
#include "shell/fonts/fonts.h"
#include "shell/qtservices.h"

#include <QApplication>
#include <cstdio>
#include <iostream>
#include <string>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    contarello::UseProgramFonts();
    QApplication application(argc, argv);
    contarello::PrepareToolkit(application);
    contarello::InstallItalianTexts(application);
    // Scale 1 unless told otherwise, so that scripts see the screens as laid out.
    bool scaled = false;
    const double factor = qEnvironmentVariable("CONTARELLO_SCALE").toDouble(&scaled);
    if (scaled && factor > 0) contarello::SetScaleFactor(factor);
    contarello::DriverEngine engine(QCoreApplication::applicationDirPath());
    std::string line;
    while (std::getline(std::cin, line)) {
        if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
        const QByteArray answer = engine.executeLine(QByteArray::fromStdString(line));
        std::fwrite(answer.constData(), 1, size_t(answer.size()), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
    }
    return 0;
}
