# SPDX-License-Identifier: MIT
# Sourced by the checks of packages, which get the build folder as $1: strict mode, a scratch folder
# that goes away, and what they share.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$(cd "$1" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() { echo "$*" >&2; exit 1; }

pack() {
  cpack --config "$build/CPackConfig.cmake" -B "$scratch/packed" >"$scratch/cpack.log" 2>&1 ||
    { cat "$scratch/cpack.log" >&2; fail 'cpack failed'; }
  rm -r "$scratch/packed/_CPack_Packages"
  ls -sh1 "$scratch/packed"
}

# unpack ARCHIVE: sets $tree to the one folder in it.
unpack() {
  mkdir "$scratch/archive"
  (cd "$scratch/archive" && cmake -E tar xf "$scratch/packed/$1")
  tree=$scratch/archive/$(basename "${1%.zip}" .tar.gz)
}

expect_files() {
  local folder=$1 file
  shift
  for file in include/tovisdk/{tovisdk,flat,export}.h \
              lib/pkgconfig/tovisdk.pc lib/cmake/tovisdk/tovisdk-config.cmake \
              share/doc/tovisdk/{LICENSE,README.md,CHANGELOG.md,docs/building.md,examples/c/first_call.c} \
              share/doc/tovisdk/licences/{cli11,nlohmann-json}.txt "$@"; do
    [[ -s $folder/$file ]] || fail "not in the package, or empty: $file"
  done
}

# Symbols for a debugger would make up nine tenths of a package, and tell where it was built.
expect_stripped() {
  local file
  for file in "$@"; do
    [[ $(objdump -h "$file") != *.debug_info* ]] || fail "not stripped: $file"
  done
}

# drive TOVISIM COMMAND...: against a simulated controller, and says which command works.
drive() {
  "$here/../examples/against_simulator" "$@" >"$scratch/output" 2>&1 ||
    { cat "$scratch/output" >&2; fail "does not work: ${*:2}"; }
  echo "works: ${*:2}"
}
