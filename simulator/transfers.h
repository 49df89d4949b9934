// Files that come in: the name, numbered chunks, and the controller's word at the end.
#pragma once

#include "simulator/handlers.h"

namespace tovi::sim {

Answer confirmUpload(Upload& upload, Session& session);
Answer refuseUpload(Upload& upload);

}  // namespace tovi::sim
