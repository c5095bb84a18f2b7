// Writes the program's six sounds as 16-bit PCM WAV files into the folder given (default suoni/):
// four cheerful tunes for a right answer, a gentle one for a wrong answer, a short step sound.
// Run it again after changing a tune and commit the files it writes.

#include <cmath>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr int kRate = 22050;
constexpr double kPi = 3.14159265358979323846;

struct Note {
    double freq;   // Hz; 0 is a rest
    double start;  // s
    double length; // s
    double volume; // 0 to 1
};

double noteFreq(int semitonesFromA4) {
    return 440.0 * std::pow(2.0, semitonesFromA4 / 12.0);
}

std::vector<int16_t> render(const std::vector<Note>& notes, double bright) {
    double total = 0;
    for (const Note& n : notes)
        total = std::max(total, n.start + n.length);
    std::vector<double> mix(size_t(total * kRate) + 1, 0.0);
    for (const Note& n : notes) {
        const size_t from = size_t(n.start * kRate), count = size_t(n.length * kRate);
        for (size_t i = 0; i < count && from + i < mix.size(); ++i) {
            const double t = double(i) / kRate;
            // A soft attack and an exponential fall, so the notes ring like a small bell.
            const double env = std::min(1.0, t / 0.008) * std::exp(-3.5 * t / n.length);
            const double w = 2 * kPi * n.freq * t;
            const double v = std::sin(w) + bright * 0.35 * std::sin(2 * w) + bright * 0.12 * std::sin(3 * w);
            mix[from + i] += n.volume * env * v;
        }
    }
    double peak = 1e-9;
    for (double v : mix)
        peak = std::max(peak, std::abs(v));
    std::vector<int16_t> out(mix.size());
    for (size_t i = 0; i < mix.size(); ++i) {
        // fade the last few milliseconds to avoid a click
        const double tail = std::min(1.0, double(mix.size() - i) / (0.01 * kRate));
        out[i] = int16_t(std::lround(mix[i] / peak * 0.7 * 32767 * tail));
    }
    return out;
}

void put32(std::ofstream& f, uint32_t v) {
    f.write(reinterpret_cast<const char*>(&v), 4);
}
void put16(std::ofstream& f, uint16_t v) {
    f.write(reinterpret_cast<const char*>(&v), 2);
}

void writeWav(const std::string& path, const std::vector<int16_t>& samples) {
    std::ofstream f(path, std::ios::binary);
    const uint32_t data = uint32_t(samples.size() * 2);
    f.write("RIFF", 4);
    put32(f, 36 + data);
    f.write("WAVEfmt ", 8);
    put32(f, 16);
    put16(f, 1); // PCM
    put16(f, 1); // mono
    put32(f, kRate);
    put32(f, kRate * 2);
    put16(f, 2);
    put16(f, 16);
    f.write("data", 4);
    put32(f, data);
    f.write(reinterpret_cast<const char*>(samples.data()), data);
}

} // namespace

int main(int argc, char** argv) {
    const std::string dir = argc > 1 ? argv[1] : "suoni";
    const double C5 = noteFreq(3), E5 = noteFreq(7), G5 = noteFreq(10), C6 = noteFreq(15), E6 = noteFreq(19);
    const double A5 = noteFreq(12), E4 = noteFreq(-5), C4 = noteFreq(-9);
    // Right answers: four short tunes that go up.
    writeWav(dir + "/si1.wav", render({{C5, 0, .18, 1}, {E5, .12, .18, 1}, {G5, .24, .35, 1}}, 1));
    writeWav(dir + "/si2.wav", render({{G5, 0, .15, 1}, {C6, .13, .45, 1}}, 1));
    writeWav(dir + "/si3.wav",
             render({{E5, 0, .1, .9}, {G5, .08, .1, .9}, {C6, .16, .1, .9}, {E6, .24, .4, 1}}, .8));
    writeWav(dir + "/si4.wav",
             render({{C5, 0, .6, .7}, {E5, .04, .56, .7}, {G5, .08, .52, .7}, {C6, .12, .5, .8}}, .6));
    // A wrong answer: two soft notes going down, no harshness.
    writeWav(dir + "/no.wav", render({{E4, 0, .22, .8}, {C4, .18, .4, .8}}, 0));
    // A stage done: one short blip.
    writeWav(dir + "/si.wav", render({{A5, 0, .12, 1}, {A5 * 1.5, .06, .1, .5}}, .5));
    return 0;
}
