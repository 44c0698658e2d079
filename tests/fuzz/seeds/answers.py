"""What a picture host can answer, well and badly."""

from . import pictures

NEXT = b"\xfe\xfe"
OPEN, CLOSE, CLOSE_FOR_WRITING, RESET = 0, 4, 8, 12
PICTURE = pictures.WHOLE_GIF


def script(answers, ending=CLOSE, fetches=1, at_once=False, pieces=0, pauses=0):
    course = fetches - 1 | ending | (16 if at_once else 0)
    joined = answers if isinstance(answers, bytes) else NEXT.join(answers)
    return bytes([course, pieces | pauses << 3]) + joined


def answer(status=b"200 OK", *headers, body=PICTURE, length=None):
    said = b"Content-Length: %d" % (len(body) if length is None else length)
    lines = (b"HTTP/1.1 " + status, said, *headers)
    return b"".join(line + b"\r\n" for line in lines) + b"\r\n" + body


def raw(*lines, body=b""):
    return b"".join(line + b"\r\n" for line in lines) + b"\r\n" + body


def moved(to, status=b"302 Found"):
    return answer(status, b"Location: " + to, body=b"moved")


OK = raw(b"HTTP/1.1 200 OK")
CHUNKED = raw(b"HTTP/1.1 200 OK", b"Transfer-Encoding: chunked",
              body=b"5\r\nwhole\r\n3;a=b\r\nand\r\n0\r\nX: y\r\n\r\n")
GZIP = b"Content-Encoding: gzip"

