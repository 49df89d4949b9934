// SPDX-License-Identifier: MIT
// Exchanges in words.
#pragma once

#include <string>
#include <string_view>

#include "simulator/exchange.h"

namespace tovi::sim {

// "127.0.0.1:50312  setBrightness  level 80 (manual)  -> accepted   [des]"
std::string exchangeLine(std::string_view peer, const Exchange& exchange);

// The frames of an exchange taken apart, one field a line.
std::string exchangeFrames(const Exchange& exchange);

// Why a frame got no answer.
std::string dropLine(std::string_view peer, const Received& dropped);
std::string unreadableLine(std::string_view peer, const Received& frame, const Key& key);

}  // namespace tovi::sim
