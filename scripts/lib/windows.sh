# SPDX-License-Identifier: MIT
# Sourced after setup.sh by the scripts for Windows.

WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix cmake ninja-build make perl dpkg-dev
  libcli11-dev nlohmann-json3-dev googletest)
WINE_PACKAGES=(wine wine64 locales)
WINDOWS_BUILD=build/windows

# What a Windows build links: libcrypto, GoogleTest and header-only libraries. Made once, kept
# outside the source tree, one for each way to make it.
WINDOWS_CACHE=${TOVISDK_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/tovisdk}/windows
WINDOWS_PREFIX=$WINDOWS_CACHE/prefix-$(sha256sum scripts/lib/make-windows-prefix \
  cmake/toolchains/mingw-w64-x86_64.cmake | sha256sum | head -c 12)

# Whole or not at all: an interrupted run leaves no prefix behind.
make_windows_prefix() {
  [[ -d $WINDOWS_PREFIX ]] && return
  mkdir -p "$WINDOWS_CACHE"
  local work
  work=$(mktemp -d "$WINDOWS_CACHE/work.XXXXXX")
  if ! scripts/lib/make-windows-prefix "$work"; then
    rm -rf "$work"
    return 1
  fi
  mv -T "$work/prefix" "$WINDOWS_PREFIX"
  rm -rf "$work"
}
