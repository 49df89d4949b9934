// SPDX-License-Identifier: MIT
// The controller's word on a file that has come in whole.
#pragma once

#include "simulator/handlers.h"

namespace tovi::sim {

Answer confirmUpload(Upload& upload, Session& session);
Answer refuseUpload(Upload& upload);

}  // namespace tovi::sim
