#include "shell/focus.h"
#include "shell/accessible.h"
#include "shell/form.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <cmath>

namespace contarello {

namespace {

// Whether a key has moved the focus since the mouse was last used: the ring then shows on every
// screen, the next ones too, as a child at the keyboard goes through the program.
bool gRingShown = false;
const char* const kRingName = "contarelloFocusRing";

QRect rectIn(const Form& form, QWidget* w) {
    return QRect(w->mapTo(&form, QPoint(0, 0)), w->size());
}

// A panel that lies over the whole area under the menu bar: what is behind it can't be reached.
QWidget* coveringPanel(Form& form) {
    QWidget* top = nullptr;
    for (Control* c : form.controls()) {
        auto* f = dynamic_cast<Frame*>(c);
        if (!f || !f->isVisible() || f->parentWidget() != form.client() ||
            f->geometry() != form.client()->rect())
            continue;
        // Of two, the one raised later is in front.
        const QObjectList& siblings = form.client()->children();
        if (!top || siblings.indexOf(f) > siblings.indexOf(top)) top = f;
    }
    return top;
}

void sortReadingOrder(const Form& form, std::vector<Control*>& order) {
    std::stable_sort(order.begin(), order.end(), [&](Control* a, Control* b) {
        return rectIn(form, a->widget()).center().y() < rectIn(form, b->widget()).center().y();
    });
    // A row: the controls whose middles lie within the height of the row's first; along it, left
    // to right.
    for (auto row = order.begin(); row != order.end();) {
        const QRect first = rectIn(form, (*row)->widget());
        auto end = std::find_if(row, order.end(), [&](Control* c) {
            return rectIn(form, c->widget()).center().y() > first.bottom();
        });
        std::stable_sort(row, end, [&](Control* a, Control* b) {
            return rectIn(form, a->widget()).center().x() < rectIn(form, b->widget()).center().x();
        });
        row = end;
    }
}

Control* controlOf(Form& form, QWidget* w) {
    for (Control* c : form.controls())
        if (c->widget() == w) return c;
    return nullptr;
}

// The ring drawn over the whole screen, around whatever control has the focus.
class FocusRing : public QWidget {
public:
    explicit FocusRing(Form& form) : QWidget(&form), form_(form) {
        setObjectName(QLatin1String(kRingName));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(form.rect());
        hide();
    }
    void follow() {
        const QRect r = RingRect(form_);
        if (r.isEmpty()) {
            hide();
            return;
        }
        setGeometry(form_.rect());
        raise();
        show();
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        const QRect r = RingRect(form_);
        if (r.isEmpty()) return;
        QWidget* w = form_.focusWidget();
        // The ground around the control: the nearest fill behind it.
        QColor ground = form_.groundColour();
        for (QWidget* p = w ? w->parentWidget() : nullptr; p && p != &form_; p = p->parentWidget())
            if (p->autoFillBackground()) {
                ground = p->palette().color(p->backgroundRole());
                break;
            }
        // A band in the colour that stands out most on that ground, edged inside and out with the
        // other, so that it reads on the ground and on the control alike.
        const QColor ink = InchiostroSu(ground);
        const QColor edge = ink == QColor(Qt::black) ? QColor(Qt::white) : QColor(Qt::black);
        const int width = RingWidth();
        const int line = std::max(1, width / 5);
        QPainter p(this);
        band(p, r, line, edge);
        band(p, r.adjusted(line, line, -line, -line), width - 2 * line, ink);
        band(p, r.adjusted(width - line, width - line, line - width, line - width), line, edge);
    }

private:
    // A frame of the given thickness just inside outer.
    static void band(QPainter& p, const QRect& outer, int thickness, const QColor& colour) {
        const int t = std::max(1, thickness);
        p.fillRect(QRect(outer.left(), outer.top(), outer.width(), t), colour);
        p.fillRect(QRect(outer.left(), outer.bottom() - t + 1, outer.width(), t), colour);
        p.fillRect(QRect(outer.left(), outer.top() + t, t, outer.height() - 2 * t), colour);
        p.fillRect(QRect(outer.right() - t + 1, outer.top() + t, t, outer.height() - 2 * t), colour);
    }

private:
    Form& form_;
};

FocusRing* ringOf(const Form& form) {
    return static_cast<FocusRing*>(
        form.findChild<QWidget*>(QLatin1String(kRingName), Qt::FindDirectChildrenOnly));
}

void setRingShown(bool on) {
    if (gRingShown == on) return;
    gRingShown = on;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* form = qobject_cast<Form*>(w))
            if (FocusRing* r = ringOf(*form)) r->follow();
}

void moveFocus(Form& form, Control* to) {
    if (!to) return;
    to->widget()->setFocus(Qt::TabFocusReason);
    setRingShown(true);
    if (FocusRing* r = ringOf(form)) r->follow();
}

// The control nearest the focused one in the direction of the arrow: straight ahead first.
Control* nearest(Form& form, QWidget* from, int key) {
    const QPoint o = rectIn(form, from).center();
    Control* best = nullptr;
    double bestScore = 0;
    for (Control* c : FocusOrder(form)) {
        if (c->widget() == from) continue;
        const QPoint d = rectIn(form, c->widget()).center() - o;
        double ahead = 0, aside = 0;
        switch (key) {
        case Qt::Key_Right:
            ahead = d.x(), aside = std::abs(d.y());
            break;
        case Qt::Key_Left:
            ahead = -d.x(), aside = std::abs(d.y());
            break;
        case Qt::Key_Down:
            ahead = d.y(), aside = std::abs(d.x());
            break;
        default:
            ahead = -d.y(), aside = std::abs(d.x());
            break;
        }
        if (ahead <= 0) continue;
        const double score = ahead + 2 * aside;
        if (!best || score < bestScore) best = c, bestScore = score;
    }
    return best;
}

// F10: the first item of the menu bar lit, the arrows walk the bar and its menus, Enter chooses.
// Back from the menu bar: to the control the child left, if it can still be reached; else, as
// when the item chosen opened a panel over the screen, to the choice in force there or its first.
void backFromMenuBar(Form& form, QWidget* before) {
    const std::vector<Control*> order = FocusOrder(form);
    Control* to = nullptr;
    for (Control* c : order)
        if (c->widget() == before) to = c;
    for (Control* c : order)
        if (auto* o = dynamic_cast<OptionButton*>(c); !to && o && o->isChecked()) to = c;
    if (!to && !order.empty()) to = order.front();
    if (to) moveFocus(form, to);
}

// Where the focus was when F10 opened the menu bar.
QPointer<QWidget> gBeforeMenu;

void openMenuBar(Form& form) {
    auto* bar = form.findChild<QMenuBar*>();
    if (!bar || !bar->isVisible()) return;
    gBeforeMenu = form.focusWidget();
    // The item chosen does its work (a panel shown, a box answered), then the keyboard is back on
    // the screen.
    auto* back = new QObject(bar);
    QObject::connect(bar, &QMenuBar::triggered, back, [&form, back] {
        back->deleteLater();
        QMetaObject::invokeMethod(
            &form, [&form] { backFromMenuBar(form, gBeforeMenu); }, Qt::QueuedConnection);
    });
    for (QAction* a : bar->actions())
        if (a->isVisible() && a->isEnabled()) {
            bar->setFocus(Qt::MenuBarFocusReason);
            bar->setActiveAction(a);
            return;
        }
}

class Keys : public QObject {
public:
    using QObject::QObject;
    static void install() {
        static auto* keys = new Keys(qApp);
        static const bool once = (qApp->installEventFilter(keys), true);
        Q_UNUSED(once);
    }

