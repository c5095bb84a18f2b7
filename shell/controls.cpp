// The controls of the forms layer: each keeps its Qt look and gives the screens the names,
// captions and handlers they are written with.

#include "core/lang.h"
#include "shell/form.h"
#include "shell/program.h"

#include <QAction>
#include <QApplication>
#include <QDrag>
#include <QJsonArray>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>
#include <algorithm>
#include <limits>

namespace contarello {

namespace {

const QString kLabelMime = QStringLiteral("application/x-contarello-label");

Form* formOf(QObject* o) {
    for (; o; o = o->parent())
        if (auto* f = qobject_cast<Form*>(o)) return f;
    return nullptr;
}

int vbButton(Qt::MouseButton b) {
    switch (b) {
    case Qt::LeftButton:
        return vbLeftButton;
    case Qt::RightButton:
        return vbRightButton;
    case Qt::MiddleButton:
        return vbMiddleButton;
    default:
        return 0;
    }
}

int vbShift(Qt::KeyboardModifiers m) {
    return (m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) |
           (m & Qt::AltModifier ? 4 : 0);
}

using MouseHandler = std::function<void(int button, int shift, int x, int y)>;

// A mouse button as a handler takes it: which button, the shift keys, and where, in twips.
void deliver(const MouseHandler& handler, const QMouseEvent* e) {
    if (!handler) return;
    const QPoint at = e->position().toPoint();
    handler(vbButton(e->button()), vbShift(e->modifiers()), twipsOf(at.x()), twipsOf(at.y()));
}

// Keys whose codes aren't their text: what KeyPress sees (0 for none) and what KeyUp sees.
struct SpecialKey {
    int key, ansi, code;
};
constexpr SpecialKey kSpecialKeys[] = {
    {Qt::Key_Return, 13, 13}, {Qt::Key_Enter, 13, 13}, {Qt::Key_Backspace, 8, 8},
    {Qt::Key_Escape, 27, 27}, {Qt::Key_Tab, 0, 9},     {Qt::Key_Delete, 0, 46},
};

const SpecialKey* special(const QKeyEvent* e) {
    for (const SpecialKey& k : kSpecialKeys)
        if (k.key == e->key()) return &k;
    return nullptr;
}

// The character code a key gives, as KeyPress sees it; 0 for keys that type nothing.
int ansiOf(const QKeyEvent* e) {
    if (const SpecialKey* k = special(e)) return k->ansi;
    return e->text().isEmpty() ? 0 : Asc(e->text().at(0));
}

// The key code KeyUp sees: letters as capitals, digits, Enter 13, Backspace 8.
int vbKeyCode(const QKeyEvent* e) {
    if (const SpecialKey* k = special(e)) return k->code;
    return e->key() < 256 ? e->key() : 0;
}

// Drops of a dragged label onto a control with a DragDrop handler.
class DropFilter : public QObject {
public:
    using QObject::QObject;
    static DropFilter* instance() {
        static auto* f = new DropFilter(qApp);
        return f;
    }
    bool eventFilter(QObject* watched, QEvent* e) override {
        if (e->type() == QEvent::DragEnter || e->type() == QEvent::DragMove) {
            auto* de = static_cast<QDropEvent*>(e);
            if (de->mimeData()->hasFormat(kLabelMime)) {
                de->acceptProposedAction();
                return true;
            }
        } else if (e->type() == QEvent::Drop) {
            auto* de = static_cast<QDropEvent*>(e);
            Form* form = formOf(watched);
            if (!form || !de->mimeData()->hasFormat(kLabelMime)) return false;
            Control* source = form->find(QString::fromUtf8(de->mimeData()->data(kLabelMime)));
            Control* target = nullptr;
            for (Control* c : form->controls())
                if (c->object() == watched) target = c;
            de->acceptProposedAction();
            if (source && target && target->DragDrop) target->DragDrop(source);
            return true;
        }
        return false;
    }
};

// Halfway between two colours: how a disabled caption fades into what it stands on.
// a and b mixed, with the share of a given.
QColor blend(QColor a, QColor b, double quota = 0.5) {
    auto m = [quota](int x, int y) { return int(std::lround(x * quota + y * (1 - quota))); };
    return QColor(m(a.red(), b.red()), m(a.green(), b.green()), m(a.blue(), b.blue()));
}

// A picture in light greys, its shape kept: a button that can't be pressed looks switched off,
// whatever colour the screen has behind it.
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

} // namespace

// ---- Control ----

bool Control::Visible() const {
    auto* w = const_cast<Control*>(this)->widget();
    return w && !(w->testAttribute(Qt::WA_WState_ExplicitShowHide) && w->testAttribute(Qt::WA_WState_Hidden));
}

bool Control::Enabled() const {
    auto* w = const_cast<Control*>(this)->widget();
    return w && !w->testAttribute(Qt::WA_ForceDisabled);
}

void Control::acceptDrops() {
    if (QWidget* w = widget()) {
        w->setAcceptDrops(true);
        w->installEventFilter(DropFilter::instance());
    }
}

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
        if (Form* f = formOf(w->parentWidget()))
            f->fitInks();
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
        if (auto* f = qobject_cast<const Form*>(w))
            return f->BackColor().isValid() ? f->BackColor() : f->palette().color(QPalette::Window);
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

void Control::describeCommon(QJsonObject& out) const {
    out[QStringLiteral("kind")] = kind();
    out[QStringLiteral("visible")] = Visible();
    out[QStringLiteral("enabled")] = Enabled();
    if (backColor_.isValid()) out[QStringLiteral("backcolor")] = colourName(backColor_);
}

// ---- Label ----

Label::Label(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void Label::setCaption(const QString& c) {
    caption_ = c;
    setText(c);
    if (autoSize_) adjustSize();
}

void Label::paintEvent(QPaintEvent* e) {
    fitInk();
    QLabel::paintEvent(e);
}

void Label::describe(QJsonObject& out) const {
    describeCommon(out);
    out[QStringLiteral("caption")] = caption_;
    out[QStringLiteral("dragmode")] = dragMode_;
}

bool Label::userClick() {
    if (Click) Click();
    return true;
}

void Label::setAutoSize(bool on) {
    autoSize_ = on;
    if (on) {
        setWordWrap(false);
        adjustSize();
    }
}

QMimeData* Label::dragData() const {
    auto* mime = new QMimeData;
    mime->setData(kLabelMime, objectName().toUtf8());
    return mime;
}

void Label::mousePressEvent(QMouseEvent* e) {
    deliver(MouseDown, e);
    pressed_ = e->button() == Qt::LeftButton;
    pressPos_ = e->position().toPoint();
    QLabel::mousePressEvent(e);
}

void Label::mouseMoveEvent(QMouseEvent* e) {
    // A label that can be dragged goes with the pointer as soon as it moves a little.
    if (dragMode_ == 1 && pressed_ && (e->position().toPoint() - pressPos_).manhattanLength() >= 3) {
        pressed_ = false;
        auto* drag = new QDrag(this);
        drag->setMimeData(dragData());
        drag->setPixmap(grab());
        drag->setHotSpot(pressPos_);
        drag->exec(Qt::MoveAction);
        return;
    }
    QLabel::mouseMoveEvent(e);
}

void Label::mouseReleaseEvent(QMouseEvent* e) {
    const bool click = pressed_ && rect().contains(e->position().toPoint());
    pressed_ = false;
    QLabel::mouseReleaseEvent(e);
    deliver(MouseUp, e);
    if (click && Click) Click();
}

// ---- CommandButton ----

CommandButton::CommandButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (Click) Click();
    });
}

