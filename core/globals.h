#pragma once
// The variables every screen shares for the whole run. Integers are 16-bit, as the screens
// count and compare with them.

#include <QString>
#include <array>
#include <cstdint>

namespace contarello {

constexpr int16_t True = -1;
constexpr int16_t False = 0;

struct Modulo1 {
    int16_t Esatti = 0;       // right answers on the screen in use
    int16_t Errati = 0;       // wrong answers on the screen in use
    int16_t NumeroScheda = 0; // which worksheet formStampa builds
    int16_t NumeroEsatto = 0; // the answer to the question on the screen
    std::array<QString, 31> ParoleNumeri{};
    int16_t NumeroMassimo = 0; // upper limit of the numbers drawn
    int16_t Termine1 = 0;
    int16_t Termine2 = 0;
    int16_t Meta = 0;
    int16_t AttendiBottone = 0; // True: wait for "avanti" after a right answer
    // What the ordering worksheet takes from FormOrd while it is loaded: the numbers to a row, as its
    // hidden Label3 says them, and the order asked, as its title bar says it.
    QString OrdinaRiga = QStringLiteral("8");
    QString OrdinaConsegna = QStringLiteral("Ordina i numeri dal minore al maggiore ");
};

} // namespace contarello
