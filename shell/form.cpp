// Screens: their window, their menu bar, and the place and names of their controls.

#include "shell/form.h"
#include "shell/focus.h"
#include "shell/fonts/fonts.h"
#include "shell/printout.h"
#include "shell/program.h"
#include "shell/scaledstyle.h"
#include "shell/touch.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPointer>
#include <cmath>

namespace contarello {

namespace {
double gScale = 1;
} // namespace

double ScaleFactor() {
    return gScale;
}
void SetScaleFactor(double factor) {
    gScale = std::isfinite(factor) ? std::clamp(factor, 0.25, 8.0) : 1.0;
}

QFont Arial(double points, bool bold) {
    QFont f(ProgramFamily());
    f.setPointSizeF(points * gScale);
    f.setBold(bold);
    return f;
}

QFont SansSerif(double points, bool bold) {
    QFont f(ProgramFamily());
    f.setPointSizeF(points * gScale);
    f.setBold(bold);
    return f;
}

QString colourName(QColor c) {
    return c.name(QColor::HexRgb);
}

// ---- Form ----

Form::Form(Program& program, int widthTwips, int heightTwips)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), app(program), g(program.g),
      widthTwips_(widthTwips), heightTwips_(heightTwips) {
    setWindowTitle(kTitolo);
    setFixedSize(tw(widthTwips), tw(heightTwips));
    // The screen itself stands on a page of its own size: in full screen the page keeps its size
    // in the middle, on a backdrop of the screen's colour.
    page_ = new QWidget(this);
    page_->setGeometry(0, 0, width(), height());
    client_ = new QWidget(page_);
    client_->setGeometry(0, 0, width(), height());
    // Tab, the arrows, Enter, F10 and F11, and the ring that shows the focus.
    KeyboardFor(*this);
    TakeTouches(*this);
}

bool Form::focusNextPrevChild(bool next) {
    return FocusNext(*this, next);
}

void Form::toggleFullScreen() {
    if (isFullScreen()) {
        showNormal();
        setFixedSize(page_->size());
        // Back where it stood: a window manager left alone puts it in its corner.
        move(dovePrima_);
    } else {
        dovePrima_ = pos();
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        showFullScreen();
    }
}

void Form::resizeEvent(QResizeEvent* e) {
    QWidget::resizeEvent(e);
    page_->move(std::max(0, (width() - page_->width()) / 2), std::max(0, (height() - page_->height()) / 2));
}

Form::~Form() = default;

void Form::setBackColor(QColor c) {
    backColor_ = c;
    QPalette p = palette();
    p.setColor(QPalette::Window, c);
    // What stands on the background itself and isn't a control of ours takes the readable colour
    // too; each control chooses its own against what it really stands on.
    p.setColor(QPalette::WindowText, InchiostroSu(c));
    setPalette(p);
    fitInks();
    update();
}

void Form::fitInks() {
    for (Control* c : controls_)
        c->fitInk();
}

void Form::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), groundColour());
}

void Form::setCaption(const QString& c) {
    caption_ = c;
    setWindowTitle(c);
}

void Form::setTitleBar(bool on) {
    setWindowFlag(Qt::FramelessWindowHint, !on);
    setWindowFlag(Qt::WindowCloseButtonHint, true);
}

Control* Form::find(const QString& name) const {
    auto it = byName_.find(name);
    return it == byName_.end() ? nullptr : it->second;
}

void Form::registerControl(Control* c, const QString& name) {
    c->object()->setObjectName(name);
    controls_.push_back(c);
    byName_[name] = c;
    // A label dropped on the control is one of this screen's, found by its name.
    c->dropped = [this, c](const QString& sourceName) {
        Control* source = find(sourceName);
        if (source && c->DragDrop) c->DragDrop(source);
    };
}

namespace {
// The blinking caret is no part of a page: the box that has it gets it back afterwards.
template <class Draw> void SenzaCursore(QWidget& screen, Draw draw) {
    QPointer<QWidget> conFuoco = screen.focusWidget();
    if (conFuoco) conFuoco->clearFocus();
    draw();
    if (conFuoco) conFuoco->setFocus();
}
} // namespace

void Form::PrintForm() {
    SenzaCursore(*this, [this] {
        app.printer.setDocName(QStringLiteral("Contarello - scheda ") + name());
        app.printer.printForm(*this, name());
    });
}

