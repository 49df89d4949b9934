// SPDX-License-Identifier: MIT
#include <tovisdk/flat.h>

/* Something of it must be usable, too. */
const char* switchOn(void);
const char* switchOn(void) { return setPower("127.0.0.1", 5005, true); }
