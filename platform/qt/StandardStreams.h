#pragma once

namespace leafund {

// To be called before anything else of the program. A standard stream that was handed over closed
// is opened to nowhere: what opens next would otherwise take its number, and get its lines. And a
// pipe whose reader is gone must not kill us (SIGPIPE).
void secureStandardStreams();

}  // namespace leafund
