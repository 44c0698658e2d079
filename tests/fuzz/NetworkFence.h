#pragma once

namespace leafund::fuzz {

// A host that answers anything can send a fetch anywhere. From now on whatever this process
// connects to on the machine itself is that port, everything else is refused, and no name has an
// address.
void fenceIn(int port);

}  // namespace leafund::fuzz
