// SPDX-License-Identifier: MIT
/// @file
/// Integers in byte buffers, and the checksum of frames.
///
/// None of the writers and readers checks bounds or null pointers: the caller guarantees room.
#ifndef TOVISDK_CODEC_H
#define TOVISDK_CODEC_H

#include <tovisdk/export.h>

#include <ctime>
#include <string>

/// Writes 4 bytes at buf[offset], least significant first.
TOVISDK_API void intToBytes(char* buf, int offset, int value);

/// Writes 4 bytes at buf[offset], most significant first: the order of fields that the controller
/// defines in network order.
TOVISDK_API void normalIntToBytes(char* buf, int offset, int value);

/// Writes 2 bytes at buf[offset], low byte first.
TOVISDK_API void shortToBytes(char* buf, int offset, short value);

/// Reads 4 bytes at buf[offset], least significant first.
TOVISDK_API int bytesToInt(char* buf, int offset);

/// Reads 2 bytes at buf[offset], low byte first; the result is signed.
TOVISDK_API short bytesToShort(char* buf, int offset);

/// The checksum of data[0] to data[len - 1]: reflected CRC-16 with polynomial 0x8408 and start
/// value 0xFFFF, without a final XOR, by a table whose entry 0x89 is 0x019C. Controllers check
/// frames with the same table. A len of 0 or less gives 0xFFFF (that is, -1).
TOVISDK_API short pubCalcCRC(char* data, int len);

/// A calendar time whose six fields hold the arguments unchanged: nothing is subtracted from the
/// year or the month. The other fields are 0.
TOVISDK_API std::tm getTm(int year, int month, int day, int hour, int minute, int second);

/// The number that a dotted IPv4 text stands for, first field in the highest byte: "192.168.1.10"
/// is 0xC0A8010A. Only the first 15 characters count, empty fields are skipped, and a field that is
/// no number counts as 0. No field at all gives 0.
TOVISDK_API int ipToInt(const std::string& ip);

#endif