void CommandButton::setCaption(const QString& c) {
    caption_ = c;
    setText(c);
    update();
}

void CommandButton::setPicture(const QPixmap& p, const QPixmap& disabled) {
    picture_ = p;
    disabledPicture_ = disabled.isNull() && !p.isNull() ? greyed(p) : disabled;
    update();
}

QColor CommandButton::captionGround() const {
    return hasBackColor() ? backColor_ : palette().color(QPalette::Button);
}

void CommandButton::describe(QJsonObject& out) const {
    describeCommon(out);
    out[QStringLiteral("caption")] = caption_;
}

bool CommandButton::userClick() {
    click();
    return true;
}

void CommandButton::mousePressEvent(QMouseEvent* e) {
    deliver(MouseDown, e);
    QAbstractButton::mousePressEvent(e);
}

void CommandButton::mouseReleaseEvent(QMouseEvent* e) {
    QAbstractButton::mouseReleaseEvent(e);
    deliver(MouseUp, e);
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

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    setMaxLength(std::numeric_limits<int>::max());
    setFrame(true);
}

void TextBox::describe(QJsonObject& out) const {
    describeCommon(out);
    out[QStringLiteral("text")] = text();
    if (fontSizeSet_) out[QStringLiteral("fontsize")] = font().pointSizeF();
}

void TextBox::paintEvent(QPaintEvent* e) {
    fitInk();
    QLineEdit::paintEvent(e);
}

void TextBox::SetFocus() {
    setFocus(Qt::OtherFocusReason);
}

void TextBox::setFontSize(double points) {
    QFont f = font();
    f.setPointSizeF(points);
    setFont(f);
    fontSizeSet_ = true;
}

