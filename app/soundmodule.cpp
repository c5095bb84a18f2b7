// The sounds through Qt Multimedia, in a module of their own: the program loads it once its first
// screen is up, so that the start doesn't wait for the audio libraries, and a machine without them
// or without an audio device simply stays silent.

#include "core/services.h"

#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>
#include <map>

namespace {

class QtSound : public contarello::Sound {
public:
    ~QtSound() override {
        for (auto& [path, effect] : effects_)
            delete effect;
    }

    void play(const QString& path) override {
        if (playing_) playing_->stop(); // a new sound replaces the one playing
        playing_ = nullptr;
        if (!QFileInfo::exists(path)) return; // a missing sound is silence
        QSoundEffect*& effect = effects_[path];
        if (!effect) {
            effect = new QSoundEffect;
            effect->setSource(QUrl::fromLocalFile(path));
        }
        effect->play();
        playing_ = effect;
    }

    void preload(const QString& path) override {
        QSoundEffect*& effect = effects_[path];
        if (!effect && QFileInfo::exists(path)) {
            effect = new QSoundEffect;
            effect->setSource(QUrl::fromLocalFile(path));
        }
    }

private:
    std::map<QString, QSoundEffect*> effects_;
    QSoundEffect* playing_ = nullptr;
};

} // namespace

extern "C" Q_DECL_EXPORT contarello::Sound* contarello_make_sound() {
    return new QtSound;
}
