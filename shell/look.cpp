// How the controls look: the ink of each caption chosen against what it really stands on, the
// faded look of what can't be used yet, and the drawing of the controls that paint themselves.

#include "shell/controls.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>
#include <algorithm>

namespace contarello {

namespace {
// The lightness of a colour as the eye weighs it, from 0 for black to 1 for white.
double luminanza(QColor c) {
    auto lineare = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * lineare(c.redF()) + 0.7152 * lineare(c.greenF()) + 0.0722 * lineare(c.blueF());
}

// The screen (or whatever stands for one) at the bottom of an object's parents.
Backdrop* backdropOf(QObject* o) {
    for (; o; o = o->parent())
        if (auto* b = dynamic_cast<Backdrop*>(o)) return b;
    return nullptr;
}
} // namespace

double Contrasto(QColor a, QColor b) {
    const double la = luminanza(a), lb = luminanza(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor InchiostroSu(QColor fondo) {
    return Contrasto(Qt::black, fondo) >= Contrasto(Qt::white, fondo) ? QColor(Qt::black) : QColor(Qt::white);
}

QColor blend(QColor a, QColor b, double quota) {
    auto m = [quota](int x, int y) { return int(std::lround(x * quota + y * (1 - quota))); };
    return QColor(m(a.red(), b.red()), m(a.green(), b.green()), m(a.blue(), b.blue()));
}

// A button that can't be pressed looks switched off, whatever colour the screen has behind it.
QPixmap greyed(const QPixmap& pm) {
    QImage im = pm.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < im.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(im.scanLine(y));
        for (int x = 0; x < im.width(); ++x) {
            const int g = 150 + qGray(row[x]) * 85 / 255;
            row[x] = qRgba(g, g, g, qAlpha(row[x]));
        }
    }
    return QPixmap::fromImage(im);
}

// ---- Control ----

void Control::setBackColor(QColor c) {
    backColor_ = c;
    if (QWidget* w = widget()) {
        QPalette p = w->palette();
        p.setColor(QPalette::Window, c);
        p.setColor(QPalette::Base, c);
        p.setColor(QPalette::Button, c);
        w->setPalette(p);
        w->setAutoFillBackground(true);
        w->update();
        // Its own caption and those standing on it (the options of a panel) follow the new fill.
        if (Backdrop* b = backdropOf(w->parentWidget()))
            b->fitInks();
        else
            fitInk();
    }
}

void Control::setForeColor(QColor c) {
    foreColor_ = c;
    fitInk();
}

QColor Control::captionGround() const {
    for (const QWidget* w = const_cast<Control*>(this)->widget(); w; w = w->parentWidget()) {
        if (auto* b = dynamic_cast<const Backdrop*>(w)) return b->groundColour();
        if (w->autoFillBackground()) return w->palette().color(w->backgroundRole());
    }
    return Qt::white;
}

void Control::fitInk() {
    QWidget* w = widget();
    const QPalette::ColorRole role = captionRole();
    if (!w || role == QPalette::NoRole) return;
    const QColor fondo = captionGround();
    const QColor ink = foreColor_.isValid() ? foreColor_ : InchiostroSu(fondo);
    // A colour the program chose stays in every state, so a disabled box still shows its digits.
    const QColor spento = foreColor_.isValid() ? foreColor_ : blend(ink, fondo);
    QPalette p = w->palette();
    if (p.isBrushSet(QPalette::Active, role) && p.color(QPalette::Active, role) == ink &&
        p.color(QPalette::Inactive, role) == ink && p.color(QPalette::Disabled, role) == spento)
        return;
    p.setColor(QPalette::Active, role, ink);
    p.setColor(QPalette::Inactive, role, ink);
    p.setColor(QPalette::Disabled, role, spento);
    w->setPalette(p);
}

// ---- Label ----

void Label::paintEvent(QPaintEvent* e) {
    fitInk();
    QLabel::paintEvent(e);
    if (Carried() != this) return;
    // Picked up: it stands out of the screen, a thick dashed edge in the caption's colour round it.
    QPainter p(this);
    const QColor ink = palette().color(QPalette::WindowText);
    const int w = std::max(3, int(std::lround(px(5))));
    QPen pen(ink, w, Qt::DashLine);
    p.setPen(pen);
    p.drawRect(QRectF(rect()).adjusted(w / 2.0, w / 2.0, -w / 2.0, -w / 2.0));
    p.setPen(QPen(InchiostroSu(ink), std::max(1, w / 2), Qt::DashLine));
    p.drawRect(QRectF(rect()).adjusted(w * 1.5, w * 1.5, -w * 1.5, -w * 1.5));
}

// ---- CommandButton ----

QColor CommandButton::captionGround() const {
    return hasBackColor() ? backColor_ : palette().color(QPalette::Button);
}

void CommandButton::paintEvent(QPaintEvent*) {
    fitInk();
    QPainter p(this);
    QStyleOptionButton opt;
    opt.initFrom(this);
    opt.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    // A coloured button that can't be pressed yet fades towards grey and greys its caption, so a child
    // sees at once which of the red and blue buttons is live.
    const QColor spenta(0x80, 0x80, 0x80);
    if (hasBackColor())
        opt.palette.setColor(QPalette::Button,
                             isEnabled() ? backColor_ : blend(backColor_, QColor(0xe4, 0xe4, 0xe4), 0.3));
    style()->drawControl(QStyle::CE_PushButtonBevel, &opt, &p, this);

    QRect area = rect().adjusted(4, 3, -4, -3);
    if (isDown()) area.translate(1, 1);
    p.setFont(font());
    p.setPen(isEnabled()      ? palette().color(QPalette::ButtonText)
             : hasBackColor() ? spenta
                              : palette().color(QPalette::Disabled, QPalette::ButtonText));
    // A picture stands above the caption; the caption wraps at blanks, as long menu captions need.
    if (!picture_.isNull()) {
        // A caption of two lines takes its room first; the picture shrinks into what is left.
        const int textHeight =
            caption_.isEmpty()
                ? 0
                : std::min(area.height() / 2,
                           p.fontMetrics()
                               .boundingRect(area, Qt::AlignCenter | Qt::TextWordWrap, caption_)
                               .height());
        const QSize room(area.width(), area.height() - textHeight);
        const QSize natural = picture_.deviceIndependentSize().toSize();
        const QSize ps = natural.scaled(room, Qt::KeepAspectRatio).boundedTo(natural);
        const int top = area.top() + (area.height() - ps.height() - textHeight) / 2;
        const QRect pic(area.left() + (area.width() - ps.width()) / 2, top, ps.width(), ps.height());
        p.drawPixmap(pic, isEnabled() ? picture_ : disabledPicture_);
        area.setTop(pic.bottom() + 1);
    }
    if (!caption_.isEmpty()) p.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, caption_);
}

// ---- TextBox ----

void TextBox::paintEvent(QPaintEvent* e) {
    fitInk();
    QLineEdit::paintEvent(e);
}

// ---- OptionButton ----

void OptionButton::setBackColor(QColor c) {
    Control::setBackColor(c);
}

namespace {
const QColor kTessera(0xff, 0xff, 0xff);       // the tile of an option
const QColor kTesseraScelta(0x1f, 0x5f, 0xd0); // ... and of the one chosen
const QColor kTesseraSpenta(0xe4, 0xe4, 0xe4); // ... and of one that can't be chosen
} // namespace

QColor OptionButton::captionGround() const {
    if (!isEnabled()) return kTesseraSpenta;
    return isChecked() ? kTesseraScelta : kTessera;
}

void OptionButton::paintEvent(QPaintEvent*) {
    fitInk();
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette().color(QPalette::WindowText);
    const QRectF tile = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    p.setPen(
        QPen(isChecked() ? kTesseraScelta.darker(160) : QColor(0x50, 0x50, 0x50), isChecked() ? 3 : 1.5));
    p.setBrush(captionGround());
    p.drawRoundedRect(tile, 6, 6);
    if (hasFocus()) {
        p.setPen(QPen(ink, 1, Qt::DotLine));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(tile.adjusted(3, 3, -3, -3), 4, 4);
    }
    // The mark grows with the caption, up to what the tile can hold.
    const int d = std::max(8, std::min(fontMetrics().height() * 4 / 5, height() - 8));
    const double gap = std::max(3.0, d / 4.0);
    const QRectF mark(tile.left() + gap, tile.center().y() - d / 2.0, d, d);
    p.setPen(QPen(isEnabled() ? QColor(0x30, 0x30, 0x30) : QColor(0xa0, 0xa0, 0xa0), 1.5));
    p.setBrush(Qt::white);
    p.drawEllipse(mark);
    if (isChecked()) {
        p.setPen(Qt::NoPen);
        p.setBrush(kTesseraScelta);
        p.drawEllipse(mark.adjusted(d / 4.0, d / 4.0, -d / 4.0, -d / 4.0));
    }
    p.setPen(ink);
    p.setFont(font());
    const QRectF text(mark.right() + gap, tile.top(), tile.right() - mark.right() - gap, tile.height());
    p.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, this->text());
}

