# shellcheck shell=bash
# Installs what tools/packages lists. Sourced by tools/common.sh.

# Prints the packages of the named lists.
packagesOf() {
  local list
  for list in "$@"; do awk -v list="$list" '$1 == list { print $2 }' tools/packages; done | sort -u
}

isInstalled() { [[ $(dpkg-query -W -f '${db:Status-Abbrev}' "$1" 2>/dev/null) == ii* ]]; }
isKnown() { [[ -n $(apt-cache show --no-all-versions "$1" 2>/dev/null) ]]; }

# Those of the named lists of which no alternative is installed.
missingPackages() {
  local package alternative
  for package in $(packagesOf "$@"); do
    for alternative in ${package//|/ }; do isInstalled "$alternative" && continue 2; done
    say "$package"
  done
}

# The first of a package's alternatives that the system offers; the first of all where it offers none.
offered() {
  local alternative
  for alternative in ${1//|/ }; do isKnown "$alternative" && say "$alternative" && return; done
  say "${1%%|*}"
}

# Installs what is missing of the named lists, and nothing else.
installMissing() {
  if ! command -v dpkg-query >/dev/null; then
    say "This is no Debian system; needed are: $(packagesOf "$@" | xargs)"
    return
  fi
  local missing asRoot=() log=build/packages.log
  mapfile -t missing < <(missingPackages "$@")
  ((${#missing[@]})) || return 0
  ((EUID)) && asRoot=(sudo)
  if ((EUID)) && ! command -v sudo >/dev/null; then
    mapfile -t missing < <(for each in "${missing[@]}"; do offered "$each"; done)
    say "Packages are missing, and there is neither root nor sudo here. An administrator can say:"
    fail "apt-get install --no-install-recommends ${missing[*]}"
  fi
  mkdir -p build
  say "Asking for the lists of packages (log: $log)"
  "${asRoot[@]}" apt-get update >"$log" 2>&1
  mapfile -t missing < <(for each in "${missing[@]}"; do offered "$each"; done)
  say "Installing: ${missing[*]}"
  "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
    -o APT::Status-Fd=1 "${missing[@]}" 2>&1 | tee -a "$log" | progress
  ((PIPESTATUS[0] == 0)) && return
  tail -n 20 "$log"
  say "The packages could not be installed. An administrator can say:"
  fail "apt-get install --no-install-recommends ${missing[*]}"
}

# The same where the system offers them; where it does not, whoever needs them does without.
installOffered() {
  local package
  for package in $(missingPackages "$@"); do isKnown "$package" && installMissing "$@" && return; done
  return 0
}
