#pragma once

#include <string_view>

namespace leafund {

// Stops the process over a programming error: one line "Leafund stopped: <place>: <reason>" on
// standard error, then abort(). `place` names the class or operation, `reason` what was wrong
// there; both are written as they are. Callable from any thread; neither throws nor allocates.
[[noreturn]] void fatalError(std::string_view place, std::string_view reason) noexcept;

}  // namespace leafund
