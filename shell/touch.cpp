#include "shell/touch.h"
#include "shell/form.h"
#include "shell/keypad.h"
#include "shell/program.h"

#include <QCoreApplication>
#include <QEventPoint>
#include <QHash>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTouchEvent>
#include <algorithm>
#include <cmath>

namespace contarello {

namespace {

// Every how many milliseconds the ring is drawn anew while a finger rests, and after how long it shows.
constexpr int kRingStepMs = 40;
constexpr int kRingAfterMs = 120;

// A control that takes a mouse button of its own, and so a finger that rests.
bool TakesButton(const Control* c) {
    if (auto* l = dynamic_cast<const Label*>(c)) return l->MouseDown || l->MouseUp;
    if (auto* s = dynamic_cast<const Shape*>(c)) return s->MouseDown || s->MouseUp;
    if (auto* b = dynamic_cast<const CommandButton*>(c)) return b->MouseDown || b->MouseUp;
    return false;
}

bool Draggable(Control* c) {
    auto* l = dynamic_cast<Label*>(c);
    return l && l->DragMode() == 1;
}

bool TakesDrops(Control& c) {
    return c.DragDrop && Actionable(c);
}

// A mouse button pressed and released on the widget, through its own mouse handling, at a point of
// its own. The left button gives the focus first, as a click does.
void Click(QWidget* w, QPoint local, Qt::MouseButton button) {
    QPointer<QWidget> guard(w);
    if (button == Qt::LeftButton)
        for (QWidget* f = w; f && !f->isWindow(); f = f->parentWidget())
            if (f->isEnabled() && (f->focusPolicy() & Qt::ClickFocus)) {
                f->setFocus(Qt::MouseFocusReason);
                break;
            }
    if (guard) PressAndRelease(w, button, QPointF(local));
}

// The ring that fills while a finger rests: white under a dark blue arc, readable on every colour.
class Ring : public QWidget {
public:
    explicit Ring(QWidget* parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }
    double progress = 0;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const double pen = width() / 7.0;
        const QRectF r = QRectF(rect()).adjusted(pen, pen, -pen, -pen);
        p.setPen(QPen(QColor(255, 255, 255, 220), pen * 1.6));
        p.drawEllipse(r);
        p.setPen(QPen(QColor(0x00, 0x20, 0x90), pen, Qt::SolidLine, Qt::FlatCap));
        p.drawArc(r, 90 * 16, -int(std::lround(std::clamp(progress, 0.0, 1.0) * 360 * 16)));
    }
};

class Fingers : public QObject {
public:
    explicit Fingers(Form& form) : QObject(&form), form_(form), app_(form.app) {
        form.setAttribute(Qt::WA_AcceptTouchEvents);
        form.installEventFilter(this);
    }
    ~Fingers() override { stopTimers(); }

    bool eventFilter(QObject* watched, QEvent* e) override {
        if (watched != &form_) return false;
        switch (e->type()) {
        case QEvent::Show:
            Keypad::attach(form_);
            return false;
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TouchCancel:
            break;
        default:
            return false;
        }
        auto* te = static_cast<QTouchEvent*>(e);
        te->accept();
        if (e->type() == QEvent::TouchCancel) {
            forget();
            return true;
        }
        for (const QEventPoint& pt : te->points()) {
            const QPoint at = pt.globalPosition().toPoint();
            if (finger_.id < 0) {
                if (pt.state() == QEventPoint::State::Pressed) land(pt.id(), at);
            } else if (pt.id() == finger_.id) {
                if (pt.state() == QEventPoint::State::Released)
                    lift(at);
                else if (pt.state() == QEventPoint::State::Updated)
                    slide(at);
            }
        }
        return true;
    }

private:
    struct Hit {
        QPointer<QWidget> widget; // what takes the mouse: the control, or a part of it, or the menu bar
        Control* control = nullptr;
        QPoint local;
    };
    struct Finger {
        int id = -1;
        QPoint start, at; // on the display
        qint64 since = 0;
        Hit hit;
        bool sliding = false, held = false;
    };

    int reach() const { return std::max(8, tw(kReachTwips)); }

    Control* controlOf(QWidget* w) const {
        QHash<QWidget*, Control*> byWidget;
        for (Control* c : form_.controls())
            if (QWidget* cw = c->widget()) byWidget.insert(cw, c);
        for (; w && w != &form_; w = w->parentWidget())
            if (Control* c = byWidget.value(w)) return c;
        return nullptr;
    }

