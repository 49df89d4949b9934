// SPDX-License-Identifier: MIT
/* A host in C99 on the flat face: sets the clock and the brightness, reads the name and the status
 * and shows them.
 *
 *   first_call ADDRESS PORT [LEVEL]
 */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include <tovisdk/flat.h>

/* Prints a report without its end and releases it. Whether the controller had something to say. */
static int show(char* report) {
  static const char end[] = "interfaceEnd";
  if (report == NULL) return 0; /* this machine has no memory for it */
  const size_t length = strlen(report) - strlen(end);
  /* GBK: a terminal in UTF-8 shows the numbers and stumbles over the rest. */
  fwrite(report, 1, length, stdout);
  deleteArry(&report); /* ours: released, and the pointer is null again */
  return length > 0;
}

int main(int argc, char** argv) {
  if (argc < 3) {
    fprintf(stderr, "usage: %s ADDRESS PORT [LEVEL]\n", argv[0]);
    return 2;
  }
  const char* ip = argv[1];
  const unsigned short port = (unsigned short)atoi(argv[2]);
  const int level = argc > 3 ? atoi(argv[3]) : 80;

  /* Before the first call; otherwise the log lies beside the executable. */
  tovi_set_log_folder("first_call_log");

  /* This text counts years from 1900 and months from 0, and so does struct tm. */
  const time_t now = time(NULL);
  const struct tm* t = localtime(&now);
  char clock[80];
  snprintf(clock, sizeof clock, "%d-%d-%d-%d-%d-%d", t->tm_year, t->tm_mon, t->tm_mday, t->tm_hour,
           t->tm_min, t->tm_sec);
  const char* timed = setTime(ip, port, clock);
  const char* done = setBrightness(ip, port, level);
  printf("setTime: %s\nsetBrightness: %s\n", timed, done); /* static: not to be released */

  const int named = show(getDeviceName(ip, port));
  printf("\n");
  const int told = show(getDeviceType(ip, port));
  return strcmp(timed, "success") == 0 && strcmp(done, "success") == 0 && named && told ? 0 : 1;
}
