// SPDX-License-Identifier: MIT
// Functions that a host may well have, and that the library must not call in place of its own.
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

std::vector<std::string> split(const std::string&, const std::string&) { std::abort(); }
std::string format_string(std::string, ...) { std::abort(); }
bool string_To_Bool(const std::string&) { std::abort(); }
long long toviStoll(const std::string&) { std::abort(); }
void shortToBytes(char*, int, short) { std::abort(); }
void normalIntToBytes(char*, int, int) { std::abort(); }
short bytesToShort(char*, int) { std::abort(); }
short pubCalcCRC(char*, int) { std::abort(); }
std::tm getTm(int, int, int, int, int, int) { std::abort(); }
int ipToInt(const std::string&) { std::abort(); }
bool createEmptyFile(const char*) { std::abort(); }
void tovi_info(std::string, ...) { std::abort(); }
