"""What a user can type: amounts, addresses, e-mail addresses, passwords."""

AMOUNTS = (
    "25 25.50 25. .5 -3 -0 +5 007 1e3 1E+3 1e-50 1e400 -1e400 0x1p3 0X.8 0x1.8p-149 0x1p 0x "
    "inf -INF infinity infin nan -NaN nan(1) nan(_a9) nan( 1e 1e+ --5 +-5 . - 1.2.3 12a $25 25,00 "
    "1.000,50 1,000 twenty 16777217 0.1 3.4028235e38 3.4028236e38 1e-45 7e-46 1.17549435e-38 "
    "0.000000000000000000000000000000000000011754942107 0e99999999999999999999 0x0p99999999999 "
    "8.5070591730234615865843651857942052864e37 100000000000000000000000000000000000000.00e1"
).split()

URLS = (
    "http://127.0.0.1:8765/bike.jpg https://example.org/a/b%20c.png?x=1&y=%C3%A9#top "
    "HTTP://Example.ORG/../a/./b http:// http://example.org:/ http://u:w@[2001:db8::1]:80/ "
    "http://[::ffff:192.0.2.1]/ http://[1:2:3:4:5:6:7:8]/ http://[1:2:3:4:5:6:7::]/ http://[::]/ "
    "http://[1::8]/ http://[1:2:3:4:5:6:1.2.3.4]/ http://[1:2:3:4:5:6:7::8]/ http://[:1]/ "
    "http://[v1.a:b] http://[V1.a] http://[v.a] http://[::1 http://[x]/ http://[fe80::1%25eth0]/ "
    "http://[::1.2.3.256]/ http://[::01.2.3.4]/ ftp://e.org file:///etc/hosts mailto:a@b.c foo "
    "foo/bar.jpg foo:bar ./foo:bar /bar //e.org/bar ?x #top . urn:a:b http://a/'()*,; a+b-c.1:x "
    "http://e.org/% http://e.org/%4 http://e.org/%zz http://e.org/\u00e9 http://a:abc/ "
    "http://a/[x] http://a/## http://a/<b> http://a/b|c http://a@b@c/ http://@/ 1http://a :a % // "
    "/// a:// a:/// a:/b//c http://1.2.3.4.5/ http://256.1.1.1/ http://a:65536/"
).split()

EMAILS = (
    "jane.doe@example.org a@b a@b.c.d.e 1@2.3 !#$%&'*+/=?^_`{|}~-@x a@b-c a@b--c.d @b a@ a@b..c "
    "a@.b a@b. a@-b a@b- a@b-.c a@b@c a.b jane@ex\u00e4mple.org j\u00e4ne@example.org a@b_c ..@b"
).split() + ["a b@c", "a@b ", "a@b\n", "a@b\0", "", "a@" + 63 * "l", "a@" + 64 * "l",
             "a@b." + 63 * "l" + ".c", "a@b." + 61 * "-" + "c", "a@x" + 61 * "-" + "c",
             "a@x" + 62 * "-" + "c",
             # Of a length at which the form is asked, too.
             "abcdefg@" + 64 * "l", "abcdefgh@" + 63 * "l", "abcde@b." + 64 * "l", "abcd@b.c",
             "ab@b..cd"]

# Two passwords each.
PASSWORDS = (
    ("\u00e9", "e\u0301"), ("\u212b", "\u00c5"), ("\u2126", "\u03a9"), ("\uac00", "\u1100\u1161"),
    ("\uac01", "\u1100\u1161\u11a8"), ("\u0958", "\u0915\u093c"), ("a\u0323\u0307", "a\u0307\u0323"),
    ("\u1e69", "s\u0323\u0307"), ("\u1e69", "\u1e61\u0323"), ("\u0344", "\u0308\u0301"),
    ("\u0f73", "\u0f71\u0f72"), ("\ufb01", "fi"), ("A", "a"), ("\uff21", "A"), ("x", "x"), ("", ""),
    ("\U0001d15e", "\U0001d157\U0001d165"), ("\U0002f800", "\u4e3d"), ("\u2000", "\u2002"),
    ("e\u0301\u0301", "\u00e9\u0301"), ("\u0301e", "e\u0301"), ("a\u034f\u0301", "a\u0301"),
    ("o\u0302\u0323\u0301", "\u1ed9\u0301"), ("\u304c", "\u304b\u3099"), ("\x00a", "a"),
)

BROKEN = {
    "not-utf8": b"\xc3\xff\xc3\xa9", "overlong": b"\xc0\x80\xff\x00", "surrogate": b"\xed\xa0\x80",
    "beyond": b"\xf4\x90\x80\x80", "cut": b"e\xcc\xffe\xcc\x81", "alone": b"\xff",
}


def numbered(inputs, *others):
    found = {f"{at:02}": content for at, content in enumerate(inputs)}
    for other in others:
        found.update(other)
    return found


CORPORA = {
    "amount": numbered(
        (text.encode() for text in AMOUNTS),
        {"blank-before": b" 25", "blank-behind": b"25 ", "tab": b"2\t5", "nul": b"12\0", "none": b"",
         "full-width": "\uff11\uff12".encode(), "no-utf8": b"25\xff", "long": 300 * b"9",
         "float-huge": b"\xff\xff\x7f\x7f", "float-nan": b"\x01\0\xc0\xff", "float-tie": b"\0\0\0\x3e"},
    ),
    "url": numbered((text.encode() for text in URLS), {
        "blank": b"http://e.org/a b", "nul": b"http://e.org/\0", "none": b"", "byte": b"http://a/\xff"}),
    "email": numbered(text.encode() for text in EMAILS),
    "equivalence": numbered(
        (one.encode() + b"\xff" + other.encode() for one, other in PASSWORDS), BROKEN),
}
