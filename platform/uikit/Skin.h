#pragma once

namespace leafund {

// What a host hangs on a view to show it. At most one a view. It hears of changes only at the end
// of a turn, never in the middle of logic.
class Skin {
 public:
  Skin() = default;
  Skin(const Skin&) = delete;
  Skin& operator=(const Skin&) = delete;
  virtual ~Skin() = default;
  virtual void refresh() = 0;
};

}  // namespace leafund
