# Shared by ./run and ./test: messages, packages, builds. Sourced, from the project's folder.

# Progress goes to standard error: standard output is for results.
say() { printf '%s\n' "$*" >&2; }

# A step that may take long: says what and roughly how long, and shows its output only when it fails.
quietly() {
  local what=$1 log
  shift
  log=$(mktemp)
  if "$@" >"$log" 2>&1; then
    rm -f "$log"
  else
    local status=$?
    say "$what failed; its last lines:"
    tail -n 40 "$log" >&2
    rm -f "$log"
    return $status
  fi
}

# may_have_packages NAME...: whether these Debian packages are installed or can be. What is missing is
# left in `missing`, and in `as_root` what installs it.
may_have_packages() {
  local name
  missing=() as_root=()
  for name in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Abbrev}' "$name" 2>/dev/null)" = "ii " ] || missing+=("$name")
  done
  [ ${#missing[@]} -gt 0 ] && [ "$(id -u)" -ne 0 ] || return 0
  if sudo -n true 2>/dev/null; then
    as_root=(sudo)
  else
    say "Packages are missing. As root: apt-get install ${missing[*]}"
    return 1
  fi
}

# need_packages NAME...: installs the Debian packages that are missing.
need_packages() {
  local missing as_root
  may_have_packages "$@" || return 1
  [ ${#missing[@]} -gt 0 ] || return 0
  say "Installing packages, a few minutes the first time: ${missing[*]}"
  quietly "apt-get update" "${as_root[@]}" apt-get update &&
    quietly "apt-get install" "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y --no-install-recommends "${missing[@]}"
}

build_packages=(g++ binutils-mingw-w64-i686 cmake ninja-build libcli11-dev
  nlohmann-json3-dev libasio-dev libutfcpp-dev libstb-dev)

# build PRESET [TARGET...]: configures and builds; incremental.
build() {
  local preset=$1 target targets=()
  shift
  for target in "$@"; do targets+=(--target "$target"); done
  [ -f "build/$preset/build.ninja" ] || say "Building $preset (the first time takes a minute or two)"
  quietly "configuring $preset" cmake --preset "$preset" || return 1
  if [ -t 2 ]; then
    cmake --build --preset "$preset" "${targets[@]}" >&2  # on a terminal ninja keeps to one line
  else
    quietly "building $preset" cmake --build --preset "$preset" "${targets[@]}"
  fi
}
