#include "worksheets/caselle.h"

#include <QFontMetrics>
#include <QStyle>
#include <algorithm>

namespace contarello {

namespace {

// The width a line of text has in the box: inside its edge and its text margins, less the two
// pixels a line edit keeps free at each side. Those few pixels are counted as if they grew with the
// screens too, so that the words take the same share of their box at every scale.
double Spazio(const TextBox& box) {
    const int bordo =
        box.hasFrame() ? box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, &box) : 0;
    const QMargins m = box.textMargins();
    const int margini = 2 * bordo + m.left() + m.right() + 4;
    return box.contentsRect().width() - margini * std::max(1.0, ScaleFactor());
}

} // namespace

void ScriviInCaselle(const ControlArray<TextBox>& caselle, const QStringList& testi, double punti) {
    // Sizes in points at scale 1, grown here with the program's factor.
    constexpr double kMinimo = 7, kPasso = 0.25;
    QFont f = Arial(punti);
    auto entrano = [&] {
        const QFontMetrics fm(f);
        for (int i = 0; i < testi.size(); ++i)
            if (const TextBox* box = caselle(i); box && fm.horizontalAdvance(testi[i]) > Spazio(*box))
                return false;
        return true;
    };
    while (f.pointSizeF() > kMinimo * ScaleFactor() && !entrano())
        f.setPointSizeF(f.pointSizeF() - kPasso * ScaleFactor());
    for (int i = 0; i < testi.size(); ++i) {
        if (TextBox* box = caselle(i)) {
            box->setFont(f);
            box->setText(testi[i]);
            box->setCursorPosition(0);
        }
    }
}

} // namespace contarello
