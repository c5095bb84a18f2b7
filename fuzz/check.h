#pragma once
// What the fuzz targets share: the input as the texts and numbers the functions take, and a check
// that stops the run with its reason, so libFuzzer keeps the input that broke a property.

#include <QString>
#include <QStringList>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace contarello::fuzz {

inline void require(bool holds, const char* property, const QString& detail = QString()) {
    if (holds) return;
    std::fprintf(stderr, "property broken: %s %s\n", property, qPrintable(detail));
    std::abort();
}

// The first 8 bytes as one value of T (zeros where the input is short); the rest is left in data.
template <class T> T take(const uint8_t*& data, size_t& size) {
    T v{};
    const size_t n = size < sizeof v ? size : sizeof v;
    std::memcpy(&v, data, n);
    data += n;
    size -= n;
    return v;
}

inline QString text(const uint8_t* data, size_t size) {
    return QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
}

} // namespace contarello::fuzz