    bool eventFilter(QObject* watched, QEvent* e) override {
        const QEvent::Type t = e->type();
        if (t != QEvent::KeyPress && t != QEvent::MouseButtonPress && t != QEvent::FocusIn) return false;
        auto* w = qobject_cast<QWidget*>(watched);
        auto* form = w ? qobject_cast<Form*>(w->window()) : nullptr;
        if (!form) return false;
        if (t == QEvent::FocusIn) {
            if (FocusRing* r = ringOf(*form)) r->follow();
            return false;
        }
        if (t == QEvent::MouseButtonPress) {
            // A child back at the mouse sees the screen as the mouse shows it.
            if (e->spontaneous()) setRingShown(false);
            // A click anywhere but on a place for it puts back the label picked up.
            Control* c = controlOf(*form, w);
            if (Carried() && w != Carried() && !(c && c->DragDrop)) PickUp(nullptr);
            return false;
        }
        // Keys are taken once, by the control that has the focus (or the screen, when none has).
        QWidget* focus = form->focusWidget();
        if (w != (focus ? focus : form)) return false;
        Control* c = controlOf(*form, w);
        if (auto* bar = qobject_cast<QMenuBar*>(w)) {
            // Escape leaves the bar for the screen; the rest the bar walks itself.
            if (static_cast<QKeyEvent*>(e)->key() != Qt::Key_Escape) return false;
            bar->setActiveAction(nullptr);
            backFromMenuBar(*form, gBeforeMenu);
            return true;
        }
        if (!c && w != form && w != form->client()) return false;
        return key(*form, w, c, static_cast<QKeyEvent*>(e));
    }

private:
    bool key(Form& form, QWidget* w, Control* c, QKeyEvent* e) {
        if (e->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return false;
        const int k = e->key();
        const bool text = TakesTyping(w);
        switch (k) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            FocusNext(form, !(k == Qt::Key_Backtab || (e->modifiers() & Qt::ShiftModifier)));
            setRingShown(true);
            return true;
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
            // In a box the arrows move the caret along the text.
            if (text && (k == Qt::Key_Left || k == Qt::Key_Right || w->inherits("QPlainTextEdit")))
                return false;
            // Only the focus moves: an option reached isn't chosen.
            moveFocus(form, nearest(form, c ? w : form.client(), k));
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (text || !c) return false;
            if (!e->isAutoRepeat()) PressAndRelease(w, Qt::LeftButton);
            return true;
        case Qt::Key_Delete:
        case Qt::Key_Menu:
            if (text || !c) return false;
            if (!e->isAutoRepeat()) PressAndRelease(w, Qt::RightButton);
            return true;
        case Qt::Key_Escape:
            if (!Carried()) return false;
            PickUp(nullptr);
            return true;
        case Qt::Key_F10:
            openMenuBar(form);
            return true;
        case Qt::Key_F11:
            if (!e->isAutoRepeat()) form.toggleFullScreen();
            return true;
        default:
            return false;
        }
    }
};

} // namespace

