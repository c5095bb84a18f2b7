#pragma once
// Where the program's files are: the sounds and the sound module. In the build tree they lie next to
// the executable; installed, they lie in the system's places for data and modules, found relative
// to the executable so that an installed tree can be moved whole.

#include <QString>

namespace contarello {

struct ProgramFiles {
    QString data;    // the folder that holds suoni/
    QString modules; // the folder that holds the sound and print modules
};

ProgramFiles FindProgramFiles(const QString& programDir);

// For the install check: prints where each file the program needs at run time was looked for and
// whether it is there (the sounds, both modules loaded with the libraries they need, the program's
// face regular and bold, Qt's Italian texts); 0 when all were found, 1 otherwise.
int ReportProgramFiles(const ProgramFiles& files);

} // namespace contarello
