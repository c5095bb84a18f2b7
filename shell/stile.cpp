#include "shell/stile.h"
#include "shell/controls.h"
#include "shell/style.h"

#include <QApplication>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

namespace contarello {

namespace {

int scalato(int pixels) {
    return int(std::lround(pixels * ScaleFactor()));
}

// The program's style with every size grown by the factor, read afresh at each call.
class StileScalato : public QProxyStyle {
public:
    StileScalato() : QProxyStyle(new ProgramStyle) {}

    int pixelMetric(PixelMetric m, const QStyleOption* o, const QWidget* w) const override {
        const int v = QProxyStyle::pixelMetric(m, o, w);
        return v > 0 ? scalato(v) : v;
    }

    QSize sizeFromContents(ContentsType t, const QStyleOption* o, const QSize& contenuto,
                           const QWidget* w) const override {
        QSize s = QProxyStyle::sizeFromContents(t, o, contenuto, w);
        switch (t) {
        case CT_PushButton: // the style's smallest button is 80 pixels wide
            s = s.expandedTo(QSize(scalato(80), 0));
            break;
        case CT_MenuItem: { // room around an item's text, and its smallest width, in fixed pixels
            const QSize attorno = s - contenuto;
            s = QSize(contenuto.width() + scalato(attorno.width()),
                      contenuto.height() + scalato(attorno.height()));
            s = s.expandedTo(QSize(scalato(120), 0));
            break;
        }
        default:
            break;
        }
        return s;
    }
};

QStyle* Stile() {
    static QPointer<StileScalato> stile;
    if (!stile) {
        stile = new StileScalato;
        stile->setParent(qApp);
    }
    return stile;
}

} // namespace

void AllaScala(QWidget& w) {
    QStyle* stile = Stile();
    w.setStyle(stile);
    for (QWidget* c : w.findChildren<QWidget*>())
        c->setStyle(stile);
}

} // namespace contarello
