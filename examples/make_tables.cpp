// Computes the long tables of the example configurations and prints them in protobuf text format.
//
//   make_tables hpf    the speaker's high-pass coefficients
//   make_tables xeq    the speaker's equalizer coefficients
//   make_tables rooms  the headphones' room tables and headphone-EQ coefficients
//
// How an engine lays its tables out, and in which fixed-point format, is the engine's own affair;
// the layouts here are made up for the examples, the numbers in them are real filters and
// responses.
#include <cmath>
#include <cstdint>
#include <iostream>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kSampleRateHz = 48000;
constexpr int kFilterFractionBits = 27;    // coefficients up to +-16
constexpr int kResponseFractionBits = 23;  // samples up to +-256

using Table = std::vector<int32_t>;

int32_t fixedPoint(double value, int fractionBits) {
  return static_cast<int32_t>(std::lround(std::ldexp(value, fractionBits)));
}

// Prints the table as one list, eight values a line.
void print(const std::string& indent, const std::string& field, const Table& table) {
  std::cout << indent << field << ": [";
  for (std::size_t i = 0; i < table.size(); ++i) {
    if (i > 0) std::cout << ",";
    std::cout << (i % 8 == 0 ? "\n" + indent + "  " : " ") << table[i];
  }
  std::cout << "\n" << indent << "]\n";
}

// A second-order section b0 b1 b2 a1 a2, a0 being 1, appended to table.
struct Biquad {
  double b0, b1, b2, a0, a1, a2;

  void appendTo(Table* table) const {
    for (const double coefficient : {b0, b1, b2, a1, a2}) {
      table->push_back(fixedPoint(coefficient / a0, kFilterFractionBits));
    }
  }
};

// The filter formulas are those of R. Bristow-Johnson, "Audio EQ Cookbook", W3C Working Group Note,
// 2021. q is the quality factor, gain is in dB.
Biquad highPass(double frequencyHz, double q, double sampleRateHz) {
  const double w = 2 * kPi * frequencyHz / sampleRateHz;
  const double alpha = std::sin(w) / (2 * q);
  const double c = std::cos(w);
  return {(1 + c) / 2, -(1 + c), (1 + c) / 2, 1 + alpha, -2 * c, 1 - alpha};
}

Biquad peak(double frequencyHz, double q, double gainDb, double sampleRateHz) {
  const double w = 2 * kPi * frequencyHz / sampleRateHz;
  const double alpha = std::sin(w) / (2 * q);
  const double a = std::pow(10, gainDb / 40);
  const double c = -2 * std::cos(w);
  return {1 + alpha * a, c, 1 - alpha * a, 1 + alpha / a, c, 1 - alpha / a};
}

// A fourth-order Butterworth high-pass at 180 Hz for each of two channels: the quality factors of
// its two sections are 1 / (2 cos(pi/8)) and 1 / (2 cos(3 pi/8)).
Table speakerHighPass() {
  Table table;
  for (int channel = 0; channel < 2; ++channel) {
    highPass(180, 1 / (2 * std::cos(kPi / 8)), kSampleRateHz).appendTo(&table);
    highPass(180, 1 / (2 * std::cos(3 * kPi / 8)), kSampleRateHz).appendTo(&table);
  }
  return table;
}

// The bands of the configuration's channel_bands, for each of two channels: a block is the number
// of sections and of fraction bits, 74 words of sections, 260 words that stay free.
Table speakerEqualizer() {
  const struct {
    double frequencyHz, q, gainDb;
  } bands[] = {{350, 1.2, -3}, {900, 2.0, -4.5}, {2500, 1.4, 2}, {6300, 3.0, -6}, {11000, 0.8, 4}};
  Table table;
  for (std::size_t channel = 0; channel < 2; ++channel) {
    table.insert(table.end(), {static_cast<int32_t>(std::size(bands)), kFilterFractionBits});
    for (const auto& band : bands) {
      peak(band.frequencyHz, band.q, band.gainDb, kSampleRateHz).appendTo(&table);
    }
    table.resize(336 * (channel + 1));
  }
  return table;
}

// A binaural room response: the direct sound, then a tail of noise that decays exponentially, by 60
// dB in the reverberation time (ISO 3382). The far ear hears later, by the path around a sphere of
// the head's size (R. S. Woodworth, "Experimental Psychology", 1938), and more softly.
void appendResponse(double azimuthDegrees, int ear, int lengthSamples, std::mt19937* noise,
                    Table* table) {
  constexpr double kHeadRadiusM = 0.0875;
  constexpr double kSpeedOfSoundMps = 343;
  constexpr double kReverberationTimeS = 0.04;
  constexpr double kDirectDelayS = 0.001;
  constexpr double kTailGain = 0.1;

  const double angle = azimuthDegrees * kPi / 180 * (ear == 0 ? 1 : -1);
  const double behindHead = std::max(0.0, angle);
  const double delayS =
      kDirectDelayS + kHeadRadiusM / kSpeedOfSoundMps * (behindHead + std::sin(behindHead));
  const auto direct = static_cast<int>(std::lround(delayS * kSampleRateHz));
  for (int i = 0; i < lengthSamples; ++i) {
    const double seconds = (i - direct) / kSampleRateHz;
    const double uniform = static_cast<double>((*noise)()) / 2147483648.0 - 1;
    double sample = 0;
    if (i == direct) sample = 0.7 - 0.3 * std::sin(behindHead);
    if (i > direct) sample = kTailGain * uniform * std::pow(10, -3 * seconds / kReverberationTimeS);
    table->push_back(fixedPoint(sample, kResponseFractionBits));
  }
}

// For each of the loudspeakers' directions, the responses at the left and at the right ear.
Table room(const std::vector<double>& azimuthsDegrees, int lengthSamples) {
  std::mt19937 noise(20240229);
  Table table;
  for (const double azimuth : azimuthsDegrees) {
    for (int ear = 0; ear < 2; ++ear) appendResponse(azimuth, ear, lengthSamples, &noise, &table);
  }
  return table;
}

// The stereo tables begin with the length of their two responses.
Table stereoRoom(double azimuthDegrees) {
  constexpr int kLengthSamples = 1542;
  Table table = {kLengthSamples};
  std::mt19937 noise(static_cast<uint32_t>(azimuthDegrees));
  for (int ear = 0; ear < 2; ++ear) {
    appendResponse(azimuthDegrees, ear, kLengthSamples, &noise, &table);
  }
  return table;
}

// A correction of nine sections, at each of three sample rates.
Table headphoneEqualizer() {
  Table table;
  for (const double sampleRateHz : {44100.0, 48000.0, 96000.0}) {
    for (int section = 0; section < 9; ++section) {
      const double gainDb = section % 2 == 0 ? 3.5 - section : section - 4.0;
      peak(60 * std::pow(2, section), 1.41, gainDb, sampleRateHz).appendTo(&table);
    }
  }
  return table;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string which = argc == 2 ? argv[1] : "";
  if (which == "hpf") {
    print("    ", "coeffs", speakerHighPass());
  } else if (which == "xeq") {
    print("    ", "coeffs", speakerEqualizer());
  } else if (which == "rooms") {
    print("  ", "room_multi_ch", room({-110, -30, 0, 30, 110}, 821));
    print("  ", "room_stereo_front", stereoRoom(30));
    print("  ", "room_stereo_wide", stereoRoom(60));
    print("  ", "hpeq_coeffs", headphoneEqualizer());
  } else {
    std::cerr << "usage: make_tables hpf|xeq|rooms\n";
    return 2;
  }
  return 0;
}