CORPORA = {"stream": {
    "whole": script(answer()),
    "kept-open": script(answer(), OPEN),
    "four-kept-open": script([answer(), answer(body=b"2"), answer(body=b"3")], OPEN, 4),
    "four-at-once": script(answer(), OPEN, 4, at_once=True),
    "four-at-once-reset": script(answer(), RESET, 4, at_once=True),
    "bytewise": script(answer(), pieces=1, pauses=3),
    "in-threes": script(answer(), OPEN, 2, pieces=3, pauses=2),
    "until-closed": script(OK + PICTURE),
    "until-reset": script(OK + PICTURE, RESET),
    "half-closed": script(OK + PICTURE, CLOSE_FOR_WRITING),
    "nothing": script(b""),
    "nothing-reset": script(b"", RESET),
    "nothing-open": script(b"", OPEN),
    "empty": b"",
    "no-http": script(b"SSH-2.0-OpenSSH_9.2\r\n"),
    "http10": script(b"HTTP/1.0 200 OK\r\n\r\n" + PICTURE),
    "http09": script(PICTURE),
    "http2": script(b"HTTP/2 200\r\n\r\nx"),
    "status-only": script(b"HTTP/1.1 200\r\n\r\n"),
    "bare-newlines": script(b"HTTP/1.1 200 OK\nContent-Length: 2\n\nhi"),
    "folded": script(b"HTTP/1.1 200 OK\r\nX: a\r\n b\r\nContent-Length: 2\r\n\r\nhi"),
    "too-short": script(answer(length=5000)),
    "too-short-small": script(answer(length=500)),
    "too-short-reset": script(answer(length=500), RESET, pieces=7),
    "too-long": script(answer(body=b"x" * 1025)),
    "too-long-unsaid": script(OK + b"x" * 1500),
    "too-long-slowly": script(OK + b"x" * 1200, pieces=7, pauses=3),
    "too-long-in-chunks": script(raw(b"HTTP/1.1 200 OK", b"Transfer-Encoding: chunked", body=(
        b"c8\r\n" + 200 * b"x" + b"\r\n") * 6 + b"0\r\n\r\n"), OPEN, pieces=7, pauses=3),
    "just-fits": script(answer(body=b"x" * 1024)),
    "stray-bytes": script(answer() + b"stray", OPEN, 2),
    "two-in-one": script(answer(body=b"1") + answer(body=b"2"), OPEN, 2),
    "two-lengths": script(answer(b"200 OK", b"Content-Length: 3")),
    "negative-length": script(answer(length=-1)),
    "huge-length": script(answer(length=18446744073709551615)),
    "length-word": script(raw(b"HTTP/1.1 200 OK", b"Content-Length: many", body=b"x")),
    "chunked": script(CHUNKED, OPEN),
    "chunked-pieces": script(CHUNKED, pieces=2, pauses=3),
    "chunk-cut": script(raw(b"HTTP/1.1 200 OK", b"Transfer-Encoding: chunked", body=b"64\r\nonly")),
    "chunk-huge": script(raw(b"HTTP/1.1 200 OK", b"Transfer-Encoding: chunked",
                             body=b"ffffffffffffffff\r\nx")),
    "chunk-negative": script(raw(b"HTTP/1.1 200 OK", b"Transfer-Encoding: chunked",
                                 body=b"-5\r\nwhole\r\n0\r\n\r\n")),
    "chunk-word": script(raw(b"HTTP/1.1 200 OK", b"Transfer-Encoding: chunked", body=b"zz\r\nx")),
    "chunked-and-length": script(answer(b"200 OK", b"Transfer-Encoding: chunked",
                                        body=b"1\r\nx\r\n0\r\n\r\n")),
    "gzip": script(answer(b"200 OK", GZIP, body=b"no gzip")),
    "cookies": script(answer(b"200 OK", b"Set-Cookie: a=b; Path=/"), OPEN, 3),
    "close-said": script(answer(b"200 OK", b"Connection: close"), OPEN, 2),
    "continue": script(b"HTTP/1.1 100 Continue\r\n\r\n" + answer(), OPEN),
    "early-hints": script(raw(b"HTTP/1.1 103 Early Hints", b"Link: </x>") + answer()),
    "switching": script(raw(b"HTTP/1.1 101 Switching Protocols", b"Upgrade: h2c") + answer()),
    "no-content": script(raw(b"HTTP/1.1 204 No Content"), OPEN, 2),
    "not-modified": script(answer(b"304 Not Modified", body=b""), OPEN, 2),
    "not-found": script(answer(b"404 Not Found", body=b"There is no such picture.")),
    "server-error": script(answer(b"500 Oh", body=b"")),
    "unauthorised": script(answer(b"401 Who", b'WWW-Authenticate: Basic realm="x"'), OPEN),
    "digest": script(answer(b"401 Who", b'WWW-Authenticate: Digest realm="x", nonce="y"'), OPEN),
    "proxy": script(answer(b"407 Who", b"Proxy-Authenticate: Basic"), OPEN),
    "status-0": script(answer(b"0 None")),
    "status-999": script(answer(b"999 Odd")),
    "status-long": script(answer(b"20000000000 OK")),
    "moved-once": script([moved(b"/there"), answer()], OPEN),
    "moved-closed": script([moved(b"/there"), answer()]),
    "moved-always": script(moved(b"again"), OPEN),
    "moved-elsewhere": script([moved(b"http://127.0.0.1:1/"), answer()]),
    "moved-far": script(moved(b"http://192.0.2.1/x")),
    "moved-name": script(moved(b"http://pictures.example/x")),
    "moved-file": script(moved(b"file:///etc/hosts")),
    "moved-nowhere": script(answer(b"302 Found", body=b"nowhere")),
    "moved-badly": script(moved(b"http://[/")),
    "moved-user": script([moved(b"http://u:w@127.0.0.1/"), answer(b"401 Who",
                         b'WWW-Authenticate: Basic realm="x"')], OPEN),
    "moved-permanently": script([moved(b"//127.0.0.1/y", b"308 Moved"), answer()], OPEN, 2),
    "moved-safely": script([moved(b"https://127.0.0.1/"), b"\x15\3\1\0\2\2\x28"]),
    "long-header": script(answer(b"200 OK", b"X: " + 3000 * b"x")),
    "many-headers": script(answer(b"200 OK", *(b"A%d: b" % at for at in range(200)))),
    "nul-in-header": script(answer(b"200 OK", b"X: a\0b")),
    "no-colon": script(raw(b"HTTP/1.1 200 OK", b"nothing", b"Content-Length: 1", body=b"x")),
    "hsts": script(answer(b"200 OK", b"Strict-Transport-Security: max-age=9999"), OPEN, 3),
    "alt-svc": script(answer(b"200 OK", b'Alt-Svc: h2=":443"', b"Upgrade: h2c"), OPEN, 2),
}}
