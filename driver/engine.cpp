#include "driver/engine.h"
#include "app/screens.h"
#include "driver/describe.h"
#include "driver/touchscreen.h"
#include "shell/form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QMouseEvent>

namespace contarello {

namespace {

QJsonObject ok() {
    return {{"ok", true}};
}
QJsonObject fail(const QString& why) {
    return {{"ok", false}, {"error", why}};
}
QJsonObject ignored(const char* why) {
    return {{"ok", true}, {"ignored", why}};
}

// Whether a user could reach the control: it and every container up to the screen shown and enabled.
const char* unreachable(Control* c, Form* form) {
    if (!c->Visible()) return "hidden";
    if (!c->Enabled()) return "disabled";
    if (QWidget* w = c->widget()) {
        for (QWidget* p = w->parentWidget(); p && p != form; p = p->parentWidget()) {
            if (p->testAttribute(Qt::WA_WState_ExplicitShowHide) && p->testAttribute(Qt::WA_WState_Hidden))
                return "hidden";
            if (p->testAttribute(Qt::WA_ForceDisabled)) return "disabled";
        }
    }
    return nullptr;
}

struct Key {
    int key;
    QString text;
};

Key keyForChar(QChar c) {
    const char16_t u = c.unicode();
    if (u == u'\r' || u == u'\n') return {Qt::Key_Return, QStringLiteral("\r")};
    if (u == u'\b') return {Qt::Key_Backspace, QStringLiteral("\b")};
    if (u >= u'a' && u <= u'z') return {Qt::Key_A + (u - u'a'), QString(c)};
    if (u < 128) return {int(u), QString(c)};
    return {int(c.toUpper().unicode()), QString(c)};
}

Key keyForCode(int code) {
    switch (code) {
    case 8:
        return {Qt::Key_Backspace, QStringLiteral("\b")};
    case 9:
        return {Qt::Key_Tab, QStringLiteral("\t")};
    case 13:
        return {Qt::Key_Return, QStringLiteral("\r")};
    case 27:
        return {Qt::Key_Escape, QString(QChar(27))};
    case 32:
        return {Qt::Key_Space, QStringLiteral(" ")};
    case 33:
        return {Qt::Key_PageUp, {}};
    case 34:
        return {Qt::Key_PageDown, {}};
    case 35:
        return {Qt::Key_End, {}};
    case 36:
        return {Qt::Key_Home, {}};
    case 37:
        return {Qt::Key_Left, {}};
    case 38:
        return {Qt::Key_Up, {}};
    case 39:
        return {Qt::Key_Right, {}};
    case 40:
        return {Qt::Key_Down, {}};
    case 46:
        return {Qt::Key_Delete, {}};
    default:
        break;
    }
    if (code >= '0' && code <= '9') return {code, QString(QChar(code))};
    if (code >= 'A' && code <= 'Z') return {code, QString(QChar(code + 32))};
    if (code >= 112 && code <= 123) return {Qt::Key_F1 + code - 112, {}};
    return {code, {}};
}

// A key by the name a script gives it: "Tab", "Shift+Tab", "Enter", "F10", "7", "A".
bool keyForName(const QString& name, Key& k, Qt::KeyboardModifiers& mods) {
    static const std::pair<const char*, Key> kNamed[] = {
        {"Tab", {Qt::Key_Tab, QStringLiteral("\t")}},
        {"Shift+Tab", {Qt::Key_Backtab, {}}},
        {"Enter", {Qt::Key_Return, QStringLiteral("\r")}},
        {"Space", {Qt::Key_Space, QStringLiteral(" ")}},
        {"Escape", {Qt::Key_Escape, QString(QChar(27))}},
        {"Backspace", {Qt::Key_Backspace, QStringLiteral("\b")}},
        {"Delete", {Qt::Key_Delete, {}}},
        {"Menu", {Qt::Key_Menu, {}}},
        {"Left", {Qt::Key_Left, {}}},
        {"Right", {Qt::Key_Right, {}}},
        {"Up", {Qt::Key_Up, {}}},
        {"Down", {Qt::Key_Down, {}}},
        {"Home", {Qt::Key_Home, {}}},
        {"End", {Qt::Key_End, {}}},
        {"F2", {Qt::Key_F2, {}}},
        {"F10", {Qt::Key_F10, {}}},
        {"F11", {Qt::Key_F11, {}}},
    };
    mods = name == u"Shift+Tab" ? Qt::ShiftModifier : Qt::NoModifier;
    for (const auto& [n, key] : kNamed)
        if (name == QLatin1String(n)) {
            k = key;
            return true;
        }
    if (name.size() == 1 && ((name[0] >= u'0' && name[0] <= u'9') || (name[0] >= u'A' && name[0] <= u'Z'))) {
        k = keyForCode(name[0].unicode());
        return true;
    }
    return false;
}

// Whatever has the keyboard's focus on the screen: an open menu first, then the focused control,
// else the screen itself.
QWidget* keyboardFocus(Form* form) {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup->focusWidget() ? popup->focusWidget() : popup;
    QWidget* w = form->focusWidget();
    return w && w->isVisible() ? w : form;
}

void sendKey(QWidget* w, const Key& k, int repeat) {
    QKeyEvent first(QEvent::KeyPress, k.key, Qt::NoModifier, k.text, false);
    QCoreApplication::sendEvent(w, &first);
    for (int i = 1; i < repeat; ++i) {
        QKeyEvent again(QEvent::KeyPress, k.key, Qt::NoModifier, k.text, true);
        QCoreApplication::sendEvent(w, &again);
    }
    QKeyEvent release(QEvent::KeyRelease, k.key, Qt::NoModifier, k.text, false);
    QCoreApplication::sendEvent(w, &release);
}

Qt::MouseButton qtButton(int vb) {
    switch (vb) {
    case 2:
        return Qt::RightButton;
    case 4:
        return Qt::MiddleButton;
    default:
        return Qt::LeftButton;
    }
}

const char* const kSetupCommands[] = {"seed", "rnd", "msgbox", "inputbox", "savefile"};
// clang-format off
const char* const kCommands[] = {"seed",     "rnd",   "msgbox", "inputbox",   "savefile", "show",
                                 "activate", "click", "menu",   "mousedown",  "type",     "key",
                                 "settext",  "drag",  "dump",   "screenshot", "close",
                                 "press",    "tap",   "hold",   "swipe"};
// clang-format on

} // namespace

DriverEngine::DriverEngine(const QString& appPath)
    : rnd_(&log_), sound_(log_, appPath), dialogs_(log_), printer_(log_), speech_(log_),
      app_(std::make_unique<Program>(rnd_, sound_, dialogs_, printer_, clock_, speech_, appPath, FormTable(),
                                     &log_)) {}

DriverEngine::~DriverEngine() = default;

void DriverEngine::settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QByteArray DriverEngine::executeLine(const QByteArray& line) {
    QJsonParseError err{};
    const QJsonDocument doc = QJsonDocument::fromJson(line, &err);
    QJsonObject answer;
    if (err.error != QJsonParseError::NoError || !doc.isObject())
        answer = fail(QStringLiteral("not a JSON object: ") + err.errorString());
    else
        answer = execute(doc.object());
    return QJsonDocument(answer).toJson(QJsonDocument::Compact);
}

QJsonObject DriverEngine::execute(const QJsonObject& command) {
    QString verb;
    for (const char* c : kCommands)
        if (command.contains(QLatin1String(c))) {
            verb = QLatin1String(c);
            break;
        }
    if (verb.isEmpty()) return fail(QStringLiteral("unknown command"));

    bool setup = false;
    for (const char* c : kSetupCommands)
        setup = setup || verb == QLatin1String(c);
    if (!setup && !started_ && !app_->nav.ended()) {
        started_ = true;
        Main(*app_);
        settle();
    }
    if (verb == u"dump") {
        const QJsonValue which = command.value(QStringLiteral("dump"));
        Form* form = app_->nav.active();
        if (which.isString()) {
            form = app_->nav.find(which.toString());
            if (!form) return fail(QStringLiteral("no loaded screen named ") + which.toString());
        }
        return dump(form);
    }

    if (app_->nav.ended()) return fail(QStringLiteral("the program has ended"));
    QJsonObject answer = act(verb, command);
    settle();
    return answer;
}

QJsonObject DriverEngine::act(const QString& verb, const QJsonObject& cmd) {
    const QJsonValue arg = cmd.value(verb);
    if (verb == u"seed") {
        if (!arg.isDouble()) return fail(QStringLiteral("seed takes a number"));
        rnd_.seed(unsigned(arg.toInteger()));
        return ok();
    }
    if (verb == u"rnd") {
        if (!arg.isArray()) return fail(QStringLiteral("rnd takes an array of numbers in [0, 1)"));
        for (const QJsonValue& v : arg.toArray())
            if (!v.isDouble() || v.toDouble() < 0 || v.toDouble() >= 1)
                return fail(QStringLiteral("rnd takes numbers in [0, 1)"));
        for (const QJsonValue& v : arg.toArray())
            rnd_.queue(v.toDouble());
        return ok();
    }
    if (verb == u"msgbox") {
        if (!arg.isArray()) return fail(QStringLiteral("msgbox takes an array of answers"));
        for (const QJsonValue& v : arg.toArray())
            dialogs_.queueAnswer(v.toInt());
        return ok();
    }
    if (verb == u"inputbox") {
        if (!arg.isArray()) return fail(QStringLiteral("inputbox takes an array of texts"));
        for (const QJsonValue& v : arg.toArray())
            dialogs_.queueText(v.toString());
        return ok();
    }
    if (verb == u"savefile") {
        if (!arg.isArray()) return fail(QStringLiteral("savefile takes an array of paths"));
        for (const QJsonValue& v : arg.toArray())
            dialogs_.queuePath(v.toString());
        return ok();
    }
    if (verb == u"show") {
        const QString name = arg.toString();
        if (!app_->nav.exists(name)) return fail(QStringLiteral("no screen named ") + name);
        Form* previous = app_->nav.active();
        Form* shown = app_->nav.Show(name);
        if (previous && previous != shown) app_->nav.Unload(previous);
        return ok();
    }
    if (verb == u"activate") {
        Form* form = app_->nav.find(arg.toString());
        if (!form) return fail(QStringLiteral("no loaded screen named ") + arg.toString());
        app_->nav.bringToFront(form);
        return ok();
    }
    if (verb == u"close") {
        Form* form = app_->nav.find(arg.toString());
        if (!form) return fail(QStringLiteral("no loaded screen named ") + arg.toString());
        // What the window system sends for the close box or Alt+F4; the screen decides what follows.
        QCloseEvent close;
        QCoreApplication::sendEvent(form, &close);
        return ok();
    }

    Form* form = app_->nav.active();
    if (verb == u"screenshot") {
        if (cmd.contains(QStringLiteral("form")))
            form = app_->nav.find(cmd.value(QStringLiteral("form")).toString());
        if (!form) return fail(QStringLiteral("no such screen"));
        if (!form->grab().save(arg.toString())) return fail(QStringLiteral("cannot write ") + arg.toString());
        return ok();
    }
    if (!form) return fail(QStringLiteral("no active screen"));
    if (verb == u"press") {
        Key k;
        Qt::KeyboardModifiers mods;
        if (!keyForName(arg.toString(), k, mods))
            return fail(QStringLiteral("no key named ") + arg.toString());
        const int repeat = std::max(1, cmd.value(QStringLiteral("repeat")).toInt(1));
        for (int i = 0; i < repeat && !app_->nav.ended() && app_->nav.active(); ++i) {
            // Pressed on what has the focus; released on what has it then, as a keyboard does.
            QKeyEvent press(QEvent::KeyPress, k.key, mods, k.text, false);
            QCoreApplication::sendEvent(keyboardFocus(app_->nav.active()), &press);
            settle();
            if (app_->nav.ended() || !app_->nav.active()) break;
            QKeyEvent release(QEvent::KeyRelease, k.key, mods, k.text, false);
            QCoreApplication::sendEvent(keyboardFocus(app_->nav.active()), &release);
            settle();
        }
        return ok();
    }
    Control* c = form->find(arg.toString());
    if (!c)
        return fail(QStringLiteral("no control named ") + arg.toString() + QStringLiteral(" on ") +
                    form->name());
    if (verb == u"menu" && c->kind() != u"menu")
        return fail(arg.toString() + QStringLiteral(" is not a menu item"));
    if (const char* why = unreachable(c, form)) return ignored(why);

    if (verb == u"tap" || verb == u"hold" || verb == u"swipe") {
        // One finger through the touch screen: it lands, rests or slides, and lifts.
        QPoint from, to;
        QWindow *window = nullptr, *targetWindow = nullptr;
        if (!TouchPoint(*c, from, window)) return ignored("hidden");
        to = from;
        if (verb == u"swipe") {
            Control* target = form->find(cmd.value(QStringLiteral("to")).toString());
            if (!target)
                return fail(QStringLiteral("no control named ") + cmd.value(QStringLiteral("to")).toString());
            if (!TouchPoint(*target, to, targetWindow)) return ignored("hidden");
        }
        TouchScreen screen;
        screen.land(window, {1, from});
        if (verb == u"hold") clock_.advance(std::max(0, cmd.value(QStringLiteral("ms")).toInt(1000)));
        for (int step = 1; verb == u"swipe" && step <= 4; ++step)
            screen.move(window, {1, from + (to - from) * step / 4});
        screen.lift(window, {1, to});
        return ok();
    }
    if (verb == u"click" || verb == u"menu") {
        c->userClick();
        return ok();
    }
    QWidget* w = c->widget();
    if (verb == u"mousedown") {
        if (!w) return fail(QStringLiteral("a menu item takes no mouse button"));
        PressAndRelease(w, qtButton(cmd.value(QStringLiteral("button")).toInt(1)));
        return ok();
    }
    if (verb == u"type" || verb == u"key") {
        if (!w) return fail(QStringLiteral("a menu item takes no keys"));
        w->setFocus(Qt::OtherFocusReason);
        if (verb == u"type") {
            for (QChar ch : cmd.value(QStringLiteral("text")).toString()) {
                // A key may take the screen away (Enter on a right answer can): stop typing then.
                if (app_->nav.active() != form || !w->isEnabled()) break;
                sendKey(w, keyForChar(ch), 1);
            }
        } else {
            const int repeat = std::max(1, cmd.value(QStringLiteral("repeat")).toInt(1));
            sendKey(w, keyForCode(cmd.value(QStringLiteral("code")).toInt()), repeat);
        }
        return ok();
    }
    if (verb == u"settext") {
        const QString text = cmd.value(QStringLiteral("text")).toString();
        if (auto* t = dynamic_cast<TextBox*>(c))
            t->setText(text);
        else if (auto* m = dynamic_cast<MultiLineTextBox*>(c))
            m->setText(text);
        else
            return fail(arg.toString() + QStringLiteral(" is not a text box"));
        return ok();
    }
    if (verb == u"drag") {
        auto* source = dynamic_cast<Label*>(c);
        if (!source) return fail(arg.toString() + QStringLiteral(" is not a label"));
        if (source->DragMode() != 1) return ignored("dragmode");
        Control* target = form->find(cmd.value(QStringLiteral("to")).toString());
        if (!target)
            return fail(QStringLiteral("no control named ") + cmd.value(QStringLiteral("to")).toString());
        if (const char* why = unreachable(target, form)) return ignored(why);
        if (target->DragDrop) target->DragDrop(source);
        return ok();
    }
    return fail(QStringLiteral("unknown command"));
}

QJsonObject DriverEngine::dump(Form* form) {
    QJsonObject out = ok();
    Navigator& nav = app_->nav;
    out[QStringLiteral("form")] = form ? QJsonValue(form->name()) : QJsonValue();
    out[QStringLiteral("active")] = nav.active() ? QJsonValue(nav.active()->name()) : QJsonValue();
    QJsonArray loaded;
    for (Form* f : nav.loaded())
        loaded.append(f->name());
    out[QStringLiteral("loaded")] = loaded;
    if (nav.ended()) out[QStringLiteral("ended")] = true;
    QJsonObject controls;
    if (form) {
        out[QStringLiteral("caption")] = form->Caption();
        out[QStringLiteral("backcolor")] = form->BackColor().isValid()
                                               ? colourName(form->BackColor())
                                               : colourName(form->palette().window().color());
        QString focus;
        if (QWidget* fw = form->focusWidget())
            for (Control* c : form->controls())
                if (c->widget() == fw) focus = c->name();
        out[QStringLiteral("focus")] = focus.isEmpty() ? QJsonValue() : QJsonValue(focus);
        for (Control* c : form->controls())
            controls[c->name()] = describe(*c);
        const QJsonObject fields = form->fields();
        if (!fields.isEmpty()) out[QStringLiteral("fields")] = fields;
    }
    out[QStringLiteral("controls")] = controls;
    const Modulo1& g = app_->g;
    out[QStringLiteral("globals")] = QJsonObject{{"Esatti", g.Esatti},
                                                 {"Errati", g.Errati},
                                                 {"NumeroScheda", g.NumeroScheda},
                                                 {"NumeroEsatto", g.NumeroEsatto},
                                                 {"NumeroMassimo", g.NumeroMassimo},
                                                 {"Termine1", g.Termine1},
                                                 {"Termine2", g.Termine2},
                                                 {"Meta", g.Meta},
                                                 {"AttendiBottone", g.AttendiBottone}};
    QJsonArray events;
    for (QJsonObject& e : log_.take())
        events.append(e);
    out[QStringLiteral("events")] = events;
    return out;
}

} // namespace contarello
