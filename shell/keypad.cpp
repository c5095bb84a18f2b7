#include "shell/keypad.h"
#include "shell/form.h"
#include "shell/program.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace contarello {

namespace {

// What a box says of itself: absent for boxes nobody answers in, 1 for digits, 2 for words too.
const char* const kRisposta = "contarelloRisposta";
const char* const kConTastiera = "contarelloTastiera";

bool IsAnswerBox(const QWidget* w) {
    return w && w->property(kRisposta).toInt() > 0;
}

// The box a key goes to: the answer box that has the focus, else the first one that can take keys,
// which then gets the focus as a tap on it would give.
TextBox* BoxFor(Form& form) {
    auto usable = [](TextBox* t) { return t && IsAnswerBox(t) && t->isEnabled() && t->isVisible(); };
    if (auto* t = dynamic_cast<TextBox*>(form.focusWidget()); usable(t)) return t;
    for (Control* c : form.controls())
        if (auto* t = dynamic_cast<TextBox*>(c); usable(t)) {
            t->SetFocus();
            return t;
        }
    return nullptr;
}

// One key pressed and released in the box, as the keyboard sends it.
void PressKey(Form& form, int key, const QString& text) {
    QPointer<TextBox> box = BoxFor(form);
    if (!box) return;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(box, &press);
    if (!box) return;
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(box, &release);
}

struct KeyDef {
    QString name, caption, text;
    int key;
};

std::vector<KeyDef> Keys(bool words) {
    std::vector<KeyDef> keys;
    for (char d : {'1', '2', '3', '4', '5', '6', '7', '8', '9', '0'})
        keys.push_back({QStringLiteral("Tasto") + QChar(d), QString(QChar(d)), QString(QChar(d)), int(d)});
    keys.push_back({QStringLiteral("TastoCancella"), QStringLiteral("Cancella"), QStringLiteral("\b"),
                    Qt::Key_Backspace});
    keys.push_back(
        {QStringLiteral("TastoInvio"), QStringLiteral("Invio"), QStringLiteral("\r"), Qt::Key_Return});
    if (words)
        for (char l = 'A'; l <= 'Z'; ++l)
            keys.push_back(
                {QStringLiteral("Tasto") + QChar(l), QString(QChar(l)), QString(QChar(l)), int(l)});
    return keys;
}

// The largest bold font whose caption fits the key with a margin.
QFont KeyFont(const QString& caption, int side) {
    QFont f = Arial(10);
    int pixels = std::max(8, side / 2);
    for (;;) {
        f.setPixelSize(pixels);
        if (pixels <= 8 || QFontMetrics(f).horizontalAdvance(caption) <= side * 8 / 10) return f;
        --pixels;
    }
}

// The window grown or made: on the display, where it was if it fits.
void KeepOnDisplay(Form& form, bool shown) {
    const QScreen* screen = form.screen() ? form.screen() : QGuiApplication::primaryScreen();
    if (!screen) return;
    const QRect area = screen->availableGeometry();
    QPoint at = shown ? form.pos() : area.center() - QPoint(form.width() / 2, form.height() / 2);
    at.setX(std::max(area.left(), std::min(at.x(), area.right() + 1 - form.width())));
    at.setY(std::max(area.top(), std::min(at.y(), area.bottom() + 1 - form.height())));
    form.move(at);
}

} // namespace

void MarkAnswerBox(TextBox& box, bool takesWords) {
    box.setProperty(kRisposta, takesWords ? 2 : 1);
}

void StartLavagna(Program& app) {
    if (app.lavagna) return;
    app.lavagna = true;
    for (Form* f : app.nav.loaded())
        Keypad::attach(*f);
}

void Keypad::attach(Form& form) {
    if (!form.app.lavagna || form.property(kConTastiera).toBool()) return;
    int boxHeight = 0;
    bool words = false;
    for (Control* c : form.controls())
        if (QWidget* w = c->widget(); IsAnswerBox(w)) {
            boxHeight = std::max(boxHeight, w->height());
            words = words || w->property(kRisposta).toInt() == 2;
        }
    if (boxHeight == 0) return;
    form.setProperty(kConTastiera, true);

    // Square keys half as tall again as the tallest answer box, never smaller than a fingertip
    // on the smallest screen; the digits with their two keys in two rows at most, the letters
    // under them.
    const int side = std::max(int(std::lround(1.5 * boxHeight)), tw(900));
    const int gap = std::max(4, side / 10);
    QWidget* page = form.page_;
    const int pageWidth = page->width(), pageHeight = page->height();
    const std::vector<KeyDef> keys = Keys(words);
    const int perRow = std::max(6, (pageWidth - gap) / (side + gap));
    const int first = 12, letters = int(keys.size()) - first;
    const int columns = std::min(perRow, std::max(first, letters));
    const int rows = (first + perRow - 1) / perRow + (letters + perRow - 1) / perRow;
    const int stripWidth = std::max(pageWidth, gap + columns * (side + gap));
    const int stripHeight = gap + rows * (side + gap);

    // A strip wider than the screen: the screen stays whole in the middle above it.
    const int dx = (stripWidth - pageWidth) / 2;
    for (QObject* o : page->children())
        if (auto* w = qobject_cast<QWidget*>(o)) w->move(w->pos() + QPoint(dx, 0));
    // The menu bar goes on spanning the window, its items where they were read.
    if (form.menuBar_) form.menuBar_->setGeometry(0, 0, stripWidth, form.menuBar_->height());
    auto* strip = new QWidget(page);
    strip->setGeometry(0, pageHeight, stripWidth, stripHeight);

    // Rows centred, the letters starting a row of their own.
    int row = 0;
    auto place = [&](int from, int count) {
        for (int i = 0; i < count; i += perRow, ++row) {
            const int inRow = std::min(perRow, count - i);
            const int left = (stripWidth - inRow * side - (inRow - 1) * gap) / 2;
            for (int j = 0; j < inRow; ++j) {
                const KeyDef& k = keys[size_t(from + i + j)];
                auto* key = new CommandButton(strip);
                form.registerControl(key, k.name);
                key->setGeometry(left + j * (side + gap), gap + row * (side + gap), side, side);
                key->setFocusPolicy(Qt::NoFocus);
                // The two words share one size, the largest that fits "Cancella".
                key->setFont(KeyFont(k.caption.size() > 1 ? QStringLiteral("Cancella") : k.caption, side));
                key->setCaption(k.caption);
                key->setBackColor(k.key == Qt::Key_Return      ? QColor(0xc0, 0xff, 0xc0)
                                  : k.key == Qt::Key_Backspace ? QColor(0xff, 0xe0, 0xc0)
                                                               : QColor(0xff, 0xff, 0xff));
                key->Click = [&form, code = k.key, text = k.text] { PressKey(form, code, text); };
            }
        }
    };
    place(0, first);
    place(first, letters);
    page->resize(stripWidth, pageHeight + stripHeight);
    strip->show();

    if (form.isFullScreen()) {
        page->move(std::max(0, (form.width() - page->width()) / 2),
                   std::max(0, (form.height() - page->height()) / 2));
    } else {
        const bool shown = form.isVisible();
        form.setFixedSize(page->size());
        KeepOnDisplay(form, shown);
    }
}

} // namespace contarello
