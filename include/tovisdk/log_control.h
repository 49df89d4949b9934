// SPDX-License-Identifier: MIT
/// @file
/// What a host may say about the log and the library's other words, from any language. Compiles as
/// C99 and as C++.
///
/// The log is one text file per day, "tovisdk_YEAR-MONTH-DAY.txt", in the folder "log" beside the
/// host's executable; where that folder is not known, nothing is written. Key texts stand in it in
/// clear unless the host asks for asterisks, so its files are readable by their owner alone (mode
/// 0600; on Windows with the rights of the folder). All functions hold for the whole process and
/// may be called from any thread.
#ifndef TOVISDK_LOG_CONTROL_H
#define TOVISDK_LOG_CONTROL_H

#include <tovisdk/export.h>
#include <tovisdk/version.h>

#ifdef __cplusplus
extern "C" {
#else
#include <stdbool.h>
#endif

/// Sets the threshold: 0 (the default) writes every level, 1 silences info, 2 debug as well, 3
/// warnings as well, 4 everything.
TOVISDK_API void tovi_set_log_level(int level);

/// Moves the log to another folder, given with or without its closing separator, in the local code
/// page; it is created on first use when only its last name is missing. Null or an empty text
/// returns to the default. A folder of more than 1000 bytes is refused and changes nothing.
TOVISDK_API void tovi_set_log_folder(const char* folder);

/// True writes "********" in place of key texts; false (the default) writes them in clear. From
/// other languages any byte but 0 is true.
TOVISDK_API void tovi_set_log_redaction(bool redact);

/// Bounds a day's file: a record that would make it longer than that many bytes goes into a new
/// one, and what was there is set aside as "tovisdk_YEAR-MONTH-DAY.1.txt", in place of what was set
/// aside before. 0 or less (0 is the default): no bound.
TOVISDK_API void tovi_set_log_limit(long long bytes);

/// Hands records to the host instead of a file, until null is given.
/// @param record gets the user pointer, the level (0 info, 1 debug, 2 warning, 3 error) and the
/// message, zero-terminated, without time stamp and line end, and the library's again when it
/// returns. It is called on the thread that logs, on several at once where several do. It must not
/// throw. What the library logs while it runs, on its thread, is lost. A record that is on its way
/// on another thread may still come after this function has returned.
/// @param user handed on as it is
TOVISDK_API void tovi_set_log_callback(void (*record)(void* user, int level, const char* text),
                                       void* user);

/// 0: the library prints nothing on standard output. Otherwise (the default) it prints the line
/// "SocketResult delete" whenever a reply is released, and a line where a connection for broken
/// pixels or a download cannot be had. printfHexCharArray prints in any case.
TOVISDK_API void tovi_set_console(int on);

#ifdef __cplusplus
}
#endif

#endif
