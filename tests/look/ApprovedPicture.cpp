#include "tests/look/ApprovedPicture.h"

#include <QImageWriter>
#include <algorithm>
#include <cstdlib>

namespace leafund {

namespace {

// Two runs, and a Debug and a Release build, gave the same pixels in every picture. So the
// tolerance only has to let pass what nobody sees: a shade of 8 in 255, and a pixel in 10,000,
// which is 33 on a phone and less than the smallest icon's outline.
constexpr int kChannelTolerance = 8;
constexpr double kShareTolerance = 0.0001;

constexpr QRgb kMark = qRgb(220, 0, 60);

QRgb pale(QRgb colour) {
  const auto paler = [](int channel) { return 255 - (255 - channel) / 4; };
  return qRgb(paler(qRed(colour)), paler(qGreen(colour)), paler(qBlue(colour)));
}

int channelDifference(QRgb one, QRgb other) {
  return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                   std::abs(qBlue(one) - qBlue(other))});
}

}  // namespace

std::optional<Difference> differenceOf(const QImage& approved, const QImage& now) {
  if (approved.size() != now.size()) return std::nullopt;
  const QImage first = approved.convertToFormat(QImage::Format_RGB32);
  const QImage second = now.convertToFormat(QImage::Format_RGB32);
  Difference found{0, 0, QImage(first.size(), QImage::Format_RGB32)};
  std::ptrdiff_t different = 0;
  for (int y = 0; y < first.height(); ++y) {
    const auto* one = reinterpret_cast<const QRgb*>(first.constScanLine(y));
    const auto* other = reinterpret_cast<const QRgb*>(second.constScanLine(y));
    auto* shown = reinterpret_cast<QRgb*>(found.picture.scanLine(y));
    for (int x = 0; x < first.width(); ++x) {
      const int apart = channelDifference(one[x], other[x]);
      found.greatest = std::max(found.greatest, apart);
      different += apart > kChannelTolerance;
      shown[x] = apart > kChannelTolerance ? kMark : pale(one[x]);
    }
  }
  found.share = static_cast<double>(different) / (first.width() * first.height());
  return found;
}

bool isTheSame(const Difference& difference) { return difference.share <= kShareTolerance; }

bool save(const QImage& picture, const std::filesystem::path& path) {
  std::filesystem::create_directories(path.parent_path());
  QImageWriter writer(QString::fromStdString(path.string()), "png");
  writer.setCompression(100);  // the most there is
  return writer.write(picture.convertToFormat(QImage::Format_RGB888));
}

}  // namespace leafund
