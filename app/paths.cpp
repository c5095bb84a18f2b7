#include "app/paths.h"
#include "shell/qtservices.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
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
    return missing == 0 ? 0 : 1;
}

} // namespace contarello
