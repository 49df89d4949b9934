# SPDX-License-Identifier: MIT
# Sourced by the scripts: strict mode, the project's root as working folder, and installing what is
# missing. Debian 12 is what we know the package names of.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

TOOL_PACKAGES=(g++ ccache cmake ninja-build libssl-dev libcli11-dev nlohmann-json3-dev)
TEST_PACKAGES=(libgtest-dev python3 mono-mcs libmono-i18n-cjk4.0-cil)
CHECK_PACKAGES=(clang clang-format clang-tidy libclang-rt-14-dev pkg-config dpkg-dev file)

install_missing() {
  local package missing=()
  for package in "$@"; do
    dpkg-query -W -f '${Status}\n' "$package" 2>/dev/null | grep -q '^install ok installed$' ||
      missing+=("$package")
  done
  [[ ${#missing[@]} -eq 0 ]] && return
  local as_root=()
  [[ $(id -u) -eq 0 ]] || as_root=(sudo)
  echo "Installing ${missing[*]}"
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

# What was compiled once is not compiled again, in whichever clone it was: the scripts build through
# ccache. The sloppiness is what precompiled headers and files that cmake has just written want.
export CMAKE_C_COMPILER_LAUNCHER=${CMAKE_C_COMPILER_LAUNCHER-ccache}
export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_ctime,include_file_mtime
if [[ -n ${TOVISDK_CACHE:-} ]]; then
  export CCACHE_DIR=${CCACHE_DIR:-$TOVISDK_CACHE/ccache}
fi

# A Chinese locale of our own, from which Wine takes its code page: few systems have one.
use_test_locales() {
  export LOCPATH=$PWD/build/locales
  mkdir -p "$LOCPATH"
  [[ -d $LOCPATH/zh_CN.UTF-8 ]] || localedef -i zh_CN -f UTF-8 "$LOCPATH/zh_CN.UTF-8"
}
