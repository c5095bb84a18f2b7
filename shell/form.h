#pragma once
// A screen: its window, its menu bar, its named controls in twips, and the way to the next screen.

#include "shell/controls.h"
#include "shell/menuitem.h"
#include "shell/navigator.h"

#include <QJsonObject>

class QMenuBar;

namespace contarello {

// A screen. Load, Activate and Unload are run by the navigator; the controls are made in the
// constructor, as they stand when the screen opens. Its background is what its controls stand on.
class Form : public QWidget, public Backdrop {
    Q_OBJECT
public:
    // The screen's name is given by the table of screens when it is made.
    Form(Program& app, int widthTwips, int heightTwips);
    ~Form() override;

    virtual void Load() {}
    virtual void Activate() {}
    virtual void Unload() {}
    // The window system asks the screen to close; by default nothing happens.
    virtual void CloseBox() {}
    // Extra private state for the driver's dump, where it helps a test.
    virtual QJsonObject fields() const { return {}; }

    QString name() const { return objectName(); }
    // The background; every caption on the screen then takes a colour that reads on what it
    // stands on.
    void setBackColor(QColor c);
    void fitInks() override;
    QColor BackColor() const { return backColor_; }
    QColor groundColour() const override {
        return backColor_.isValid() ? backColor_ : palette().color(QPalette::Window);
    }
    // Only a screen with a title bar shows its caption.
    QString Caption() const { return caption_; }
    void setCaption(const QString& c);
    void setTitleBar(bool on);

    // Prints what the screen shows under its menu bar, scaled to the page; a failure prints nothing.
    // The print queue shows it as "Contarello - scheda " and the screen's name.
    void PrintForm();
    // The same page saved as a PDF file where the adult chooses.
    void SalvaPdf();

    // Full screen, the page in its middle, and back to where the window stood (F11).
    void toggleFullScreen();

    Control* find(const QString& name) const;
    const std::vector<Control*>& controls() const { return controls_; }

    // The area under the menu bar, where controls stand.
    QWidget* client() const { return client_; }

    // Navigation as the screens say it: show the next screen, unload this one.
    void Show(const QString& formName);
    void UnloadMe();
    // Both, in that order: how every screen leads to the next.
    void GoTo(const QString& formName) {
        Show(formName);
        UnloadMe();
    }

    Program& app;
    Modulo1& g;

protected:
    // Controls are made through these, so that each is named, placed and known to the form.
    Label* label(const QString& name, const QString& caption, int left, int top, int width, int height,
                 const QFont& font, QWidget* parent = nullptr);
    CommandButton* button(const QString& name, const QString& caption, int left, int top, int width,
                          int height, const QFont& font, QWidget* parent = nullptr);
    TextBox* textBox(const QString& name, int left, int top, int width, int height, const QFont& font,
                     QWidget* parent = nullptr);
    OptionButton* option(const QString& name, const QString& caption, int left, int top, int width,
                         int height, const QFont& font, QWidget* parent = nullptr);
    Frame* frame(const QString& name, const QString& caption, int left, int top, int width, int height,
                 const QFont& font, QWidget* parent = nullptr);
    Shape* shape(const QString& name, Shape::Kind k, int left, int top, int width, int height,
                 QWidget* parent = nullptr);
    // A line between two points, in twips, with its width in pixels.
    Line* line(const QString& name, int x1, int y1, int x2, int y2, QColor colour = Qt::black,
               int widthPx = 1, QWidget* parent = nullptr);
    Image* image(const QString& name, const QPixmap& picture, int left, int top, int width, int height,
                 QWidget* parent = nullptr);
    // A menu item on the bar, or in the submenu of parentItem; before puts it ahead of that item.
    MenuItem* menu(const QString& name, const QString& caption, MenuItem* parentItem = nullptr,
                   MenuItem* before = nullptr);
    // Any other control: name it, place it in twips, and make it known.
    template <class T> T* adopt(T* c, const QString& name, int left, int top, int width, int height) {
        registerControl(c, name);
        c->setGeometry(tw(left), tw(top), tw(width), tw(height));
        return c;
    }
    void registerControl(Control* c, const QString& name);
    static QString indexed(const QString& name, int i) { return name + u'(' + QString::number(i) + u')'; }

    bool event(QEvent* e) override;
    // Where the focus goes when the control that had it goes off: the next one a child can act on.
    bool focusNextPrevChild(bool next) override;
    void resizeEvent(QResizeEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

private:
    friend class Keypad; // the keypad of lavagna mode stands on the page, under the screen
    QWidget* page_;
    QWidget* client_;
    QMenuBar* menuBar_ = nullptr;
    std::vector<Control*> controls_;
    std::map<QString, Control*> byName_;
    QColor backColor_;
    QString caption_;
    int widthTwips_, heightTwips_;
    QPoint dovePrima_; // where the window stood before it went full screen
};

} // namespace contarello
