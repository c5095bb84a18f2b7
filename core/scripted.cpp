#include "core/scripted.h"

#include <QJsonArray>

namespace contarello {

double ScriptedRandom::Rnd() {
    if (!queued_.empty()) {
        const double v = queued_.front();
        queued_.pop_front();
        return v;
    }
    return std::generate_canonical<double, 32>(gen_);
}

void ScriptedRandom::Randomize() {
    if (log_) log_->add({{"event", "randomize"}});
}

void RecordingSound::play(const QString& path) {
    QString rel = path;
    if (rel.startsWith(appPath_)) rel = rel.mid(appPath_.size());
    while (rel.startsWith(u'/'))
        rel.remove(0, 1);
    log_.add({{"event", "sound"}, {"file", rel}});
}

int ScriptedDialogs::MsgBox(const QString& text, int style, const QString& title) {
    int result = (style & 0xF) == 4 ? vbNo : vbOK;
    if (!answers_.empty()) {
        result = answers_.front();
        answers_.pop_front();
    }
    log_.add({{"event", "msgbox"}, {"text", text}, {"style", style}, {"title", title}, {"result", result}});
    return result;
}

QString ScriptedDialogs::InputBox(const QString& prompt, const QString& title, const QString& defaultText) {
    QString result = defaultText;
    if (!texts_.empty()) {
        result = texts_.front();
        texts_.pop_front();
    }
    log_.add({{"event", "inputbox"},
              {"prompt", prompt},
              {"title", title},
              {"default", defaultText},
              {"result", result}});
    return result;
}

QString ScriptedDialogs::SaveFile(const QString& title, const QString& defaultName, const QString& filter) {
    QString result;
    if (!paths_.empty()) {
        result = paths_.front();
        paths_.pop_front();
    }
    log_.add({{"event", "savefile"},
              {"title", title},
              {"default", defaultName},
              {"filter", filter},
              {"result", result}});
    return result;
}

} // namespace contarello
