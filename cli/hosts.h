// SPDX-License-Identifier: MIT
// The file that names many controllers.
#pragma once

#include <string_view>
#include <vector>

#include "tools/endpoint.h"

namespace tovi::cli {

// One controller a line; "#" starts a comment. Throws Unusable with the line's number.
std::vector<tools::Endpoint> parseHosts(std::string_view text);

}  // namespace tovi::cli
