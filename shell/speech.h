#pragma once
// The real voice, kept away from the thread that draws the screens: the engine is made and spoken
// to on a thread of its own, so a slow, stuck or absent speech service never holds up a screen.

#include "core/services.h"

#include <functional>
#include <memory>

namespace contarello {

class BackgroundSpeech : public Speech {
public:
    // make builds the voice on the voice's own thread, or gives null when there is none. If it has
    // not finished within limitMs of prepare, the voice stays silent for the rest of the run.
    explicit BackgroundSpeech(std::function<Speech*()> make, int limitMs = 10000);
    ~BackgroundSpeech() override;
    // Starts making the voice; returns at once.
    void prepare() override;
    // Hands the text to the voice's thread; returns at once. Silent before prepare, without a voice,
    // and once the time limit has passed.
    void say(const QString& text) override;
    // Whether the voice was made in time and speaks.
    bool ready() const;
    // Whether the voice has given up: none was made, or not in time.
    bool silent() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace contarello