void TextBox::keyPressEvent(QKeyEvent* e) {
    if (!e->isAutoRepeat() && std::find(premuti_.begin(), premuti_.end(), e->key()) == premuti_.end())
        premuti_.push_back(e->key());
    if (KeyPress) {
        const int code = ansiOf(e);
        if (code != 0) {
            int k = code;
            KeyPress(k);
            if (k == 0) {
                e->accept();
                return;
            }
            if (k != code) {
                const QString t = Chr(k);
                const int key = k >= 'a' && k <= 'z' ? k - 32 : (k < 128 ? k : t.at(0).toUpper().unicode());
                QKeyEvent changed(e->type(), key, e->modifiers(), t, e->isAutoRepeat(), ushort(e->count()));
                QLineEdit::keyPressEvent(&changed);
                return;
            }
        }
    }
    QLineEdit::keyPressEvent(e);
}

void TextBox::keyReleaseEvent(QKeyEvent* e) {
    QLineEdit::keyReleaseEvent(e);
    // A held key repeats its presses but is released once: so is Enter taken once.
    if (e->isAutoRepeat()) return;
    // The Enter that closes a message box is pressed in the box and released here: it is no answer.
    const auto premuto = std::find(premuti_.begin(), premuti_.end(), e->key());
    if (premuto == premuti_.end()) return;
    premuti_.erase(premuto);
    if (KeyUp) KeyUp(vbKeyCode(e), vbShift(e->modifiers()));
}

void TextBox::focusOutEvent(QFocusEvent* e) {
    // A key still down when the focus goes (to a box that opened, to another control) is released
    // somewhere else as far as this box is concerned.
    premuti_.clear();
    QLineEdit::focusOutEvent(e);
}

// ---- MultiLineTextBox ----

MultiLineTextBox::MultiLineTextBox(QWidget* parent) : QPlainTextEdit(parent) {
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

QString MultiLineTextBox::Text() const {
    QString t = toPlainText();
    t.replace(u'\n', QStringLiteral("\r\n"));
    return t;
}

void MultiLineTextBox::setText(const QString& t) {
    QString plain = t;
    plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (MaxLength > 0 && plain.size() > MaxLength) plain.truncate(MaxLength);
    setPlainText(plain);
}

void MultiLineTextBox::setFontSize(double points) {
    QFont f = font();
    f.setPointSizeF(points);
    setFont(f);
    fontSizeSet_ = true;
}

void MultiLineTextBox::SetFocus() {
    setFocus(Qt::OtherFocusReason);
}

void MultiLineTextBox::describe(QJsonObject& out) const {
    describeCommon(out);
    out[QStringLiteral("text")] = Text();
    if (fontSizeSet_) out[QStringLiteral("fontsize")] = font().pointSizeF();
}

void MultiLineTextBox::keyPressEvent(QKeyEvent* e) {
    const bool types = !e->text().isEmpty() &&
                       (e->text().at(0).isPrint() || e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter);
    if (types && MaxLength > 0 && toPlainText().size() >= MaxLength && !textCursor().hasSelection()) {
        e->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(e);
}

void MultiLineTextBox::insertFromMimeData(const QMimeData* source) {
    if (MaxLength <= 0 || !source->hasText()) {
        QPlainTextEdit::insertFromMimeData(source);
        return;
    }
    const int room = MaxLength - int(toPlainText().size()) + int(textCursor().selectedText().size());
    if (room > 0) textCursor().insertText(source->text().left(room));
}

// ---- OptionButton ----

OptionButton::OptionButton(QWidget* parent) : QRadioButton(parent) {
    setAutoFillBackground(true);
    QPalette p = palette();
    p.setColor(QPalette::Window, QColor(0xf0, 0xf0, 0xf0));
    setPalette(p);
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (Click) Click();
    });
}

void OptionButton::describe(QJsonObject& out) const {
    describeCommon(out);
    out[QStringLiteral("caption")] = text();
    out[QStringLiteral("value")] = isChecked();
}

bool OptionButton::userClick() {
    click();
    return true;
}

void OptionButton::setValue(bool v) {
    if (v == isChecked()) return;
    setChecked(v);
    if (v && Click) Click();
}

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

Frame::Frame(QWidget* parent) : QGroupBox(parent) {}

void Frame::describe(QJsonObject& out) const {
    describeCommon(out);
    out[QStringLiteral("caption")] = title();
}

void Frame::MostraSopra() {
    if (QWidget* p = parentWidget()) setGeometry(p->rect());
    raise();
    setVisible(true);
}

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

void Frame::setLeft(int twips) {
    move(tw(twips), y());
}
void Frame::setTop(int twips) {
    move(x(), tw(twips));
}

// ---- Shape ----

Shape::Shape(QWidget* parent, Kind k) : QWidget(parent), shape_(k) {}

