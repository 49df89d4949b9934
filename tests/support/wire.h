// SPDX-License-Identifier: MIT
// Frames as the wire has them, built by a second hand: tests write what a frame carries, and this
// adds the rest without any code of the library.
#pragma once

#include <string>
#include <string_view>

namespace tovi::test {

// "07 02 50" (command byte, then payload) as a whole frame.
std::string frame(std::string_view hexText);

// The other way round: the command byte and the unescaped payload of a frame, as "07 02 50". A
// frame that is not whole gives a text that says so.
std::string unframe(std::string_view frame);

}  // namespace tovi::test
