// The voice through Qt's text to speech, in a module of its own: the program never links the speech
// libraries, and loads this only when the voice is turned on. The program makes it on a thread of
// its own, since making the engine can take seconds (it may start the speech service) or, with a
// service stuck, much longer.

#include "core/services.h"

#include <QLocale>
#include <QTextToSpeech>
#include <QVoice>
#include <algorithm>
#include <memory>

namespace {

class QtVoice : public contarello::Speech {
public:
    explicit QtVoice(std::unique_ptr<QTextToSpeech> tts) : tts_(std::move(tts)) {}

    void say(const QString& text) override {
        tts_->stop(); // a new question cuts short what was being said
        tts_->say(text);
    }

private:
    std::unique_ptr<QTextToSpeech> tts_;
};

// Italy's Italian if the engine has it, else any Italian; none when the engine speaks no Italian.
bool ChooseItalian(QTextToSpeech& tts) {
    const QList<QLocale> locales = tts.availableLocales();
    auto it = std::find_if(locales.begin(), locales.end(), [](const QLocale& l) {
        return l.language() == QLocale::Italian && l.territory() == QLocale::Italy;
    });
    if (it == locales.end())
        it = std::find_if(locales.begin(), locales.end(),
                          [](const QLocale& l) { return l.language() == QLocale::Italian; });
    if (it == locales.end()) return false;
    tts.setLocale(*it);
    return tts.locale().language() == QLocale::Italian;
}

} // namespace

// The voice, or null when there is no engine or no Italian voice: then the program stays silent.
extern "C" Q_DECL_EXPORT contarello::Speech* contarello_make_speech() {
    auto tts = std::make_unique<QTextToSpeech>();
    if (tts->state() == QTextToSpeech::Error || !ChooseItalian(*tts)) return nullptr;
    const QList<QVoice> voices = tts->availableVoices();
    if (voices.isEmpty()) return nullptr;
    // Some engines list their variants ("italian+klatt") before the plain voice: the plain one, by
    // name, is the clearest for a child.
    const auto plain =
        std::find_if(voices.begin(), voices.end(), [](const QVoice& v) { return !v.name().contains(u'+'); });
    tts->setVoice(plain != voices.end() ? *plain : voices.first());
    return new QtVoice(std::move(tts));
}