// ---- Frame ----

void Frame::paintEvent(QPaintEvent*) {
    fitInk();
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QFontMetrics fm(font());
    const QColor ink = isEnabled() ? palette().color(QPalette::WindowText)
                                   : palette().color(QPalette::Disabled, QPalette::WindowText);
    p.setPen(QPen(ink, 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(rect()).adjusted(1.5, fm.height() / 2.0 + 1, -1.5, -1.5), 8, 8);
    if (title().isEmpty()) return;
    // The caption in the middle of the top edge, on a patch of what it stands on.
    const int w = std::min(width() - 24, fm.horizontalAdvance(title()) + 20);
    const QRect t((width() - w) / 2, 0, w, fm.height() + 2);
    p.fillRect(t, captionGround());
    p.setPen(ink);
    p.drawText(t, Qt::AlignCenter, title());
}

// ---- Shape ----

void Shape::setBackColor(QColor c) {
    backColor_ = c; // only the figure takes it, never the box around it
    update();
}

QRectF Shape::figureRect() const {
    // The edge lies inside the box, so a figure is never cut at its sides.
    const double inset = px(borderWidth_) / 2.0;
    QRectF r = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    if (shape_ == Square || shape_ == Circle || shape_ == RoundedSquare) {
        const double d = std::min(r.width(), r.height());
        r = QRectF(r.center().x() - d / 2, r.center().y() - d / 2, d, d);
    }
    return r;
}

void Shape::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF r = figureRect();
    QPainterPath figure;
    switch (shape_) {
    case Rectangle:
    case Square:
        figure.addRect(r);
        break;
    case Oval:
    case Circle:
        figure.addEllipse(r);
        break;
    case RoundedRectangle:
    case RoundedSquare: {
        const double radius = std::min(r.width(), r.height()) / 6;
        figure.addRoundedRect(r, radius, radius);
        break;
    }
    }
    if (backStyle_ == Opaque && backColor_.isValid()) p.fillPath(figure, backColor_);
    if (fillStyle_ == Solid) p.fillPath(figure, fill_);
    if (borderWidth_ > 0) p.strokePath(figure, QPen(border_, px(borderWidth_)));
}

// ---- Line ----

void Line::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setPen(QPen(colour_, width_));
    p.drawLine(a_, b_);
}

} // namespace contarello
