// SPDX-License-Identifier: MIT
#include <tovisdk/version.h>

#define TOVI_TEXT_OF(number) #number
#define TOVI_VERSION_TEXT(major, minor, patch) \
  TOVI_TEXT_OF(major) "." TOVI_TEXT_OF(minor) "." TOVI_TEXT_OF(patch)

const char* tovi_version(void) {
  return TOVI_VERSION_TEXT(TOVISDK_VERSION_MAJOR, TOVISDK_VERSION_MINOR, TOVISDK_VERSION_PATCH);
}
