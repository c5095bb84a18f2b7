#pragma once
// The controls a screen is made of, in the shape the screens are written in: geometry in twips,
// captions kept to the blank, handlers as plain functions, control arrays named Name(i), and every
// control findable by its name so that the driver and the tests need no hooks of their own.

#include "shell/look.h"
#include "shell/scale.h"

#include <QAbstractButton>
#include <QColor>
#include <QFont>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QWidget>
#include <cmath>
#include <functional>
#include <map>
#include <optional>
#include <vector>

class QMimeData;

namespace contarello {

struct Program;
struct Modulo1;

// One scale factor for the whole program, applied where twips become pixels: geometry, fonts, line
// widths and pictures grow together, so every screen keeps its proportions. 1 unless main sets it.
double ScaleFactor();
void SetScaleFactor(double factor);

// Twips to pixels, and back, at the program's scale.
inline int tw(int twips) {
    return int(std::lround(twips * ScaleFactor() / kTwipsPerPixel));
}
inline int twipsOf(double pixels) {
    return int(std::lround(pixels * kTwipsPerPixel / ScaleFactor()));
}
// A width in pixels as the screens give it at scale 1.
inline double px(double pixels) {
    return pixels * ScaleFactor();
}

QFont Arial(double points, bool bold = true);
QFont SansSerif(double points, bool bold = false); // "MS Sans Serif", mapped to Liberation Sans
QString colourName(QColor c);

enum MouseButton { vbLeftButton = 1, vbRightButton = 2, vbMiddleButton = 4 };

// What every named control shares. The widget keeps the look; this keeps the names and handlers.
class Control {
public:
    virtual ~Control() = default;
    virtual QString kind() const = 0;
    virtual QObject* object() = 0;
    // nullptr for menu items.
    virtual QWidget* widget() { return qobject_cast<QWidget*>(object()); }

    QString name() const { return const_cast<Control*>(this)->object()->objectName(); }
    // The properties as the program set them, not whether the window shows. Screens set them
    // through the widget's own setVisible and setEnabled.
    virtual bool Visible() const;
    virtual bool Enabled() const;

    // A click as the user makes it; false if the control takes no clicks.
    virtual bool userClick() { return false; }

    // Any control with a DragDrop handler is a drop target for labels with DragMode 1.
    std::function<void(Control* source)> DragDrop;
    void acceptDrops();
    // Set by the screen that names the control: a label dropped here, known by its name, goes to
    // DragDrop as the control the screen knows by that name.
    std::function<void(const QString& sourceName)> dropped;
    // A label placed here, however it came (a mouse drop, the keyboard, two clicks, a finger that
    // slid): the same DragDrop as a mouse drop, with its own rules. False if the control takes no
    // drops.
    bool takeDrop(const Control& source);

    // BackColor, when the program sets it.
    virtual void setBackColor(QColor c);
    QColor BackColor() const { return backColor_; }
    bool hasBackColor() const { return backColor_.isValid(); }

    // The colour of the caption when the program chooses one; otherwise black or white, whichever
    // reads better on what the caption stands on.
    void setForeColor(QColor c);
    QColor ForeColor() const { return foreColor_; }
    // The palette role the caption is written in; NoRole for controls without one.
    virtual QPalette::ColorRole captionRole() const { return QPalette::NoRole; }
    // What the caption stands on: the control's own fill, or the nearest fill behind it, or the
    // form's background.
    virtual QColor captionGround() const;
    // Puts the caption's colour right for its ground. Cheap when nothing changed: each control
    // runs it before it paints, so a fill turned on or off later is followed too.
    void fitInk();

protected:
    QColor backColor_;
    QColor foreColor_;
};

class Label : public QLabel, public Control {
    Q_OBJECT
public:
    explicit Label(QWidget* parent);
    QString kind() const override { return QStringLiteral("label"); }
    QObject* object() override { return this; }
    bool userClick() override;

    QString Caption() const { return caption_; }
    void setCaption(const QString& c);
    int DragMode() const { return dragMode_; }
    void setDragMode(int m) { dragMode_ = m; }
    // A label that sizes itself to its caption, from where it stands.
    void setAutoSize(bool on);
    // What a drag of this label carries; a drop on a control with a DragDrop handler delivers it.
    QMimeData* dragData() const;
    QPalette::ColorRole captionRole() const override { return QPalette::WindowText; }

    std::function<void()> Click;
    // Button as 1 left, 2 right, 4 middle; x and y in twips from the label's corner.
    std::function<void(int button, int shift, int x, int y)> MouseDown;
    std::function<void(int button, int shift, int x, int y)> MouseUp;

protected:
    void paintEvent(QPaintEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    QString caption_;
    int dragMode_ = 0;
    bool autoSize_ = false;
    QPoint pressPos_;
    bool pressed_ = false;
};

class CommandButton : public QAbstractButton, public Control {
    Q_OBJECT
public:
    explicit CommandButton(QWidget* parent);
    QString kind() const override { return QStringLiteral("button"); }
    QObject* object() override { return this; }
    bool userClick() override;

