# Sourced by run and test: packages, and building with progress. Expects $root, the folder of the checkout.

packages=(
  cmake ninja-build g++                                  # native build
  g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64   # cross build
  wine wine64 fonts-wine fonts-liberation xvfb           # running what was built
  googletest catch2 clang libclang-rt-14-dev             # tests, benchmarks, fuzzing
  librsvg2-bin imagemagick python3                       # icons from drawings, scripts
)

missing_packages() {
  local package
  for package in "${packages[@]}"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || echo "$package"
  done
}

# Installs what is missing; without the right to, says what is needed and gives up.
require_packages() {
  local missing
  mapfile -t missing < <(missing_packages)
  [ ${#missing[@]} -eq 0 ] && return
  if [ "$(id -u)" -ne 0 ]; then
    echo "apt-get install --no-install-recommends ${missing[*]}"
    exit 1
  fi
  # One installation at a time, whatever else is being set up on this machine.
  (
    flock 9
    export DEBIAN_FRONTEND=noninteractive
    mapfile -t missing < <(missing_packages)
    [ ${#missing[@]} -eq 0 ] && exit
    apt-get -o DPkg::Lock::Timeout=600 update &&
      apt-get -o DPkg::Lock::Timeout=600 install -y --no-install-recommends "${missing[@]}"
  ) 9</etc/debian_version || { echo "The packages could not be installed: ${missing[*]}" >&2; exit 1; }
}

# build PRESET [TARGET ...]: configures where that has not been done, and builds.
build() {
  local preset=$1
  shift
  (
    flock 9
    cd "$root" || exit 1
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" || exit 1
    cmake --build --preset "$preset" ${1:+--target "$@"}
  ) 9>"$root/build/lock" || exit 1
}

set_up() {
  require_packages
  mkdir -p "$root/build"
}