void Form::SalvaPdf() {
    SenzaCursore(
        *this, [this] { contarello::SalvaPdf(app, *this, QStringLiteral("Contarello - scheda ") + name()); });
}

void Form::Show(const QString& formName) {
    app.nav.Show(formName);
}
void Form::UnloadMe() {
    app.nav.Unload(this);
}

Label* Form::label(const QString& name, const QString& caption, int left, int top, int width, int height,
                   const QFont& font, QWidget* parent) {
    auto* l = adopt(new Label(parent ? parent : client_), name, left, top, width, height);
    l->setFont(font);
    l->setCaption(caption);
    return l;
}

CommandButton* Form::button(const QString& name, const QString& caption, int left, int top, int width,
                            int height, const QFont& font, QWidget* parent) {
    auto* b = adopt(new CommandButton(parent ? parent : client_), name, left, top, width, height);
    b->setFont(font);
    b->setCaption(caption);
    return b;
}

TextBox* Form::textBox(const QString& name, int left, int top, int width, int height, const QFont& font,
                       QWidget* parent) {
    auto* t = adopt(new TextBox(parent ? parent : client_), name, left, top, width, height);
    t->setFont(font);
    return t;
}

OptionButton* Form::option(const QString& name, const QString& caption, int left, int top, int width,
                           int height, const QFont& font, QWidget* parent) {
    auto* o = adopt(new OptionButton(parent ? parent : client_), name, left, top, width, height);
    o->setFont(font);
    o->setCaption(caption);
    return o;
}

Frame* Form::frame(const QString& name, const QString& caption, int left, int top, int width, int height,
                   const QFont& font, QWidget* parent) {
    auto* f = adopt(new Frame(parent ? parent : client_), name, left, top, width, height);
    f->setFont(font);
    f->setCaption(caption);
    return f;
}

Shape* Form::shape(const QString& name, Shape::Kind k, int left, int top, int width, int height,
                   QWidget* parent) {
    return adopt(new Shape(parent ? parent : client_, k), name, left, top, width, height);
}

Line* Form::line(const QString& name, int x1, int y1, int x2, int y2, QColor colour, int widthPx,
                 QWidget* parent) {
    auto* l = new Line(parent ? parent : client_, x1, y1, x2, y2, colour, widthPx);
    registerControl(l, name);
    return l;
}

Image* Form::image(const QString& name, const QPixmap& picture, int left, int top, int width, int height,
                   QWidget* parent) {
    auto* i = adopt(new Image(parent ? parent : client_), name, left, top, width, height);
    i->setPicture(picture);
    return i;
}

MenuItem* Form::menu(const QString& name, const QString& caption, MenuItem* parentItem, MenuItem* before) {
    if (!menuBar_) {
        menuBar_ = new QMenuBar(page_);
        QPalette p = menuBar_->palette();
        p.setColor(QPalette::Window, QColor(0xf0, 0xf0, 0xf0));
        menuBar_->setPalette(p);
        menuBar_->setAutoFillBackground(true);
        menuBar_->setFont(SansSerif(9.75));
    }
    QWidget* holder = parentItem ? static_cast<QWidget*>(parentItem->submenu()) : menuBar_;
    // A drop-down menu reads like the bar it hangs from, at the program's scale.
    if (parentItem) {
        holder->setFont(menuBar_->font());
        FollowTheScale(*holder);
    }
    auto* a = new QAction(caption, holder);
    holder->insertAction(before ? before->action() : nullptr, a);
    if (!parentItem) {
        // The bar has its height once it holds an item; the controls stand below it.
        // A bar of 315 twips at every scale, so the controls under it keep their places in proportion;
        // taller only if its font ever needs it.
        const int h = std::max(tw(315), menuBar_->sizeHint().height());
        menuBar_->setGeometry(0, 0, page_->width(), h);
        client_->setGeometry(0, h, page_->width(), page_->height() - h);
    }
    auto* item = new MenuItem(this, a);
    registerControl(item, name);
    item->setCaption(caption);
    return item;
}

bool Form::event(QEvent* e) {
    if (e->type() == QEvent::WindowActivate) {
        app.nav.windowActivated(this);
    } else if (e->type() == QEvent::Close) {
        // A child leaves only by the program's own buttons and menus: the window system's close (the
        // close box of the one screen with a title bar, or a key) only asks the screen what to do.
        e->ignore();
        if (app.nav.find(name()) == this && !app.nav.ended()) CloseBox();
        return true;
    }
    return QWidget::event(e);
}

} // namespace contarello
