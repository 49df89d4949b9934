// SPDX-License-Identifier: MIT
/* Calls as languages make them that pass a flag as any byte. */
const char* setPower(const char* ip, unsigned short port, unsigned char on);
const char* setBoardPowerAndScreenPower(const char* ip, unsigned short port, unsigned char on);
const char* setVirtualConnection(const char* ip, unsigned short port, unsigned char on,
                                 int interval, int value);
const char* setDeviceNTPParam(const char* ip, unsigned short port, unsigned char on,
                              const char* server);
const char* setDeviceSecretParam(const char* ip, unsigned short port, const char* param,
                                 unsigned char withSecondKey);
void tovi_set_log_redaction(unsigned char redact);

const char* setPowerByByte(const char* ip, unsigned short port, int on) {
  return setPower(ip, port, (unsigned char)on);
}

const char* setBothPowersByByte(const char* ip, unsigned short port, int on) {
  return setBoardPowerAndScreenPower(ip, port, (unsigned char)on);
}

const char* setLinkByByte(const char* ip, unsigned short port, int on) {
  return setVirtualConnection(ip, port, (unsigned char)on, 60, 3);
}

const char* setNtpByByte(const char* ip, unsigned short port, int on) {
  return setDeviceNTPParam(ip, port, (unsigned char)on, "n");
}

const char* setSecretByByte(const char* ip, unsigned short port, int withSecondKey) {
  return setDeviceSecretParam(ip, port, "l 0 0  abcdefgh", (unsigned char)withSecondKey);
}

void redactByByte(int redact) { tovi_set_log_redaction((unsigned char)redact); }
