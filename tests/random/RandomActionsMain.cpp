#include "tests/random/Runner.h"

int main(int argc, char** argv) { return leafund::random::runRandomActions({}, argc, argv); }
