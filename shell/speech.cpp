#include "shell/speech.h"

#include <QThread>
#include <QTimer>
#include <atomic>
#include <chrono>

namespace contarello {

namespace {

// Lives on the voice's thread: makes the voice there and speaks through it there.
class VoiceWorker : public QObject {
    Q_OBJECT
public:
    using Clock = std::chrono::steady_clock;
    explicit VoiceWorker(std::function<Speech*()> make) : make_(std::move(make)) {}

    void make() {
        voice_.reset(make_ ? make_() : nullptr);
        emit made(voice_ != nullptr);
    }
    // A text asked for while the voice was still being made waits for it, but is not said once the
    // child has long moved on.
    void say(const QString& text, Clock::time_point asked) {
        if (voice_ && !silenced && Clock::now() - asked < kStillFresh) voice_->say(text);
    }
    // Set by the screens' thread when the voice took too long: from then on it says nothing.
    std::atomic<bool> silenced = false;
    void close() { voice_.reset(); }

signals:
    void made(bool ok);

private:
    static constexpr std::chrono::seconds kStillFresh{3};
    std::function<Speech*()> make_;
    std::unique_ptr<Speech> voice_;
};

} // namespace

struct BackgroundSpeech::State {
    enum Stage { Off, Starting, Ready, Silent, TimedOut };
    std::function<Speech*()> make;
    int limitMs;
    Stage stage = Off;
    QObject context; // on the screens' thread: what the voice's thread answers to
    QThread* thread = nullptr;
    VoiceWorker* worker = nullptr;
};

BackgroundSpeech::BackgroundSpeech(std::function<Speech*()> make, int limitMs)
    : state_(std::make_unique<State>()) {
    state_->make = std::move(make);
    state_->limitMs = limitMs;
}

BackgroundSpeech::~BackgroundSpeech() {
    State& s = *state_;
    if (!s.thread) return;
    // The voice is closed on its own thread. A thread still stuck making it is left behind rather
    // than waited for: the program ends all the same.
    QMetaObject::invokeMethod(
        s.worker, [w = s.worker] { w->close(); }, Qt::QueuedConnection);
    s.thread->quit();
    if (s.thread->wait(s.stage == State::TimedOut ? 100 : 2000)) {
        delete s.worker;
        delete s.thread;
    }
}

void BackgroundSpeech::prepare() {
    State& s = *state_;
    if (s.stage != State::Off) return;
    s.stage = State::Starting;
    s.thread = new QThread;
    s.thread->setObjectName(QStringLiteral("voce"));
    s.worker = new VoiceWorker(s.make);
    s.worker->moveToThread(s.thread);
    QObject::connect(s.worker, &VoiceWorker::made, &s.context, [&s](bool ok) {
        if (s.stage == State::Starting) s.stage = ok ? State::Ready : State::Silent;
    });
    s.thread->start(QThread::LowPriority);
    QMetaObject::invokeMethod(
        s.worker, [w = s.worker] { w->make(); }, Qt::QueuedConnection);
    QTimer::singleShot(s.limitMs, &s.context, [&s] {
        if (s.stage != State::Starting) return;
        s.stage = State::TimedOut;
        s.worker->silenced = true;
    });
}

void BackgroundSpeech::say(const QString& text) {
    State& s = *state_;
    if (s.stage != State::Starting && s.stage != State::Ready) return;
    QMetaObject::invokeMethod(
        s.worker, [w = s.worker, text, asked = VoiceWorker::Clock::now()] { w->say(text, asked); },
        Qt::QueuedConnection);
}

bool BackgroundSpeech::ready() const {
    return state_->stage == State::Ready;
}

bool BackgroundSpeech::silent() const {
    return state_->stage == State::Silent || state_->stage == State::TimedOut;
}

} // namespace contarello

#include "speech.moc"
