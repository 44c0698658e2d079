#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tests/window/FaultHosts.h"

namespace leafund {

// What becomes of the place that a picture was fetched for.
enum class Settled {
  Picture,  // It shows the new picture.
  Blank,    // It holds the new picture, whose header is good, and whose pixels cannot be made.
  Empty,    // It shows nothing any more.
  Kept,     // What was there stays.
  Waits,    // What was there stays, and the fetch is under way for as long as the host likes.
  Fatal     // The application stops.
};

enum class Place { Row, Detail, Update };

struct Fault {
  std::string name;
  std::string (*address)(FaultHosts& at);  // Sets it up, and tells where it is.
  Settled row, detail, update;

  Settled in(Place place) const {
    return place == Place::Row ? row : place == Place::Detail ? detail : update;
  }
};

const std::vector<Fault>& faults();

inline std::ostream& operator<<(std::ostream& out, const Fault& fault) { return out << fault.name; }
inline std::ostream& operator<<(std::ostream& out, Settled settled) {
  static constexpr const char* names[] = {"Picture", "Blank", "Empty", "Kept", "Waits", "Fatal"};
  return out << names[static_cast<int>(settled)];
}
inline std::ostream& operator<<(std::ostream& out, Place place) {
  return out << (place == Place::Row ? "Row" : place == Place::Detail ? "Detail" : "Update");
}

}  // namespace leafund
