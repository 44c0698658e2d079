#pragma once

#include <QImage>
#include <filesystem>
#include <optional>
#include <string>

namespace leafund {

// How far a picture is from the approved one.
struct Difference {
  double share = 0;  // of the pixels that count as different, 0 to 1
  int greatest = 0;  // in any channel of any pixel, 0 to 255
  QImage picture;    // what differs in red, over the approved picture made pale
};

// Nothing when their sizes differ.
std::optional<Difference> differenceOf(const QImage& approved, const QImage& now);

// Whether a reader would take both for the same. The figures and where they come from stand in the
// source.
bool isTheSame(const Difference& difference);

// As small as this format gets without losing anything.
bool save(const QImage& picture, const std::filesystem::path& path);

}  // namespace leafund
