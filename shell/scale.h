#pragma once
// The rule that picks the screens' scale from the display, on its own so that the start-up
// benchmark's bare window can take the size the program's window would take.

#include <QSize>
#include <algorithm>

namespace contarello {

constexpr int kTwipsPerPixel = 15;

// The factor that lets the largest screen of the program (FormOrd's width, the menus' height with
// a menu bar: 12600 x 8400 twips) fill about 85 % of the available area, never below 1. roomBelow
// is what stands under the exercise screens (at most 6510 twips tall with their menu bar), in
// twips: the keypad at the classroom's panel.
inline double ChooseScaleFactor(QSize available, int roomBelow = 0) {
    if (available.isEmpty()) return 1;
    constexpr double kLargestWidth = 12600;
    const double largestHeight = std::max(8400, 6510 + roomBelow);
    const double wide = 0.85 * available.width() / (kLargestWidth / kTwipsPerPixel);
    const double high = 0.85 * available.height() / (largestHeight / kTwipsPerPixel);
    return std::max(1.0, std::min(wide, high));
}

} // namespace contarello
