#include "tests/random/Runner.h"
#include "tests/random/WindowSequence.h"

int main(int argc, char** argv) {
  using namespace leafund::random;
  return runRandomActions({.most = 150, .play = playInWindow}, argc, argv);
}
