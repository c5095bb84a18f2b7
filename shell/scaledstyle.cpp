#include "shell/scaledstyle.h"
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

int scaled(int pixels) {
    return int(std::lround(pixels * ScaleFactor()));
}

// The program's style with every size grown by the factor, read afresh at each call.
class ScaledStyle : public QProxyStyle {
public:
    ScaledStyle() : QProxyStyle(new ProgramStyle) {}

    int pixelMetric(PixelMetric m, const QStyleOption* o, const QWidget* w) const override {
        const int v = QProxyStyle::pixelMetric(m, o, w);
        return v > 0 ? scaled(v) : v;
    }

    QSize sizeFromContents(ContentsType t, const QStyleOption* o, const QSize& contents,
                           const QWidget* w) const override {
        QSize s = QProxyStyle::sizeFromContents(t, o, contents, w);
        switch (t) {
        case CT_PushButton: // the style's smallest button is 80 pixels wide
            s = s.expandedTo(QSize(scaled(80), 0));
            break;
        case CT_MenuItem: { // room around an item's text, and its smallest width, in fixed pixels
            const QSize around = s - contents;
            s = QSize(contents.width() + scaled(around.width()), contents.height() + scaled(around.height()));
            s = s.expandedTo(QSize(scaled(120), 0));
            break;
        }
        default:
            break;
        }
        return s;
    }
};

QStyle* TheScaledStyle() {
    static QPointer<ScaledStyle> style;
    if (!style) {
        style = new ScaledStyle;
        style->setParent(qApp);
    }
    return style;
}

} // namespace

void FollowTheScale(QWidget& w) {
    QStyle* style = TheScaledStyle();
    w.setStyle(style);
    for (QWidget* c : w.findChildren<QWidget*>())
        c->setStyle(style);
}

} // namespace contarello