    // What a finger at this point of the display reaches: what it lands on if wanted, else the
    // nearest wanted control a little way off that nothing else covers there.
    Hit pick(QPoint global, bool (*wanted)(Control&), bool menuBar) const {
        const QPoint at = form_.mapFromGlobal(global);
        if (QWidget* w = form_.childAt(at)) {
            if (menuBar)
                for (QWidget* m = w; m && m != &form_; m = m->parentWidget())
                    if (qobject_cast<QMenuBar*>(m)) return {m, nullptr, m->mapFrom(&form_, at)};
            if (Control* c = controlOf(w); c && wanted(*c)) return {w, c, w->mapFrom(&form_, at)};
        }
        Hit best;
        double bestDistance = reach() + 0.5;
        for (Control* c : form_.controls()) {
            QWidget* cw = c->widget();
            if (!cw || !wanted(*c)) continue;
            const QRect r(cw->mapTo(&form_, QPoint(0, 0)), cw->size());
            const QPoint near(std::clamp(at.x(), r.left(), r.right()),
                              std::clamp(at.y(), r.top(), r.bottom()));
            const double d = std::hypot(near.x() - at.x(), near.y() - at.y());
            if (d >= bestDistance) continue;
            QWidget* there = form_.childAt(near);
            if (!there || (there != cw && !cw->isAncestorOf(there))) continue;
            best = {there, c, there->mapFrom(&form_, near)};
            bestDistance = d;
        }
        return best;
    }

    void land(int id, QPoint at) {
        forget();
        finger_.id = id;
        finger_.start = finger_.at = at;
        finger_.since = app_.clock.msecs();
        finger_.hit = pick(
            at, [](Control& c) { return Actionable(c); }, true);
        // The first touch of the run brings the keypad; what the finger landed on was chosen first.
        StartLavagna(app_);
        if (finger_.hit.widget && TakesButton(finger_.hit.control)) {
            QPointer<Fingers> self(this);
            hold_ = app_.clock.after(kHoldMs, [self] {
                if (self) self->rested();
            });
            ring_ = app_.clock.after(kRingAfterMs, [self] {
                if (self) self->fillRing();
            });
        }
    }

    void slide(QPoint at) {
        finger_.at = at;
        if (!finger_.sliding && (at - finger_.start).manhattanLength() > std::max(6, tw(kSlideTwips))) {
            finger_.sliding = true;
            stopTimers();
            if (ringWidget_) ringWidget_->hide();
            if (finger_.hit.widget && Draggable(finger_.hit.control)) lift_label();
        }
        if (ghost_) ghost_->move(form_.mapFromGlobal(at) - ghost_->rect().center());
    }

    void lift(QPoint at) {
        const Finger f = finger_;
        forget();
        // A tap on nothing a finger acts on puts back the digit picked up, as a click there does.
        if (!f.hit.widget && !f.sliding) PickUp(nullptr);
        if (f.held || !f.hit.widget) return;
        if (f.sliding) {
            if (Draggable(f.hit.control)) {
                const Hit target = pick(at, TakesDrops, false);
                if (target.control) target.control->takeDrop(*f.hit.control);
                return;
            }
            // A finger that slid off what it landed on presses nothing.
            const QRect r(f.hit.widget->mapToGlobal(QPoint(0, 0)), f.hit.widget->size());
            if (!r.adjusted(-reach(), -reach(), reach(), reach()).contains(at)) return;
        }
        Click(f.hit.widget, f.hit.local, Qt::LeftButton);
    }

    // The finger rested long enough: the right button, once; lifting it then does nothing more.
    void rested() {
        hold_ = 0;
        if (finger_.id < 0 || finger_.sliding || !finger_.hit.widget) return;
        finger_.held = true;
        if (ringWidget_) ringWidget_->hide();
        Click(finger_.hit.widget, finger_.hit.local, Qt::RightButton);
    }

    void fillRing() {
        ring_ = 0;
        if (finger_.id < 0 || finger_.sliding || finger_.held) return;
        if (!ringWidget_) ringWidget_ = new Ring(&form_);
        const int size = std::max(40, tw(1000));
        ringWidget_->resize(size, size);
        ringWidget_->move(form_.mapFromGlobal(finger_.start) - QPoint(size / 2, size / 2));
        ringWidget_->progress = double(app_.clock.msecs() - finger_.since) / kHoldMs;
        ringWidget_->raise();
        ringWidget_->show();
        ringWidget_->update();
        QPointer<Fingers> self(this);
        ring_ = app_.clock.after(kRingStepMs, [self] {
            if (self) self->fillRing();
        });
    }

    // A label that slides with the finger, over everything, until it is placed or let go.
    void lift_label() {
        QWidget* source = finger_.hit.control->widget();
        if (!source) return;
        ghost_ = new QLabel(&form_);
        ghost_->setAttribute(Qt::WA_TransparentForMouseEvents);
        ghost_->setPixmap(source->grab());
        ghost_->resize(source->size());
        ghost_->move(form_.mapFromGlobal(finger_.at) - ghost_->rect().center());
        ghost_->raise();
        ghost_->show();
    }

    void stopTimers() {
        if (hold_) app_.clock.cancel(hold_);
        if (ring_) app_.clock.cancel(ring_);
        hold_ = ring_ = 0;
    }

    void forget() {
        stopTimers();
        finger_ = Finger();
        if (ringWidget_) ringWidget_->hide();
        delete ghost_;
    }

    Form& form_;
    Program& app_;
    Finger finger_;
    int hold_ = 0, ring_ = 0;
    QPointer<Ring> ringWidget_;
    QPointer<QLabel> ghost_;
};

} // namespace

void TakeTouches(Form& form) {
    new Fingers(form);
}

} // namespace contarello
