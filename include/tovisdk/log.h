// SPDX-License-Identifier: MIT
/// @file
/// The library's log, for hosts that write into it too. Where it goes: <tovisdk/log_control.h>.
///
/// A record is a time stamp, the level's word and the message, followed by two line ends:
/// `2024-05-01 09:03:07 info ToviTraffic::recv start`. The file is opened and closed for each
/// record, so a record is on disk when the call returns. Logging never fails the caller: where the
/// folder or the file cannot be written, or memory is out, the record is lost without notice. All
/// functions may be called from any thread.
#ifndef TOVISDK_LOG_H
#define TOVISDK_LOG_H

#include <tovisdk/export.h>
#include <tovisdk/log_control.h>

#include <string>

/// Write one record. `format` and the arguments are those of printf; the message is cut to 65534
/// bytes and ends at its first zero byte. The level's limit decides whether the record is written:
/// it is, as long as the threshold (see tovi_set_log_level) is at most info 0, debug 1, warnning 2,
/// error 3.
/// @{
TOVISDK_API void tovi_debug(std::string format, ...);
TOVISDK_API void tovi_info(std::string format, ...);
TOVISDK_API void tovi_warnning(std::string format, ...);
TOVISDK_API void tovi_error(std::string format, ...);
/// @}

/// The local time as "YYYY-MM-DD hh:mm:ss".
TOVISDK_API std::string get_current_time_s();

#endif
