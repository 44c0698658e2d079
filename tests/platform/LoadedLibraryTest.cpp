#include <gtest/gtest.h>

#include <cmath>

#include "platform/foundation/LoadedLibrary.h"

namespace leafund {
namespace {

using Cosine = double(double);

struct Mathematics : LoadedLibrary {
  explicit Mathematics(const char* fileName, const char* name)
      : LoadedLibrary(fileName), missing(function(name)) {}

  Cosine* missing;
  Cosine* cosine = function("cos");
};

TEST(LoadedLibraryTest, ItsFunctionsAreCalled) {
  const Mathematics library("libm.so.6", "sin");
  ASSERT_TRUE(library.isThere());
  EXPECT_EQ(library.failure(), "");
  EXPECT_EQ(library.cosine(0), 1);
}

TEST(LoadedLibraryTest, WhereThereIsNoneAllFunctionsAreNull) {
  const Mathematics library("libnowhere.so.1", "sin");
  EXPECT_FALSE(library.isThere());
  EXPECT_NE(library.failure().find("libnowhere.so.1"), std::string::npos) << library.failure();
  EXPECT_EQ(library.missing, nullptr);
  EXPECT_EQ(library.cosine, nullptr);
}

struct Changing : Mathematics {
  static inline const char* fileName = "libnowhere.so.1";
  Changing() : Mathematics(fileName, "sin") {}
};

TEST(LoadedLibraryTest, WhatIsNotThereIsLoadedAnewAndWhatIsThereIsNot) {
  EXPECT_FALSE(loaded<Changing>()->isThere());
  Changing::fileName = "libm.so.6";
  const auto first = loaded<Changing>();
  EXPECT_TRUE(first->isThere());
  EXPECT_EQ(loaded<Changing>(), first);
}

TEST(LoadedLibraryTest, AFunctionThatIsMissingIsAFailureWhateverComesBehindIt) {
  const Mathematics library("libm.so.6", "cosineOfTheFuture");
  EXPECT_FALSE(library.isThere());
  EXPECT_NE(library.failure().find("cosineOfTheFuture"), std::string::npos) << library.failure();
  EXPECT_EQ(library.missing, nullptr);
}

}  // namespace
}  // namespace leafund
