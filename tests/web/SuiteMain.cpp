#include <gmock/gmock.h>

#include <array>
#include <cstdlib>
#include <string>

#include "platform/web/Bridge.h"

// Runs the one test of that name, or prints the names of all when it is empty. Answers 0 when all
// is well.
LEAFUND_TO_PAGE(runTest) int runTest(char* name, std::size_t size) {
  std::string option =
      size == 0 ? "--gtest_list_tests" : "--gtest_filter=" + std::string(name, size);
  std::free(name);
  std::string program = "suite";
  std::array<char*, 3> arguments{program.data(), option.data(), nullptr};
  int count = 2;
  testing::InitGoogleMock(&count, arguments.data());
  return RUN_ALL_TESTS();
}
