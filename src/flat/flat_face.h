// SPDX-License-Identifier: MIT
// <tovisdk/flat.h> for the functions' definitions. Hosts in other languages put any byte where C
// has a bool (-1 is common), and a compiler may take the lowest bit of one for the whole; so here
// it is what it is on the way, a byte.
#pragma once

#if defined(__clang__)
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif

#define bool unsigned char
#include <tovisdk/flat.h>
#undef bool

#if defined(__clang__)
#pragma clang diagnostic pop
#endif