void KeyboardFor(Form& form) {
    Keys::install();
    DescribeControlsToScreenReaders();
    new FocusRing(form);
}

std::vector<Control*> FocusOrder(Form& form) {
    QWidget* panel = coveringPanel(form);
    std::vector<Control*> order;
    // The screen's own controls: the keypad under it is for fingers, the keyboard has its keys.
    for (Control* c : form.controls())
        if (Actionable(*c) && form.client()->isAncestorOf(c->widget()) &&
            (!panel || panel->isAncestorOf(c->widget())))
            order.push_back(c);
    sortReadingOrder(form, order);
    return order;
}

bool FocusFirst(Form& form, const std::vector<Control*>& among) {
    for (Control* c : FocusOrder(form))
        if (std::find(among.begin(), among.end(), c) != among.end()) {
            c->widget()->setFocus(Qt::OtherFocusReason);
            if (FocusRing* r = ringOf(form)) r->follow();
            return true;
        }
    return false;
}

bool FocusNext(Form& form, bool next) {
    const std::vector<Control*> order = FocusOrder(form);
    if (order.empty()) return false;
    auto at = std::find(order.begin(), order.end(), controlOf(form, form.focusWidget()));
    Control* to;
    if (at == order.end())
        to = next ? order.front() : order.back();
    else if (!next)
        to = at == order.begin() ? order.back() : *(at - 1);
    else
        to = at + 1 == order.end() ? order.front() : *(at + 1);
    to->widget()->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    if (FocusRing* r = ringOf(form)) r->follow();
    return true;
}

bool RingShown(const Form& form) {
    Q_UNUSED(form);
    return gRingShown;
}

int RingWidth() {
    return std::max(4, int(std::lround(px(5))));
}

QRect RingRect(const Form& form) {
    QWidget* w = form.focusWidget();
    if (!RingShown(form) || !w || !w->isVisible() || !controlOf(const_cast<Form&>(form), w)) return {};
    const int width = RingWidth();
    return rectIn(form, w).adjusted(-width, -width, width, width);
}

} // namespace contarello
