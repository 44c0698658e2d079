#include <gtest/gtest.h>
#include <malloc.h>

#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/NSURL.h"

namespace leafund {
namespace {

using namespace std::string_view_literals;

TEST(NSURLTest, TakesEveryUriReferenceAndKeepsItAsGiven) {
  for (const auto text : {
           "http://127.0.0.1:8765/bike.jpg"sv,
           "https://example.org/a/b%20c.png?x=1&y=%C3%A9#top"sv,
           "HTTP://Example.ORG/../a/./b"sv,
           "http://"sv,
           "http://example.org:/"sv,
           "http://user:word@[2001:db8::1]:80/"sv,
           "http://[::ffff:192.0.2.1]/"sv,
           "ftp://example.org"sv,
           "file:///etc/hosts"sv,
           "mailto:someone@example.org"sv,
           "foo"sv,
           "foo/bar.jpg"sv,
           "/bar"sv,
           "//example.org/bar"sv,
           "?x"sv,
           "#top"sv,
           "."sv,
           "urn:a:b"sv,
           "http://a/'()*,;"sv,
       }) {
    const auto url = NSURL::initWithString(text);
    ASSERT_TRUE(url) << text;
    EXPECT_EQ(url->absoluteString(), text);
  }
}

TEST(NSURLTest, RefusesWhatIsNoUriReference) {
  for (const auto text : {
           ""sv,
           " "sv,
           "not a url"sv,
           " http://example.org/"sv,
           "http://example.org/ "sv,
           "http://example.org/a b"sv,
           "http://example.org/\n"sv,
           "http://example.org/%"sv,
           "http://example.org/%4"sv,
           "http://example.org/%zz"sv,
           "http://example.org/é"sv,
           "http://example.org/\xFF"sv,
           "http://example.org/a\0b"sv,
           "http://example.org/\0"sv,
           "http://a:abc/"sv,
           "http://[::1/"sv,
           "http://[x]/"sv,
           "http://a/[x]"sv,
           "http://a/##"sv,
           "http://a/<b>"sv,
           "http://a/\"b\""sv,
           "http://a/{b}"sv,
           "http://a/b|c"sv,
           "http://a/b\\c"sv,
           "http://a/b^c"sv,
           "http://a/b`c"sv,
           "1http://a"sv,
           ":a"sv,
           "%"sv,
       }) {
    EXPECT_FALSE(NSURL::initWithString(text)) << text;
  }
}

TEST(NSURLTest, ReadsTheGivenRangeAndNotBeyondIt) {
  const auto text = "http://example.org/a b"sv;
  EXPECT_TRUE(NSURL::initWithString(text.substr(0, text.find(' '))));
}

TEST(NSURLTest, ACopyKeepsItsOwnText) {
  std::string text = "http://example.org/a";
  const auto url = NSURL::initWithString(text);
  text.assign(text.size(), '#');
  ASSERT_TRUE(url);
  EXPECT_EQ(url->absoluteString(), "http://example.org/a");
}

// A parser that recurses once a character would overflow the stack of 8 MB here.
TEST(NSURLTest, TakesATextOfAMegabyte) {
  struct Place {
    std::string_view before;
    std::string_view after;
  };
  for (const auto& [before, after] : {
           Place{"", ""},
           Place{"a:", ""},
           Place{"http://", "/"},
           Place{"http://u:", "@h"},
           Place{"http://[v1.", "]"},
           Place{"http://h/", ""},
           Place{"http://h/?", ""},
           Place{"http://h/#", ""},
       }) {
    for (const auto unit : {"a"sv, ","sv, "%41"sv, "."sv, "1"sv}) {
      std::string many;
      while (many.size() < 1000) many += unit;
      std::string text{before};
      while (text.size() < 1'000'000) text += many;
      text += after;
      // The one place without escapes is an address between brackets.
      const bool isUrl = after != "]" || unit.front() != '%';
      EXPECT_EQ(NSURL::initWithString(text).has_value(), isUrl) << before << unit;
    }
  }
}

TEST(NSURLTest, TakesAMillionPathSegments) {
  EXPECT_TRUE(NSURL::initWithString("http://h" + std::string(1'000'000, '/')));
}

TEST(NSURLTest, WhatTheParserNeededIsGivenBack) {
  const auto parse = [] { NSURL::initWithString("http://example.org/a/path/of/segments"); };
  parse();
  const auto before = mallinfo2().uordblks;
  for (int i = 0; i < 1000; ++i) parse();
  EXPECT_LT(mallinfo2().uordblks, before + 10'000);
}

}  // namespace
}  // namespace leafund
