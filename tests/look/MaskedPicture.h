#pragma once

#include <QRect>
#include <vector>

#include "tests/look/ApprovedPicture.h"

namespace leafund {

// How far a picture is from one that was approved with another text rendering, whose letters have
// other edges and whose lines may be higher or lower by parts of a pixel.
struct MaskedDifference {
  Difference beside;   // beside the letters, pixels that have no like within one pixel
  double letters = 0;  // of the mean colours of any place of letters, in any channel, 0 to 255
};

// The places are in pixels. In the mean colour of one, the amount and the colour of its letters
// show. Nothing when the sizes of the pictures differ.
std::optional<MaskedDifference> maskedDifferenceOf(const QImage& approved, const QImage& now,
                                                   const std::vector<QRect>& letters);

bool isTheSame(const MaskedDifference& difference);

}  // namespace leafund
