#include <QDataStream>
#include <QIODevice>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "drawing.h"

namespace skyloft::assets {
namespace {

constexpr int kRate = 22050;              // samples a second
constexpr int kSamples = kRate * 3 / 2;   // a second and a half
constexpr int kTone = kRate / 4;          // each tone sounds for a quarter of a second
constexpr double kTones[] = {853, 1280};  // hertz, a fifth and a bit apart

// Every tone swells and fades, so that no step clicks; a soft third harmonic gives it an edge.
qint16 SampleAt(int sample) {
  const int within = sample % kTone;
  const double time = static_cast<double>(sample) / kRate;
  const double phase = 2 * std::numbers::pi * kTones[sample / kTone % 2] * time;
  const double swell = std::min({1.0, within / 200.0, (kTone - within) / 400.0});
  return static_cast<qint16>(std::lround(swell * (15000 * std::sin(phase) + 4000 * std::sin(3 * phase))));
}

}  // namespace

void MakeWarningSound(const QString& share) {
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  const quint32 data_size = kSamples * 2;
  out.writeRawData("RIFF", 4);
  out << 36 + data_size;
  out.writeRawData("WAVEfmt ", 8);
  out << quint32{16} << quint16{1} << quint16{1};  // PCM, one channel
  out << quint32{kRate} << quint32{kRate * 2} << quint16{2} << quint16{16};
  out.writeRawData("data", 4);
  out << data_size;
  for (int sample = 0; sample < kSamples; ++sample) out << SampleAt(sample);
  WriteBytes(share + "/wav/warning.wav", bytes);
}

}  // namespace skyloft::assets
