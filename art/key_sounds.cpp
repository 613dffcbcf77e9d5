#include "key_sounds.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

namespace quorix::art {

namespace {

/// A ringing of one frequency, or noise about it, that dies away.
struct Voice {
    double startMs;
    double hertz;
    double endHertz;   ///< The pitch glides there by the end of the sound.
    double decayMs;    ///< Until 1/e is left.
    double level;      ///< Against the other voices.
    double noiseBand;  ///< Width of the noise in hertz; 0 for a pure tone.
};

struct Recipe {
    double lengthMs;
    double attackMs;
    double peak;  ///< Of full scale.
    std::span<const Voice> voices;
};

// A tick on wood: two dull modes and the touch of the finger.
constexpr Voice kWood[] = {{0, 1180, 1120, 5, 1, 0},
                           {0, 2650, 2600, 2.5, 0.35, 0},
                           {0, 520, 500, 7, 0.4, 0},
                           {0, 1800, 1800, 2, 0.25, 1600}};
// A ping on glass: partials of a struck bar, which are no whole multiples.
constexpr Voice kGlass[] = {
    {0, 2093, 2093, 22, 1, 0}, {0, 5769, 5769, 12, 0.3, 0}, {0, 11310, 11310, 5, 0.08, 0}};
// A low knock with a falling pitch.
constexpr Voice kThock[] = {{0, 330, 150, 14, 1, 0}, {0, 690, 480, 6, 0.3, 0}, {0, 900, 900, 3, 0.2, 700}};
// A type bar: the strike, then the key coming back.
constexpr Voice kTypewriter[] = {
    {0, 3400, 3400, 2.2, 1, 2600}, {0, 1500, 1500, 3, 0.5, 500}, {21, 2200, 2200, 2.6, 0.45, 1500}};
// A bubble: a round tone that rises.
constexpr Voice kBubble[] = {{0, 420, 1350, 22, 1, 0}, {0, 840, 2700, 12, 0.12, 0}};

constexpr Recipe kRecipes[] = {
    {40, 1.0, 0.5, kWood},        {80, 1.5, 0.35, kGlass},  {60, 2.0, 0.6, kThock},
    {48, 1.4, 0.45, kTypewriter}, {65, 9.0, 0.45, kBubble},
};

constexpr double kReleaseMs = 8;

int SamplesOf(double ms) {
    return static_cast<int>(std::lround(ms * kSampleRate / 1000));
}

/// White noise between -1 and 1: a linear congruence, so that every machine draws the same.
class Noise {
  public:
    double Next() {
        state_ = state_ * 1664525U + 1013904223U;
        return static_cast<double>(state_) / 2147483648.0 - 1;
    }

  private:
    std::uint32_t state_ = 20260101;
};

/// Adds a voice. Noise rings a two-pole resonator, whose band is the noise's.
void Add(std::vector<double>& sound, const Voice& voice) {
    constexpr double kTurn = 2 * std::numbers::pi;
    Noise noise;
    const double radius = std::exp(-std::numbers::pi * voice.noiseBand / kSampleRate);
    const double feedback = 2 * radius * std::cos(kTurn * voice.hertz / kSampleRate);
    double last = 0;
    double beforeLast = 0;
    double phase = 0;
    const double length = static_cast<double>(sound.size());
    for (auto i = static_cast<std::size_t>(SamplesOf(voice.startMs)); i < sound.size(); ++i) {
        double value = std::sin(phase);
        if (voice.noiseBand > 0) {
            value = (1 - radius) * noise.Next() + feedback * last - radius * radius * beforeLast;
            beforeLast = last;
            last = value;
        }
        const double part = static_cast<double>(i) / length;
        phase += kTurn * (voice.hertz + (voice.endHertz - voice.hertz) * part) / kSampleRate;
        const double ms = static_cast<double>(i) * 1000 / kSampleRate - voice.startMs;
        sound[i] += voice.level * value * std::exp(-ms / voice.decayMs);
    }
}

/// Rises from 0 to 1 over `ms` along half a cosine.
double Ramp(int samplesIn, double ms) {
    const double part = std::min(1.0, samplesIn / static_cast<double>(SamplesOf(ms)));
    return 0.5 - 0.5 * std::cos(std::numbers::pi * part);
}

template <int recipe>
std::vector<std::int16_t> Compose() {
    const Recipe& plan = kRecipes[recipe];
    std::vector<double> sound(static_cast<std::size_t>(SamplesOf(plan.lengthMs)));
    for (const Voice& voice : plan.voices) {
        Add(sound, voice);
    }
    const int count = static_cast<int>(sound.size());
    double loudest = 0;
    for (int i = 0; i < count; ++i) {
        double& value = sound[static_cast<std::size_t>(i)];
        value *= Ramp(i, plan.attackMs) * Ramp(count - 1 - i, kReleaseMs);
        loudest = std::max(loudest, std::abs(value));
    }
    std::vector<std::int16_t> samples;
    for (const double value : sound) {
        samples.push_back(static_cast<std::int16_t>(std::lround(value / loudest * plan.peak * 32767)));
    }
    return samples;
}

constexpr KeySound kKeySounds[] = {
    {"Sound 01.wav", Compose<0>}, {"Sound 02.wav", Compose<1>}, {"Sound 03.wav", Compose<2>},
    {"Sound 04.wav", Compose<3>}, {"Sound 05.wav", Compose<4>},
};
static_assert(std::size(kKeySounds) == std::size(kRecipes));

class Bytes {
  public:
    Bytes& Text(std::string_view text) {
        bytes_.insert(bytes_.end(), text.begin(), text.end());
        return *this;
    }
    /// Little-endian.
    Bytes& Number(std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i) {
            bytes_.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
        }
        return *this;
    }
    std::vector<std::uint8_t> Take() { return std::move(bytes_); }

  private:
    std::vector<std::uint8_t> bytes_;
};

}  // namespace

std::span<const KeySound> KeySounds() {
    return kKeySounds;
}

std::vector<std::uint8_t> WavFile(std::span<const std::int16_t> samples) {
    constexpr int kSampleBytes = 2;
    constexpr std::uint32_t kHeaderRest = 36;  // What the first length counts besides the samples.
    constexpr std::uint32_t kFormatBytes = 16;
    constexpr std::uint32_t kPcm = 1;
    const auto dataBytes = static_cast<std::uint32_t>(samples.size() * kSampleBytes);
    Bytes file;
    file.Text("RIFF").Number(kHeaderRest + dataBytes, 4).Text("WAVE");
    file.Text("fmt ").Number(kFormatBytes, 4).Number(kPcm, 2).Number(1, 2);
    file.Number(kSampleRate, 4).Number(kSampleRate * kSampleBytes, 4).Number(kSampleBytes, 2).Number(16, 2);
    file.Text("data").Number(dataBytes, 4);
    for (const std::int16_t sample : samples) {
        file.Number(static_cast<std::uint16_t>(sample), kSampleBytes);
    }
    return file.Take();
}

}  // namespace quorix::art
