# What the scripts share. To be sourced, from bash.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() { printf '\n== %s\n' "$*"; }

# The machine types to build for besides the host's, as Debian names them, and the names of their
# compilers.
declare -A cross_triplets=(
  [arm64]=aarch64-linux-gnu
  [armhf]=arm-linux-gnueabihf
  [i386]=i686-linux-gnu
  [s390x]=s390x-linux-gnu
)
cross_arch_choice="arm64|armhf|i386|s390x"
is_cross_arch() { [[ $1 && -v cross_triplets[$1] ]]; }

# Installs the Debian packages that are missing.
need() {
  local missing=() package sudo=()
  for package in "$@"; do
    dpkg-query --show --showformat '${db:Status-Status}' "$package" 2>/dev/null \
      | grep -qx installed || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "To be installed by root: ${missing[*]}" >&2; exit 1; }
    sudo=(sudo)
  fi
  say "Installing ${missing[*]}"
  "${sudo[@]}" apt-get update -qq
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# What the benchmarks are built with, the peers and callgrind among it.
bench_packages=(libbenchmark-dev nanopb libnanopb-dev protobuf-c-compiler libprotobuf-c-dev
  libprotozero-dev valgrind)

need_build_tools() { need g++ cmake ninja-build protobuf-compiler libprotobuf-dev zlib1g-dev "$@"; }

# build PRESET [TARGET...]
build() {
  local preset=$1
  shift
  say "Building ($preset)"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" ${1:+--target "$@"}
}

# build_and_test PRESET
build_and_test() {
  build "$1"
  say "Testing ($1)"
  ctest --preset "$1" --parallel "$(nproc)"
}
