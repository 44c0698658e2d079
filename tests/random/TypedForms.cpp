#include "tests/random/TypedTexts.h"

// What is typed into inputs that have rules of their own.
namespace leafund::random {

using namespace std::string_literals;

std::string drawnFrom(Chance& chance, std::string_view letters, std::size_t most) {
  std::string text;
  for (std::size_t left = chance.below(most + 1); left > 0; --left) {
    text += letters[chance.below(letters.size())];
  }
  return text;
}

std::string emailText(Chance& chance) {
  static const char* const kEmails[] = {
      "wren@example.org", "a@b",   "@b",  "a@b..c", "a b@c.d", "a@b.c\n", "a@-b.c", "a@b-.c",
      "`{|}~@x.y",        "a@b@c", ".@.", "a@b.",   "a@1.2",   "é@b.c",   "a@é.c",  "a.b.c@d.e.f"};
  if (chance.percent(50)) return chance.oneOf(kEmails);
  if (chance.percent(20)) return "a@" + std::string(60 + chance.below(6), 'b') + ".c";
  if (chance.percent(60)) return drawnFrom(chance, "ab1.-_`+@ ", 14);
  return anyText(chance);
}

std::string passwordText(Chance& chance) {
  static const std::string kPasswords[] = {"x",
                                           "abc",
                                           "abd",
                                           "\u00E9",
                                           "e\u0301",
                                           "\u212B",
                                           "\u00C5",
                                           "A\u030A",
                                           "\u2126",
                                           "\u03A9",
                                           "\u1EC7",
                                           "e\u0323\u0302",
                                           "e\u0302\u0323",
                                           "\u00EA\u0323",
                                           "\u1EB9\u0302",
                                           "\uAC01",
                                           "\u1100\u1161\u11A8",
                                           "\uAC00\u11A8",
                                           "fi",
                                           "\uFB01",
                                           "K",
                                           "\u212A",
                                           "k",
                                           "\xC3",
                                           "\xC3\xA9\xFF",
                                           "e\u0301\xFF",
                                           "\u01D6",
                                           "\u00FC\u0304",
                                           "u\u0308\u0304",
                                           "u\u0304\u0308",
                                           "\u0344",
                                           "\u0308\u0301",
                                           "s\u0323\u0307",
                                           "s\u0307\u0323",
                                           "\u1E69",
                                           "a\0b"s,
                                           "a\0c"s,
                                           "",
                                           "Error: Passwords Do Not Match"};
  return chance.percent(40) ? "x" : chance.oneOf(kPasswords);
}

std::string addressText(Chance& chance) {
  static const std::string kAddresses[] = {"http://pictures.example/a.jpg",
                                           "http://a",
                                           "foo",
                                           "a/b/c",
                                           "//host/path",
                                           "http://",
                                           "http:",
                                           "?q#f",
                                           "#",
                                           "http://[::1]/a",
                                           "http://[::1",
                                           "http://[1:2:3:4:5:6:7:8]",
                                           "http://[::ffff:1.2.3.4]:80/",
                                           "http://[v1.a:b]/",
                                           "http://[g::]",
                                           "http://a:80a/",
                                           "http://u:p@h:1/",
                                           "1http://a",
                                           "a b",
                                           "http://é/",
                                           "http://a/%41",
                                           "http://a/%4",
                                           "http://a/%zz",
                                           "http://a/\0"s,
                                           "a:b",
                                           "1:b",
                                           "./1:b",
                                           "mailto:x@y",
                                           "http://a/<b>",
                                           "http://a/\"",
                                           "http://a|b",
                                           "http://a/^",
                                           "http://a##",
                                           "http://999.1.1.1/",
                                           "http://[1::2::3]",
                                           "http://a@b@c/",
                                           "HTTP://A",
                                           "Error: Please Enter a URL",
                                           "javascript:alert(1)"};
  if (chance.percent(40)) return "http://pictures.example/" + drawnFrom(chance, "abc/%25.?=&", 10);
  if (chance.percent(50)) return chance.oneOf(kAddresses);
  if (chance.percent(60)) return drawnFrom(chance, "ab1:/?#[]@%2f.:-v;=", 16);
  if (chance.percent(50)) return "http://[" + drawnFrom(chance, "1a:.::", 20) + "]/";
  return anyText(chance);
}

}  // namespace leafund::random
