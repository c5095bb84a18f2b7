#include "app/paths.h"
#include "shell/qtservices.h"

#include "shell/fonts/fonts.h"

#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QFontInfo>
#include <QGuiApplication>
#include <QLibrary>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <cstdio>

#ifndef CONTARELLO_DATA_FROM_BIN
#define CONTARELLO_DATA_FROM_BIN "../share/contarello"
#endif
#ifndef CONTARELLO_MODULES_FROM_BIN
#define CONTARELLO_MODULES_FROM_BIN "../lib/contarello"
#endif

namespace contarello {

namespace {

const char* const kSuoni[] = {"si1.wav", "si2.wav", "si3.wav", "si4.wav", "si.wav", "no.wav"};

// The folder next to the program if it holds what we look for, else the installed one.
QString Choose(const QDir& bin, const QString& installed, const QString& marker) {
    if (QFileInfo::exists(bin.filePath(marker))) return bin.absolutePath();
    return QDir::cleanPath(bin.absoluteFilePath(installed));
}

} // namespace

ProgramFiles FindProgramFiles(const QString& programDir) {
    const QDir bin(programDir);
    return {Choose(bin, QStringLiteral(CONTARELLO_DATA_FROM_BIN), QStringLiteral("suoni")),
            Choose(bin, QStringLiteral(CONTARELLO_MODULES_FROM_BIN),
                   QLatin1String(kSoundModule.library) + QStringLiteral(".so"))};
}

int ReportProgramFiles(const ProgramFiles& files) {
    int missing = 0;
    for (const char* s : kSuoni) {
        const QString path = files.data + QStringLiteral("/suoni/") + QLatin1String(s);
        const bool there = QFileInfo(path).isFile();
        missing += there ? 0 : 1;
        std::printf("%s %s\n", there ? "ok     " : "MISSING", qPrintable(path));
    }
    for (const ProgramModule& m : {kSoundModule, kPrintModule}) {
        QLibrary module(files.modules + QLatin1Char('/') + QLatin1String(m.library));
        const bool loads = module.load() && module.resolve(m.entry);
        missing += loads ? 0 : 1;
        std::printf("%s %s\n", loads ? "ok     " : "MISSING",
                    qPrintable(loads ? module.fileName() : module.errorString()));
    }
    // The voice's module is optional: without it, or without the speech libraries it needs, the
    // voice is silent and the program is complete all the same.
    {
        QLibrary voce(files.modules + QLatin1Char('/') + QLatin1String(kSpeechModule.library));
        const bool loads = voce.load() && voce.resolve(kSpeechModule.entry);
        std::printf("%s %s\n", loads ? "ok     " : "silent ",
                    qPrintable(loads ? voce.fileName() : voce.errorString() + QStringLiteral(" (no voice)")));
    }
    // The face every screen and every sheet is drawn in, as the program's font configuration finds
    // it, and the face Qt really draws with: a machine without it would lay the screens out wrong.
    for (const bool bold : {false, true}) {
        const QString file = ProgramFontFile(bold);
        missing += file.isEmpty() ? 1 : 0;
        std::printf("%s %s\n", file.isEmpty() ? "MISSING" : "ok     ",
                    qPrintable(file.isEmpty() ? ProgramFamily() + (bold ? QStringLiteral(" Bold") : QString())
                                              : file));
    }
    const QString drawn = QFontInfo(QFont(ProgramFamily())).family();
    missing += drawn == ProgramFamily() ? 0 : 1;
    std::printf("%s drawn in %s\n", drawn == ProgramFamily() ? "ok     " : "MISSING", qPrintable(drawn));
    // Qt's own Italian texts ("Sì", "No", "Annulla") and the display's platform plugin.
    QTranslator italian;
    const QString translations = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    const bool italiano = italian.load(QLocale(QLocale::Italian, QLocale::Italy), QStringLiteral("qtbase"),
                                       QStringLiteral("_"), translations);
    missing += italiano ? 0 : 1;
    std::printf("%s %s\n", italiano ? "ok     " : "MISSING",
                qPrintable(italiano ? italian.filePath() : translations + QStringLiteral("/qtbase_it.qm")));
    std::printf("ok      platform %s\n", qPrintable(QGuiApplication::platformName()));
    return missing == 0 ? 0 : 1;
}

} // namespace contarello