void Shape::setBackColor(QColor c) {
    backColor_ = c; // only the figure takes it, never the box around it
    update();
}
void Shape::setBackStyle(int s) {
    backStyle_ = s;
    update();
}
void Shape::setFillColor(QColor c) {
    fill_ = c;
    update();
}
void Shape::setFillStyle(int s) {
    fillStyle_ = s;
    update();
}
void Shape::setBorderColor(QColor c) {
    border_ = c;
    update();
}
void Shape::setBorderWidth(int pixels) {
    borderWidth_ = std::max(0, pixels);
    update();
}

void Shape::describe(QJsonObject& out) const {
    describeCommon(out);
    out[QStringLiteral("shape")] = int(shape_);
    out[QStringLiteral("fillcolor")] = colourName(fill_);
    out[QStringLiteral("bordercolor")] = colourName(border_);
}

bool Shape::userClick() {
    if (Click) Click();
    return true;
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

void Shape::mousePressEvent(QMouseEvent* e) {
    deliver(MouseDown, e);
}

void Shape::mouseReleaseEvent(QMouseEvent* e) {
    deliver(MouseUp, e);
    if (e->button() == Qt::LeftButton && rect().contains(e->position().toPoint()) && Click) Click();
}

// ---- Image ----

Image::Image(QWidget* parent) : QLabel(parent) {
    setScaledContents(true);
}

// ---- Line ----

Line::Line(QWidget* parent, int x1, int y1, int x2, int y2, QColor colour, int widthPx)
    : QWidget(parent), colour_(colour), width_(std::max(1, int(std::lround(px(widthPx))))) {
    widthPx = width_;
    const QPoint a(tw(x1), tw(y1)), b(tw(x2), tw(y2));
    const QRect box = QRect(a, b).normalized().adjusted(-widthPx, -widthPx, widthPx, widthPx);
    setGeometry(box);
    a_ = a - box.topLeft();
    b_ = b - box.topLeft();
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Line::setBorderColor(QColor c) {
    colour_ = c;
    update();
}

void Line::describe(QJsonObject& out) const {
    describeCommon(out);
    out[QStringLiteral("bordercolor")] = colourName(colour_);
}

void Line::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setPen(QPen(colour_, width_));
    p.drawLine(a_, b_);
}

// ---- ListBox ----

ListBox::ListBox(QWidget* parent, bool sorted) : QListWidget(parent), sorted_(sorted) {}

void ListBox::AddItem(const QString& s) {
    int at = count();
    if (sorted_) {
        // A sorted list orders its items as text, small and capital letters alike.
        at = 0;
        while (at < count() && QString::compare(item(at)->text(), s, Qt::CaseInsensitive) <= 0)
            ++at;
    }
    insertItem(at, s);
}

QString ListBox::Text() const {
    return currentItem() ? currentItem()->text() : QString();
}

QString ListBox::List(int i) const {
    return i >= 0 && i < count() ? item(i)->text() : QString();
}

void ListBox::describe(QJsonObject& out) const {
    describeCommon(out);
    QJsonArray items;
    for (int i = 0; i < count(); ++i)
        items.append(item(i)->text());
    out[QStringLiteral("items")] = items;
    out[QStringLiteral("listindex")] = currentRow();
}

// ---- MenuItem ----

MenuItem::MenuItem(QObject* parent, QAction* action) : QObject(parent), action_(action) {
    connect(action_, &QAction::triggered, this, [this] {
        if (Click) Click();
    });
}

bool MenuItem::Visible() const {
    return action_->isVisible();
}
bool MenuItem::Enabled() const {
    return action_->isEnabled();
}
void MenuItem::setVisible(bool v) {
    action_->setVisible(v);
}
void MenuItem::setEnabled(bool e) {
    action_->setEnabled(e);
}
bool MenuItem::Checked() const {
    return action_->isChecked();
}

void MenuItem::setChecked(bool c) {
    action_->setCheckable(c || action_->isCheckable());
    action_->setChecked(c);
}

void MenuItem::setCaption(const QString& c) {
    caption_ = c;
    action_->setText(c);
}

QMenu* MenuItem::submenu() {
    if (!submenu_) {
        // setMenu doesn't take the menu: the widget that holds the item owns it, so the submenu and
        // its items go with the screen.
        submenu_ = new QMenu(caption_, qobject_cast<QWidget*>(action_->parent()));
        action_->setMenu(submenu_);
    }
    return submenu_;
}

bool MenuItem::userClick() {
    if (submenu_) return true; // opening a menu does nothing of its own
    action_->trigger();
    return true;
}

void MenuItem::describe(QJsonObject& out) const {
    describeCommon(out);
    out[QStringLiteral("caption")] = caption_;
    out[QStringLiteral("checked")] = action_->isChecked();
}

} // namespace contarello