    QString Caption() const { return caption_; }
    void setCaption(const QString& c);
    // The picture, and how it looks while the button is disabled; greyed when none is given.
    void setPicture(const QPixmap& p, const QPixmap& disabled = QPixmap());
    QPalette::ColorRole captionRole() const override { return QPalette::ButtonText; }
    QColor captionGround() const override;

    std::function<void()> Click;
    // Button as 1 left, 2 right, 4 middle; x and y in twips from the button's corner.
    std::function<void(int button, int shift, int x, int y)> MouseDown;
    std::function<void(int button, int shift, int x, int y)> MouseUp;

    QSize sizeHint() const override { return size(); }

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    QString caption_;
    QPixmap picture_, disabledPicture_;
};

class TextBox : public QLineEdit, public Control {
    Q_OBJECT
public:
    explicit TextBox(QWidget* parent);
    QString kind() const override { return QStringLiteral("textbox"); }
    QObject* object() override { return this; }

    QString Text() const { return text(); }
    void setText(const QString& t) { QLineEdit::setText(t); }
    void SetFocus();
    void setFontSize(double points);
    // Whether the program gave the box a size of its own.
    bool hasFontSize() const { return fontSizeSet_; }
    QPalette::ColorRole captionRole() const override { return QPalette::Text; }
    QColor captionGround() const override { return palette().color(QPalette::Base); }

