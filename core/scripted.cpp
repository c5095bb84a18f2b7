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

int ScriptedClock::after(int ms, std::function<void()> what) {
    const int ticket = next_++;
    due_[ticket] = {now_ + std::max(0, ms), std::move(what)};
    return ticket;
}

void ScriptedClock::advance(int ms) {
    const qint64 until = now_ + std::max(0, ms);
    for (;;) {
        // The earliest due, the first made among equals; what runs may add or cancel others.
        auto next = due_.end();
        for (auto it = due_.begin(); it != due_.end(); ++it)
            if (it->second.at <= until && (next == due_.end() || it->second.at < next->second.at)) next = it;
        if (next == due_.end()) break;
        now_ = next->second.at;
        auto what = std::move(next->second.what);
        due_.erase(next);
        if (what) what();
    }
    now_ = until;
}

void RecordingSpeech::say(const QString& text) {
    log_.add({{"event", "speak"}, {"text", text}});
}

} // namespace contarello
