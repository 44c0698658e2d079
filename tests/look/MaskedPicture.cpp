#include "tests/look/MaskedPicture.h"

#include <QRegion>
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

namespace leafund {

namespace {

using Channels = std::array<int, 3>;

constexpr int kChannelTolerance = 8;  // as where every pixel is compared

// Between Debian 12 and Debian 13 the mean colours of a text's place differ by up to 2.9.
constexpr double kLetterTolerance = 4;

Channels channels(const QImage& image, int x, int y) {
  const QRgb colour = reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
  return {qRed(colour), qGreen(colour), qBlue(colour)};
}

// Whether a pixel's colour lies between those of the other picture at its place and beside it.
bool isAround(const Channels& colour, const QImage& other, int x, int y) {
  Channels least = colour;
  Channels most = colour;
  least.fill(255);
  most.fill(0);
  for (int down = std::max(y - 1, 0); down <= std::min(y + 1, other.height() - 1); ++down) {
    for (int right = std::max(x - 1, 0); right <= std::min(x + 1, other.width() - 1); ++right) {
      const Channels there = channels(other, right, down);
      for (std::size_t i = 0; i < there.size(); ++i) {
        least[i] = std::min(least[i], there[i]);
        most[i] = std::max(most[i], there[i]);
      }
    }
  }
  for (std::size_t i = 0; i < colour.size(); ++i) {
    if (colour[i] < least[i] - kChannelTolerance || colour[i] > most[i] + kChannelTolerance) {
      return false;
    }
  }
  return true;
}

// The picture as approved wherever it need not be compared.
QImage withoutWhatMayDiffer(const QImage& approved, const QImage& now, const QRegion& letters) {
  QImage left = now;
  for (int y = 0; y < now.height(); ++y) {
    for (int x = 0; x < now.width(); ++x) {
      if (approved.pixel(x, y) == now.pixel(x, y)) continue;
      const bool isAlike =
          letters.contains(QPoint(x, y)) || (isAround(channels(now, x, y), approved, x, y) &&
                                             isAround(channels(approved, x, y), now, x, y));
      if (isAlike) left.setPixel(x, y, approved.pixel(x, y));
    }
  }
  return left;
}

double meanDifference(const QImage& first, const QImage& second, const QRect& place) {
  std::array<std::int64_t, 3> sums{};
  for (int y = place.top(); y <= place.bottom(); ++y) {
    for (int x = place.left(); x <= place.right(); ++x) {
      const Channels one = channels(first, x, y);
      const Channels other = channels(second, x, y);
      for (std::size_t i = 0; i < sums.size(); ++i) sums[i] += one[i] - other[i];
    }
  }
  const auto most = std::max({std::abs(sums[0]), std::abs(sums[1]), std::abs(sums[2])});
  return static_cast<double>(most) / (place.width() * place.height());
}

}  // namespace

std::optional<MaskedDifference> maskedDifferenceOf(const QImage& approved, const QImage& now,
                                                   const std::vector<QRect>& letters) {
  if (approved.size() != now.size()) return std::nullopt;
  const QImage first = approved.convertToFormat(QImage::Format_RGB32);
  const QImage second = now.convertToFormat(QImage::Format_RGB32);
  MaskedDifference found;
  QRegion masked;
  for (const QRect& each : letters) {
    const QRect place = each & first.rect();
    if (place.isEmpty()) continue;
    masked += place;
    found.letters = std::max(found.letters, meanDifference(first, second, place));
  }
  found.beside = *differenceOf(first, withoutWhatMayDiffer(first, second, masked));
  return found;
}

bool isTheSame(const MaskedDifference& difference) {
  return isTheSame(difference.beside) && difference.letters <= kLetterTolerance;
}

}  // namespace leafund
