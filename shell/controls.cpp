// The controls of the forms layer and their events: each gives the screens the names, captions
// and handlers they are written with, and turns the mouse, the keys and drops into those handlers.
// How they look is in shell/look.cpp.

#include "shell/controls.h"
#include "core/lang.h"

#include <QApplication>
#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QPointer>
#include <algorithm>
#include <limits>

namespace contarello {

namespace {

const QString kLabelMime = QStringLiteral("application/x-contarello-label");

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

// Drops of a dragged label onto a control that takes them: the control's own drop callback, set by
// the screen that named it, finds the label by its name.
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
            auto* target = dynamic_cast<Control*>(watched);
            if (!target || !target->dropped || !de->mimeData()->hasFormat(kLabelMime)) return false;
            de->acceptProposedAction();
            target->dropped(QString::fromUtf8(de->mimeData()->data(kLabelMime)));
            return true;
        }
        return false;
    }
};

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

bool Control::takeDrop(const Control& source) {
    if (!dropped || !DragDrop) return false;
    dropped(source.name());
    return true;
}

namespace {
QPointer<Label> gCarried;
} // namespace

Label* Carried() {
    Label* l = gCarried.data();
    return l && l->DragMode() == 1 && l->isVisible() && l->isEnabled() ? l : nullptr;
}

void PickUp(Label* label) {
    Label* before = gCarried.data();
    gCarried = label;
    if (before) before->update();
    if (label) label->update();
}

void PressAndRelease(QWidget* w, Qt::MouseButton button, std::optional<QPointF> at) {
    const QPointF p = at.value_or(QRectF(w->rect()).center());
    QPointer<QWidget> still(w);
    QMouseEvent press(QEvent::MouseButtonPress, p, w->mapToGlobal(p), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(w, &press);
    if (!still || !still->isVisible()) return;
    QMouseEvent release(QEvent::MouseButtonRelease, p, w->mapToGlobal(p), button, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(w, &release);
}

bool TakesTyping(const QWidget* w) {
    return w && (w->inherits("QLineEdit") || w->inherits("QPlainTextEdit"));
}

bool Actionable(Control& c) {
    QWidget* w = c.widget();
    if (!w || !w->isVisible() || !w->isEnabled()) return false;
    if (c.DragDrop) return true;
    if (auto* l = dynamic_cast<Label*>(&c))
        return l->Click || l->MouseDown || l->MouseUp || l->DragMode() == 1;
    if (auto* s = dynamic_cast<Shape*>(&c)) return s->Click || s->MouseDown || s->MouseUp;
    if (auto* t = dynamic_cast<TextBox*>(&c)) return !t->isReadOnly();
    if (auto* m = dynamic_cast<MultiLineTextBox*>(&c)) return !m->isReadOnly();
    if (auto* b = dynamic_cast<CommandButton*>(&c)) return b->Click || b->MouseDown || b->MouseUp;
    return dynamic_cast<OptionButton*>(&c) != nullptr;
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
    // A label a child acts on keeps its click: nothing behind it takes it too.
    if (Actionable(*this)) e->accept();
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
    // Two clicks place a label without dragging: the first picks it up, the second, on a place
    // that takes it, puts it there; the label carried, clicked again, is put back.
    if (click) {
        if (Label* carried = Carried(); carried && carried != this && DragDrop) {
            PickUp(nullptr);
            takeDrop(*carried);
            return;
        }
        if (dragMode_ == 1) PickUp(Carried() == this ? nullptr : this);
    }
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

// ---- TextBox ----

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    setMaxLength(std::numeric_limits<int>::max());
    setFrame(true);
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

bool OptionButton::userClick() {
    click();
    return true;
}

void OptionButton::setValue(bool v) {
    if (v == isChecked()) return;
    setChecked(v);
    if (v && Click) Click();
}

// ---- Frame ----

Frame::Frame(QWidget* parent) : QGroupBox(parent) {}

void Frame::MostraSopra() {
    if (QWidget* p = parentWidget()) setGeometry(p->rect());
    raise();
    setVisible(true);
}

void Frame::setLeft(int twips) {
    move(tw(twips), y());
}
void Frame::setTop(int twips) {
    move(x(), tw(twips));
}

// ---- Shape ----

Shape::Shape(QWidget* parent, Kind k) : QWidget(parent), shape_(k) {}

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

bool Shape::userClick() {
    if (Click) Click();
    return true;
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

} // namespace contarello
