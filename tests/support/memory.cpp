#include "support/memory.h"

#include <QFile>
#include <QList>
#include <cstddef>
#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__)
#define CONTARELLO_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define CONTARELLO_ASAN 1
#endif
#endif
#ifdef CONTARELLO_ASAN
// The sanitizer's runtime has it under either compiler; only clang ships its header.
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace contarello::test {

double ResidentMB() {
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : f.readAll().split('\n'))
        if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').value(0).toDouble() / 1024;
    return 0;
}

long long HeapInUse() {
#ifdef CONTARELLO_ASAN
    return (long long)__sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 m = mallinfo2();
    return (long long)(m.uordblks + m.hblkhd);
#endif
}

} // namespace contarello::test
