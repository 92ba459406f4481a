# Sourced by run, test and package: packages, and building with progress. Expects $root, the folder of the checkout.

packages=(
  cmake ninja-build g++                                  # native build
  g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64   # cross build
  wine wine64 fonts-wine fonts-liberation xvfb           # running what was built
  fonts-vlgothic                                         # Japanese texts
  googletest catch2 clang libclang-rt-14-dev llvm lld    # tests, benchmarks, fuzzing, import libraries
  gdb                                                    # the debugger's views
  librsvg2-bin python3                                   # icons from drawings, scripts
  doxygen                                                # the reference
  pkgconf                                                # hosts that are built by hand
)

trap 'echo; echo "Interrupted." >&2; exit 130' INT

# fail WORDS: says in one line why this cannot go on.
fail() {
  echo "$(basename "$0"): $*" >&2
  exit 1
}

# help_where_asked ARGUMENTS: prints the comment that the command begins with, if the first argument asks for it.
help_where_asked() {
  [ "$1" = --help ] || [ "$1" = -h ] || return
  sed -n '2,/^[^#]/ s/^# \{0,1\}//p' "$0"
  exit 0
}

missing_packages() {
  local package
  for package in "${packages[@]}"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || echo "$package"
  done
}

# Installs what is missing; without the right to, says what is needed and gives up.
require_packages() {
  local missing
  command -v dpkg-query >/dev/null || fail "needs the packages of Debian 12: ${packages[*]}"
  mapfile -t missing < <(missing_packages)
  [ ${#missing[@]} -eq 0 ] && return
  [ "$(id -u)" -eq 0 ] ||
    fail "packages are missing; as root run: apt-get update && apt-get install --no-install-recommends ${missing[*]}"
  # One installation at a time, whatever else is being set up on this machine.
  (
    flock 9
    export DEBIAN_FRONTEND=noninteractive
    mapfile -t missing < <(missing_packages)
    [ ${#missing[@]} -eq 0 ] && exit
    apt-get -o DPkg::Lock::Timeout=600 update &&
      apt-get -o DPkg::Lock::Timeout=600 install -y --no-install-recommends "${missing[@]}"
  ) 9</etc/debian_version || fail "the packages could not be installed: ${missing[*]}"
}

# Everything that is made goes into the folder build.
require_build_folder() {
  mkdir -p "$root/build" 2>/dev/null
  [ -d "$root/build" ] && [ -w "$root/build" ] ||
    fail "the folder $root/build cannot be written to; use a checkout of your own"
}

# one_at_a_time FD FILE WHAT: holds the lock FILE on FD, and says so when it has to be waited for.
one_at_a_time() {
  { eval "exec $1>\"\$2\""; } 2>/dev/null || fail "$2 cannot be written to; another user has made it"
  flock -n "$1" && return
  echo "Waiting for another $3 in this checkout to end."
  flock "$1"
}

# build PRESET [TARGET ...]: configures where that has not been done, and builds.
build() {
  local preset=$1
  shift
  (
    one_at_a_time 9 "$root/build/lock" build
    cd "$root" || exit 1
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" || exit 1
    cmake --build --preset "$preset" ${1:+--target "$@"}
  ) 8>&- || exit
}

set_up() {
  require_packages
  require_build_folder
}
