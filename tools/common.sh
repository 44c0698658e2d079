# shellcheck shell=bash
# What the commands that build, serve or start something share. Sourced by bash, from the top of the tree.

# Without a locale Qt 6.8 warns of one that is not UTF-8, and any warning fails a test.
[[ $(locale charmap 2>/dev/null) == UTF-8 ]] || export LC_ALL=C.UTF-8

. tools/install.sh

say() { printf '%s\n' "$*"; }
fail() { printf '%s: %s\n' "${0##*/}" "$*" >&2; exit 1; }

# The command's head comment is its usage. A path it is given counts from where it was called.
calledFrom=$OLDPWD
pathOf() { (cd "$calledFrom" && realpath -m -- "$1"); }
usage() { sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$(pathOf "$0")"; }
misused() { usage >&2; exit 2; }
[[ " $* " =~ " "(-h|--help)" " ]] && { usage; exit 0; }

# Every process and folder made on the way is noted here and ended by endEverything, in reverse.
started=()
folders=()

# Runs a command as a process group of its own, so that its children end with it; sets $job.
start() {
  setsid -- "$@" &
  job=$!
  started=("$job" "${started[@]}")
}

# Ends the last process started.
endLast() {
  kill -TERM -- "-${started[0]}" 2>/dev/null || kill -TERM "${started[0]}" 2>/dev/null
  wait "${started[0]}" 2>/dev/null
  started=("${started[@]:1}")
}

endEverything() {
  trap '' INT TERM HUP  # a second Ctrl-C must not leave half of them behind
  while ((${#started[@]})); do endLast; done
  ((${#folders[@]})) && rm -rf "${folders[@]}"
  folders=()
}

endEverythingAtExit() {
  trap endEverything EXIT
  trap 'exit 130' INT
  trap 'exit 143' TERM HUP
}

# Runs a command to its end, but lets an interruption through at once.
await() {
  local status
  start "$@"
  wait "$job"
  status=$?
  started=("${started[@]:1}")  # its number may soon be somebody else's
  return $status
}

# Says every quarter of a minute how far what it reads has come: apt's installing, or ninja's building.
progress() {
  local line stage='' said=$SECONDS
  while read -r line; do
    [[ $line =~ ^dlstatus:.*:([0-9]+)\.[0-9]+: ]] && stage="downloaded ${BASH_REMATCH[1]} %"
    [[ $line =~ ^pmstatus:.*:([0-9]+)\.[0-9]+: ]] && stage="installed ${BASH_REMATCH[1]} %"
    [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]] && stage="built ${BASH_REMATCH[1]} of ${BASH_REMATCH[2]}"
    [[ -n $stage ]] && ((SECONDS - said >= 15)) && say "  $stage" && said=$SECONDS
  done
}

# Runs a command to its end, with what it says added to a log; says how far it is.
awaitLogged() {
  local log=$1 out copying status
  exec {out}> >(tee -a "$log" | progress)
  copying=$!
  await "${@:2}" >&"$out" 2>&1
  status=$?
  exec {out}>&-
  wait "$copying"
  return $status
}

# Builds a preset in a folder: the targets named, "all" among them; the rest goes to CMake.
buildTree() {
  local preset=$1 folder=$2 targets=$3 log=$2/build.log
  mkdir -p "$folder"
  say "Building in $folder (log: $log)"
  : >"$log"
  # shellcheck disable=SC2086 # a list
  awaitLogged "$log" cmake --preset "$preset" -B "$folder" "${@:4}" &&
    awaitLogged "$log" cmake --build "$folder" --target $targets && return
  grep -E -A 8 'error:|FAILED:|CMake Error' "$log" | head -60
  fail "the build failed"
}

# The newest version of a tool of LLVM that is there.
newest() {
  local version
  for version in {40..14}; do command -v "$1-$version" && return; done
}

# Two clones on one machine do not meet: each build folder has a port of its own, from its path.
ownPort() { say $((20000 + $(cksum <<<"$PWD/$1" | cut -d' ' -f1) % 10000)); }

# The picture host that a build folder was configured with, or its own.
configuredHost() {
  local address
  address=$(sed -n 's/^LEAFUND_PICTURE_HOST:[A-Z]*=//p' "$1/CMakeCache.txt" 2>/dev/null)
  say "${address:-http://127.0.0.1:$(ownPort "$1")}"
}

# The last line of what is served at /word on a port.
wordAt() {
  {
    exec 4<>"/dev/tcp/127.0.0.1/$1"
    printf 'GET /word HTTP/1.0\r\n\r\n' >&4
    timeout 2 tail -n 1 <&4
  } 2>/dev/null
}

# True when what answers on a port is the host just started: it alone knows the word.
answersWith() {
  local word=$1 port=$2
  for _ in {1..50}; do
    [[ $(wordAt "$port") == "$word" ]] && return 0
    kill -0 "$job" 2>/dev/null || return 1  # the port was taken
    sleep 0.1
  done
  return 1
}

# Starts the picture host of a build folder, on another port when its own is taken, and sets
# $pictureHost, and $served, the folder that it serves. Before the build, because the address is
# compiled in. The types of files that it is to know besides its own may be named.
startPictureHost() {
  local build=$1 types=${2:-/dev/null} word port
  pictureHost=$(configuredHost "$build")
  if [[ $pictureHost != http://127.0.0.1:* ]]; then
    say "Pictures come from $pictureHost"
    return
  fi
  mkdir -p "$build"
  served=$(mktemp -d "$PWD/$build/pictures.XXXXXX")
  folders+=("$served")
  word=$(od -An -N16 -tx1 /dev/urandom | tr -d ' ')
  say "$word" >"$served/word"
  ln -s "$PWD"/pictures/*.jpg "$served/"
  port=${pictureHost##*:}
  for _ in {1..20}; do
    pictureHost=http://127.0.0.1:$port
    start busybox httpd -f -vv -c "$types" -p "127.0.0.1:$port" -h "$served" 2>"$build/pictures.log"
    answersWith "$word" "$port" && return
    endLast
    say "Port $port is taken by something else; trying the next one."
    port=$((20000 + (port - 19999) % 10000))
  done
  fail "no free port for the picture host"
}

# Waits until a server has written its address into a file, or has made the socket of that name.
written() {
  for _ in {1..100}; do
    [[ -s $1 || -S $1 ]] && return 0
    sleep 0.1
  done
  fail "$2 did not start"
}

# What is the same for everything that walks through the app: a folder $state for the servers around
# it, and nothing of the user's own session.
prepareWalk() {
  state=$(mktemp -d)
  folders+=("$state")
  chmod 700 "$state"
  export XDG_RUNTIME_DIR=$state GSETTINGS_BACKEND=memory LC_ALL=C.UTF-8
  export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
  unset WAYLAND_DISPLAY
}

# Names and places of controls come over the accessibility bus; a private one, so that no other
# program's windows are on it.
openBuses() {
  start dbus-daemon --session --nofork --nopidfile --print-address=3 3>"$state/bus" \
    >"$state/bus.log" 2>&1
  written "$state/bus" "the session bus"
  DBUS_SESSION_BUS_ADDRESS=$(<"$state/bus")
  export DBUS_SESSION_BUS_ADDRESS
  # Asking for the accessibility bus starts it, and is answered when it is there.
  dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress \
    >"$state/accessibility" || fail "the accessibility bus did not start"
}

# A virtual screen of X of that size, which Qt's programs then open on.
openX11() {
  rm -f "$state/display"
  start Xvfb -displayfd 3 -screen 0 "${1}x24" -nolisten tcp 3>"$state/display" 2>"$state/screen.log"
  written "$state/display" "the virtual screen"
  unset WAYLAND_DISPLAY
  export DISPLAY QT_QPA_PLATFORM=xcb
  DISPLAY=:$(<"$state/display")
}

# A Wayland screen of that size that nobody sees, with that shell: the kiosk makes each window as large as
# the screen, but draws none where there is no keyboard; the desktop draws them.
openWayland() {
  rm -f "$state/wayland"*
  start weston --backend=headless-backend.so --shell="$2-shell.so" --no-config --idle-time=0 \
    --socket=wayland --width="${1%x*}" --height="${1#*x}" >"$state/screen.log" 2>&1
  written "$state/wayland" "the Wayland screen"
  unset DISPLAY
  # Qt 6.4 looks for the keyboard of a desktop that offers to help with typing, and ends where there is none.
  export WAYLAND_DISPLAY=wayland QT_QPA_PLATFORM=wayland QT_IM_MODULE=compose
}

# Starts the app so that it takes fingers (tools/finger.py) on the port in $fingers.
startWithFingers() {
  fingers=$(python3 -c 'import sys; sys.path.insert(0, "tools"); import finger; print(finger.free_port())')
  # On Wayland no window has the focus where there is no keyboard.
  QT_TUIOTOUCH_DELIVER_WITHOUT_FOCUS=1 QT_QPA_GENERIC_PLUGINS=tuiotouch:udp=$fingers start "$@"
}
