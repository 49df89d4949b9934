// SPDX-License-Identifier: MIT
// How --help looks.
#pragma once

#include <CLI/CLI.hpp>
#include <memory>

namespace tovi::cli {

// For the whole program; call before commands are added, which inherit it.
void setHelpFormat(CLI::App& app);

}  // namespace tovi::cli