    // The ANSI code of the key typed; the handler may change it, and 0 drops the key.
    std::function<void(int& keyAscii)> KeyPress;
    // Taken on release, once even when the key is held down. 13 is Enter. Only a key pressed in
    // this box counts: the release of a key pressed elsewhere (in a message box that Enter closed,
    // on another control) never judges an answer.
    std::function<void(int keyCode, int shift)> KeyUp;

protected:
    void paintEvent(QPaintEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void keyReleaseEvent(QKeyEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;

private:
    bool fontSizeSet_ = false;
    // The keys pressed in this box and not yet released, while it kept the focus.
    std::vector<int> premuti_;
};

// Several lines with both scroll bars; its text keeps CR LF line ends as the program writes them.
class MultiLineTextBox : public QPlainTextEdit, public Control {
    Q_OBJECT
public:
    explicit MultiLineTextBox(QWidget* parent);
    QString kind() const override { return QStringLiteral("textbox"); }
    QObject* object() override { return this; }

    QString Text() const;
    void setText(const QString& t);
    void setFontSize(double points);
    bool hasFontSize() const { return fontSizeSet_; }
    void SetFocus();
    int MaxLength = 0;
    QPalette::ColorRole captionRole() const override { return QPalette::Text; }
    QColor captionGround() const override { return palette().color(QPalette::Base); }

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    bool fontSizeSet_ = false;
};

class OptionButton : public QRadioButton, public Control {
    Q_OBJECT
public:
    explicit OptionButton(QWidget* parent);
    QString kind() const override { return QStringLiteral("option"); }
    QObject* object() override { return this; }
    bool userClick() override;

    QString Caption() const { return text(); }
    void setCaption(const QString& c) { setText(c); }
    bool Value() const { return isChecked(); }
    // Setting it True runs Click, as a choice made by the user does.
    void setValue(bool v);
    void setBackColor(QColor c) override;
    // The caption stands on the option's own tile, strong when chosen.
    QPalette::ColorRole captionRole() const override { return QPalette::WindowText; }
    QColor captionGround() const override;

    // Runs on every click of the user, on the option already chosen too: a child who wants to keep
    // the present choice must be able to say so.
    std::function<void()> Click;

protected:
    // A large round mark on a tile as big as the control, all of it a target for a small hand.
    void paintEvent(QPaintEvent* e) override;
    bool hitButton(const QPoint& pos) const override { return rect().contains(pos); }
};

class Frame : public QGroupBox, public Control {
    Q_OBJECT
public:
    explicit Frame(QWidget* parent);
    QString kind() const override { return QStringLiteral("frame"); }
    QObject* object() override { return this; }
    QString Caption() const { return title(); }
    void setCaption(const QString& c) { setTitle(c); }
    void setLeft(int twips);
    void setTop(int twips);
    QPalette::ColorRole captionRole() const override { return QPalette::WindowText; }
    // A panel that lies over the whole screen: at Left 0 and Top 0, as large as the screen's area
    // under the menu bar, in front of everything, shown.
    void MostraSopra();

protected:
    // A rounded edge with the caption set into its top, away from the window's edge.
    void paintEvent(QPaintEvent* e) override;
};

// A figure drawn in its own colours: the inside in BackColor when BackStyle is opaque, over it
// FillColor when FillStyle is solid, and the edge in BorderColor. A square or a circle keeps equal
// sides in the middle of its box; nothing outside the figure is painted, so a bead is a round bead
// on whatever stands behind it.
class Shape : public QWidget, public Control {
    Q_OBJECT
public:
    enum Kind { Rectangle = 0, Square = 1, Oval = 2, Circle = 3, RoundedRectangle = 4, RoundedSquare = 5 };
    enum BackStyles { Transparent = 0, Opaque = 1 };
    enum FillStyles { Solid = 0, NoFill = 1 };
    Shape(QWidget* parent, Kind k);
    QString kind() const override { return QStringLiteral("shape"); }
    QObject* object() override { return this; }
    bool userClick() override;

    Kind ShapeKind() const { return shape_; }
    void setBackColor(QColor c) override;
    int BackStyle() const { return backStyle_; }
    void setBackStyle(int s);
    QColor FillColor() const { return fill_; }
    void setFillColor(QColor c);
    int FillStyle() const { return fillStyle_; }
    void setFillStyle(int s);
    QColor BorderColor() const { return border_; }
    void setBorderColor(QColor c);
    void setBorderWidth(int pixels);
    // The figure inside the box, in the shape's own pixels.
    QRectF figureRect() const;

    std::function<void()> Click;
    // Button as 1 left, 2 right, 4 middle; x and y in twips from the shape's corner.
    std::function<void(int button, int shift, int x, int y)> MouseDown;
    std::function<void(int button, int shift, int x, int y)> MouseUp;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    Kind shape_;
    int backStyle_ = Transparent;
    int fillStyle_ = NoFill;
    QColor fill_ = Qt::black, border_ = Qt::black;
    int borderWidth_ = 1;
};

// A picture in a box, drawn to the box's size.
class Image : public QLabel, public Control {
    Q_OBJECT
public:
    explicit Image(QWidget* parent);
    QString kind() const override { return QStringLiteral("image"); }
    QObject* object() override { return this; }
    void setPicture(const QPixmap& p) { setPixmap(p); }
};

class Line : public QWidget, public Control {
    Q_OBJECT
public:
    // Endpoints in twips, relative to the parent.
    Line(QWidget* parent, int x1, int y1, int x2, int y2, QColor colour, int widthPx = 1);
    QString kind() const override { return QStringLiteral("line"); }
    QObject* object() override { return this; }
    QColor BorderColor() const { return colour_; }
    void setBorderColor(QColor c);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QPoint a_, b_;
    QColor colour_;
    int width_;
};

class ListBox : public QListWidget, public Control {
    Q_OBJECT
public:
    ListBox(QWidget* parent, bool sorted);
    QString kind() const override { return QStringLiteral("listbox"); }
    QObject* object() override { return this; }
    void AddItem(const QString& s);
    void Clear() { clear(); }
    int ListIndex() const { return currentRow(); }
    void setListIndex(int i) { setCurrentRow(i); }
    QString Text() const;
    int ListCount() const { return count(); }
    QString List(int i) const;

private:
    bool sorted_;
};

// A label picked up to be placed without dragging: a click (or Enter, or a tap) on a label that can
// be dragged picks it up, a click on a place that takes it puts it there through its DragDrop, a
// click anywhere else or Escape puts it back. One at a time; nullptr when none is carried, or when
// the one picked up can no longer be dragged.
class Label;
Label* Carried();
// Picks the label up, or puts back the one carried with nullptr.
void PickUp(Label* label);

// A mouse button pressed and released at a point of the widget (its middle by default), through its
// own mouse handling: what the keyboard's Enter, a finger's tap and the driver give a control. No
// release when the press took the widget away.
void PressAndRelease(QWidget* w, Qt::MouseButton button, std::optional<QPointF> at = std::nullopt);

// Whether the widget takes typing: a text box, of one line or several.
bool TakesTyping(const QWidget* w);

// Whether a child can act on the control as it stands now: shown, enabled, and a button, an option,
// a text box that takes typing, or a label or shape that takes a click or a mouse button, can be
// dragged or takes drops. The keyboard's focus and a finger go to these.
bool Actionable(Control& c);

// A control array: one name, elements by index, named Name(i).
template <class T> class ControlArray {
public:
    T* operator()(int i) const {
        auto it = items_.find(i);
        return it == items_.end() ? nullptr : it->second;
    }
    void set(int i, T* c) { items_[i] = c; }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }
    int size() const { return int(items_.size()); }

private:
    std::map<int, T*> items_;
};

} // namespace contarello
