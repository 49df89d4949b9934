/// @file
/// The library's log: one text file per day, "tovisdk_YEAR-MONTH-DAY.txt", in the folder "log"
/// beside the host's executable.
///
/// A record is a time stamp, the level's word and the message, followed by two line ends:
/// `2024-05-01 09:03:07 info ToviTraffic::recv start`. The file is opened and closed for each
/// record, so a record is on disk when the call returns. Logging never fails the caller: where the
/// folder or the file cannot be written the record is lost without notice. All functions may be
/// called from any thread.
#ifndef TOVISDK_LOG_H
#define TOVISDK_LOG_H

#include <tovisdk/export.h>

#include <string>

/// Write one record. `format` and the arguments are those of printf; the message is cut to 65534
/// bytes. The level's limit decides whether the record is written: it is, as long as the threshold
/// (see tovi_set_log_level) is at most info 0, debug 1, warnning 2, error 3.
/// @{
TOVISDK_API void tovi_debug(std::string format, ...);
TOVISDK_API void tovi_info(std::string format, ...);
TOVISDK_API void tovi_warnning(std::string format, ...);
TOVISDK_API void tovi_error(std::string format, ...);
/// @}

/// The local time as "YYYY-MM-DD hh:mm:ss".
TOVISDK_API std::string get_current_time_s();

extern "C" {

/// Sets the threshold for the whole process: 0 (the default) writes every level, 1 silences info,
/// 2 debug as well, 3 warnings as well, 4 everything.
TOVISDK_API void tovi_set_log_level(int level);

/// Moves the log to another folder, given with or without its closing separator, in the local code
/// page; it is created on first use when only its last name is missing. Null or an empty text
/// returns to the default. A folder of more than 1000 bytes is refused and changes nothing.
TOVISDK_API void tovi_set_log_folder(const char* folder);

/// True writes "********" in place of key texts; false (the default) writes them in clear.
TOVISDK_API void tovi_set_log_redaction(bool redact);
}

#endif
