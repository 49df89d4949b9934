// SPDX-License-Identifier: MIT
/// @file
/// Building frames.
#ifndef TOVISDK_PACKET_H
#define TOVISDK_PACKET_H

#include <tovisdk/export.h>

/// Frames one payload.
///
/// A frame is 0xAA 0xFF 0xFF, the command byte, the payload, 0xCC, and the checksum of everything
/// before it (pubCalcCRC), low byte first. The payload is enciphered first, then escaped: 0xAA,
/// 0xCC and 0xEE become 0xEE followed by 0x0A, 0x0C and 0x0E.
///
/// @param what the command byte
/// @param data the payload; may be null only when len is 0
/// @param len bytes of data; 0 or less is an empty payload
/// @param mode 0 plain, 1 DES, 2 AES-128, 3 SM4. The payload stays plain whatever the mode when it
/// is empty, when key is null, and for command 0x70
/// @param key the zero-terminated password: the first 8 characters are the DES key, the characters
/// 8 to 23 of its MD5 text the AES and SM4 key
/// @param outLen receives the length of the frame
/// @return a new array that the caller releases with deleteArry. Null, with *outLen 0 and an error
/// in the log, when data is null although len is above 0 or when outLen is null; and when memory is
/// out. A payload of more than 65535 bytes after enciphering is logged as an error and framed as
/// empty.
TOVISDK_API char* makeSendPacketEx(char what, char* data, int len, int mode, char* key,
                                   int* outLen);

#endif
