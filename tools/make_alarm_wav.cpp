// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT

// Makes the sound of the alarm: a chime of three rising notes, each struck and left to ring. The
// same file comes out of every run.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <numbers>
#include <string>
#include <vector>

namespace {

constexpr int SampleRate = 44100;
constexpr double Length = 1.4;   // seconds
constexpr double Fade = 0.25;    // of its end, so that nothing is cut off
constexpr double Loudest = 0.7;  // of full scale
constexpr double Strike = 0.006; // seconds from silence to a note's full loudness

struct Note {
    double start; // seconds
    double pitch; // hertz
    double loudness;
};

// G5, C6, E6: a chord that rests.
constexpr std::array<Note, 3> Notes{
    {{0.00, 783.99, 0.8}, {0.17, 1046.50, 0.9}, {0.34, 1318.51, 1.0}}};

struct Partial {
    double multiple; // of the note's pitch
    double loudness;
    double ring; // seconds until a third is left
};

// A small bar's sound: the higher a partial, the sooner it has died away.
constexpr std::array<Partial, 4> Partials{
    {{1.0, 1.0, 0.34}, {2.0, 0.32, 0.20}, {3.0, 0.12, 0.11}, {5.4, 0.06, 0.04}}};

double sounding(const Note& note, double time) {
    const double since = time - note.start;
    if (since < 0)
        return 0;
    double sum = 0;
    for (const Partial& partial : Partials) {
        const double turn = 2 * std::numbers::pi * note.pitch * partial.multiple * since;
        sum += partial.loudness * std::exp(-since / partial.ring) * std::sin(turn);
    }
    const double attack =
        since < Strike ? 0.5 - 0.5 * std::cos(std::numbers::pi * since / Strike) : 1;
    return note.loudness * attack * sum;
}

std::vector<std::int16_t> chime() {
    std::vector<double> wave(static_cast<std::size_t>(Length * SampleRate));
    double peak = 0;
    for (std::size_t i = 0; i < wave.size(); ++i) {
        const double time = static_cast<double>(i) / SampleRate;
        for (const Note& note : Notes)
            wave[i] += sounding(note, time);
        wave[i] *= std::clamp((Length - time) / Fade, 0.0, 1.0);
        peak = std::max(peak, std::abs(wave[i]));
    }
    std::vector<std::int16_t> samples(wave.size());
    std::transform(wave.begin(), wave.end(), samples.begin(), [peak](double value) {
        return static_cast<std::int16_t>(std::lround(value / peak * Loudest * 32767));
    });
    return samples;
}

/// Numbers of a wave file have their low byte first.
void put(std::string& bytes, std::uint32_t number, int count) {
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

std::string waveFile(const std::vector<std::int16_t>& samples) {
    constexpr std::uint32_t BytesPerSample = 2;
    const auto size = static_cast<std::uint32_t>(samples.size()) * BytesPerSample;
    std::string bytes = "RIFF";
    put(bytes, 36 + size, 4);
    bytes += "WAVEfmt ";
    put(bytes, 16, 4);
    put(bytes, 1, 2); // plain numbers
    put(bytes, 1, 2); // one channel
    put(bytes, SampleRate, 4);
    put(bytes, SampleRate * BytesPerSample, 4);
    put(bytes, BytesPerSample, 2);
    put(bytes, 8 * BytesPerSample, 2);
    bytes += "data";
    put(bytes, size, 4);
    for (const std::int16_t sample : samples)
        put(bytes, static_cast<std::uint16_t>(sample), 2);
    return bytes;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_alarm_wav FILE\n";
        return 2;
    }
    const std::string bytes = waveFile(chime());
    std::ofstream file(argv[1], std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        std::cerr << "make_alarm_wav: cannot write " << argv[1] << '\n';
        return 1;
    }
    return 0;
}
