#include "support/monkey.h"
#include "core/lang.h"
#include "core/numberwords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>

namespace contarello::test {

namespace {

// Texts a child, a cat on the keyboard or a paste can bring.
const char* const kOddTexts[] = {
    "0",       "99",      "100", "-1",   "32767", "32768", "99999999999999999999",
    "1e400",   "&HFFFF",  "1.5", " 12 ", "1 2",   "NaN",   "inf",
    "VENTUNO", "ventuno", "+",   "e",    ".",     "&H",    "\t"};
const char16_t kKeyboard[] = u"0123456789 abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                             u"àèéìòù€.,;:-+*/=<>?!\"'&%$()[]{}\t\r\n\b\x1b\u4e00";
const int kKeyCodes[] = {8,  9,  13, 27, 32, 33, 34, 35,  36,  37,  38,  39,  40,  46,  48,
                         53, 57, 65, 69, 72, 90, 96, 107, 109, 112, 113, 115, 116, 123, 222};
constexpr int kRecent = 40;

bool visibleAndEnabled(const QJsonObject& c) {
    return c.value(QStringLiteral("visible")).toBool() && c.value(QStringLiteral("enabled")).toBool();
}

int global(const QJsonObject& dump, const char* name) {
    return dump.value(QStringLiteral("globals")).toObject().value(QLatin1String(name)).toInt();
}

// The number a typed answer must give: a screen that keeps its own says so in its fields.
int esattoOf(const QJsonObject& dump) {
    const QJsonValue own =
        dump.value(QStringLiteral("fields")).toObject().value(QStringLiteral("NumeroEsatto"));
    return own.isDouble() ? own.toInt() : global(dump, "NumeroEsatto");
}

} // namespace

Monkey::Monkey(unsigned seed, std::vector<QJsonObject> route) : rng_(seed), route_(std::move(route)) {}

QJsonObject Monkey::execute(const QJsonObject& command) {
    recent_.push_back(QJsonDocument(command).toJson(QJsonDocument::Compact));
    if (recent_.size() > kRecent) recent_.pop_front();
    return engine_->execute(command);
}

bool Monkey::fail(const QString& why) {
    failure_ = QStringLiteral("after %1 actions: %2\nthe last commands:\n").arg(done_).arg(why);
    for (const QByteArray& c : recent_)
        failure_ += QString::fromUtf8(c) + u'\n';
    return false;
}

bool Monkey::run(long actions) {
    for (long i = 0; i < actions; ++i, ++done_)
        if (!step()) return false;
    return true;
}

bool Monkey::step() {
    // The dump after the last action is the screen as it stands: nothing has run since.
    QJsonObject before = std::exchange(last_, {});
    if (engine_ && before.isEmpty()) before = execute({{"dump", true}});
    if (!engine_ || before.value(QStringLiteral("ended")).toBool()) {
        if (engine_) ++ended_;
        engine_.reset(); // one program at a time, as in the real world
        engine_ = std::make_unique<DriverEngine>(QStringLiteral("/app"));
        recent_.clear();
        execute({{"seed", int(rng_() % 100000)}});
        for (const QJsonObject& command : route_)
            if (!execute(command).value(QStringLiteral("ok")).toBool())
                return fail(QStringLiteral("the way to the screen is closed"));
        before = execute({{"dump", true}});
        if (!check(before)) return false;
    }
    if (chance(0.08) && !checkAnswer(before)) return false; // before: the next question
    const QJsonObject action = pickAction(before);
    if (action.isEmpty()) {
        last_ = before;
        return true;
    }
    const QJsonObject answer = execute(action);
    if (!answer.value(QStringLiteral("ok")).toBool())
        return fail(QStringLiteral("the driver refused a command: ") +
                    answer.value(QStringLiteral("error")).toString());
    last_ = execute({{"dump", true}});
    return check(last_);
}

bool Monkey::check(const QJsonObject& d) {
    if (d.value(QStringLiteral("ended")).toBool()) return true;
    const QString active = d.value(QStringLiteral("active")).toString();
    if (active.isEmpty()) return fail(QStringLiteral("no active screen while the program runs"));
    if (!d.value(QStringLiteral("loaded")).toArray().contains(active))
        return fail(QStringLiteral("the active screen %1 is not loaded").arg(active));
    visited_.insert(active);

    const QJsonObject c = d.value(QStringLiteral("controls")).toObject();
    const int esatti = global(d, "Esatti"), errati = global(d, "Errati");
    if (esatti < 0 || errati < 0)
        return fail(QStringLiteral("a counter below zero: %1 right, %2 wrong").arg(esatti).arg(errati));
    if (c.contains(QStringLiteral("ComandoIconaSi")) && c.contains(QStringLiteral("ComandoIconaNo"))) {
        const bool si =
            c.value(QStringLiteral("ComandoIconaSi")).toObject().value(QStringLiteral("visible")).toBool();
        const bool no =
            c.value(QStringLiteral("ComandoIconaNo")).toObject().value(QStringLiteral("visible")).toBool();
        if (si == no) return fail(QStringLiteral("%1 faces showing on %2").arg(si ? 2 : 0).arg(active));
    }
    for (const auto& [label, value] :
         {std::pair{"EtichettaEsatti", esatti}, std::pair{"EtichettaErrati", errati}}) {
        const QJsonObject l = c.value(QLatin1String(label)).toObject();
        if (l.isEmpty()) continue;
        const QString caption = l.value(QStringLiteral("caption")).toString();
        if (Val(caption) != value)
            return fail(
                QStringLiteral("%1 shows \"%2\" for %3 on %4").arg(label, caption).arg(value).arg(active));
    }
    return true;
}

// The question on a typed-answer screen is answerable: its answer NumeroEsatto (the screen's own,
// where it keeps one), typed key by key and confirmed with Enter, is judged right. Some screens
// take it in digits, some in words; which one is learnt on a screen's first question and must hold
// from then on. d becomes the screen after the answer.
bool Monkey::checkAnswer(QJsonObject& d) {
    const QString form = d.value(QStringLiteral("form")).toString();
    const QJsonObject c = d.value(QStringLiteral("controls")).toObject();
    const QJsonObject box = c.value(QStringLiteral("Text1")).toObject();
    if (box.value(QStringLiteral("kind")).toString() != u"textbox" || !visibleAndEnabled(box)) return true;
    // The frame's panel for the limit lies over the whole screen while it shows.
    if (c.value(QStringLiteral("CorniceNumeroMassimo")).toObject().value(QStringLiteral("visible")).toBool())
        return true;
    ++answersChecked_;
    const auto known = answers_.find(form);
    QJsonObject now = d;
    for (int way = known == answers_.end() ? 0 : known->second; way < 2; ++way) {
        const int esatto = esattoOf(now);
        const int esatti = global(now, "Esatti"), errati = global(now, "Errati");
        Modulo1 g;
        long long n = esatto;
        const QString text = way == 0 ? QString::number(esatto) : NumeroInParole(n, g);
        execute({{"settext", "Text1"}, {"text", QString()}});
        execute({{"type", "Text1"}, {"text", text}});
        execute({{"key", "Text1"}, {"code", 13}});
        now = execute({{"dump", true}});
        if (!check(now)) return false;
        if (global(now, "Esatti") == std::min(esatti + 1, 32767) && global(now, "Errati") == errati) {
            answers_[form] = way;
            d = now;
            return true;
        }
        if (known != answers_.end()) break;
    }
    return fail(QStringLiteral("the answer %1 typed on %2 is not judged right").arg(esattoOf(d)).arg(form));
}

QString Monkey::pickControl(const QJsonObject& d, const QStringList& kinds, bool dragSourceOnly) {
    const QString form = d.value(QStringLiteral("form")).toString();
    const QJsonObject controls = d.value(QStringLiteral("controls")).toObject();
    QStringList names;
    // A control array counts as one control, its elements sharing its chances: a table of a hundred
    // cells mustn't keep the monkey from the menu that leads away.
    auto array = [](const QString& name) { return name.section(u'(', 0, 0); };
    QHash<QString, int> members;
    for (auto it = controls.begin(); it != controls.end(); ++it) {
        const QJsonObject c = it.value().toObject();
        if (!kinds.contains(c.value(QStringLiteral("kind")).toString()) || !visibleAndEnabled(c)) continue;
        if (dragSourceOnly && c.value(QStringLiteral("dragmode")).toInt() != 1) continue;
        names.append(it.key());
        ++members[array(it.key())];
    }
    if (names.isEmpty()) return {};
    std::vector<double> weights;
    for (const QString& n : names)
        // What was seldom tried comes first: so every button of a menu leads somewhere sooner or later.
        weights.push_back(1.0 / (1 + clicks_[form + u'/' + n]) / members[array(n)]);
    const int i = std::discrete_distribution<int>(weights.begin(), weights.end())(rng_);
    ++clicks_[form + u'/' + names[i]];
    return names[i];
}

QString Monkey::randomText() {
    switch (below(4)) {
    case 0:
        return QString::number(below(1000));
    case 1:
        return QString::fromUtf8(kOddTexts[below(std::size(kOddTexts))]);
    case 2: {
        QString s;
        for (int i = below(12); i > 0; --i)
            s += QChar(kKeyboard[below(std::size(kKeyboard) - 1)]);
        return s;
    }
    default:
        return QString(below(3) == 0 ? 2000 : 40, QChar(kKeyboard[below(std::size(kKeyboard) - 1)]));
    }
}

QJsonObject Monkey::pickAction(const QJsonObject& d) {
    static const QStringList clickable = {"button", "label", "option",  "shape",
                                          "image",  "frame", "listbox", "line"};
    static const QStringList boxes = {"textbox"};
    const QJsonArray loaded = d.value(QStringLiteral("loaded")).toArray();
    const int r = below(100);
    if (r < 4) return {{"msgbox", QJsonArray{below(2) ? 6 : 7}}};
    if (r < 6) return {{"inputbox", QJsonArray{randomText()}}};
    if (r < 11) return {{"activate", loaded.at(below(loaded.size()))}};
    if (r < 13) return {{"close", loaded.at(below(loaded.size()))}};
    if (r < 23) {
        const QString box = pickControl(d, boxes);
        if (!box.isEmpty()) return {{"type", box}, {"text", randomText().left(30)}};
    } else if (r < 31) {
        const QString box = pickControl(d, boxes);
        if (!box.isEmpty())
            return {{"key", box}, {"code", kKeyCodes[below(std::size(kKeyCodes))]}, {"repeat", 1 + below(4)}};
    } else if (r < 36) {
        const QString box = pickControl(d, boxes);
        if (!box.isEmpty()) return {{"settext", box}, {"text", randomText()}};
    } else if (r < 42) {
        const QString label = pickControl(d, {"label"}, true);
        const QString target = pickControl(d, clickable + boxes);
        if (!label.isEmpty() && !target.isEmpty()) return {{"drag", label}, {"to", target}};
    } else if (r < 50) {
        const QString c = pickControl(d, clickable + boxes);
        if (!c.isEmpty()) return {{"mousedown", c}, {"button", QJsonArray{1, 2, 4}.at(below(3))}};
    } else if (r < 62) {
        const QString m = pickControl(d, {"menu"});
        if (!m.isEmpty()) return {{"menu", m}};
    } else if (r < 70) {
        // Keys to whatever has the focus, as a child with only a keyboard presses them.
        static const char* const kKeys[] = {"Tab",    "Shift+Tab", "Enter", "Space", "Escape", "Backspace",
                                            "Delete", "Menu",      "Left",  "Right", "Up",     "Down",
                                            "F2",     "F10",       "7",     "A"};
        return {{"press", kKeys[below(std::size(kKeys))]}, {"repeat", 1 + below(3)}};
    } else if (r < 76) {
        // A finger: a tap, a rest long or short, a slide from a label onto anything.
        const QString c = pickControl(d, clickable + boxes);
        if (!c.isEmpty() && r < 72) return {{"tap", c}};
        if (!c.isEmpty() && r < 74) return {{"hold", c}, {"ms", 100 + below(1200)}};
        const QString label = pickControl(d, {"label"}, true);
        if (!label.isEmpty() && !c.isEmpty()) return {{"swipe", label}, {"to", c}};
    }
    const QString c = pickControl(d, clickable);
    if (!c.isEmpty()) return {{"click", c}};
    const QString m = pickControl(d, {"menu"});
    if (!m.isEmpty()) return {{"menu", m}};
    return {};
}

} // namespace contarello::test
