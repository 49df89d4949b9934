// SPDX-License-Identifier: MIT
/* A host in C99 on the flat face: sets the brightness, reads the status report and shows it.
 *
 *   first_call ADDRESS PORT [LEVEL]
 */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <tovisdk/flat.h>

int main(int argc, char** argv) {
  if (argc < 3) {
    fprintf(stderr, "usage: %s ADDRESS PORT [LEVEL]\n", argv[0]);
    return 2;
  }
  const unsigned short port = (unsigned short)atoi(argv[2]);
  const char* done = setBrightness(argv[1], port, argc > 3 ? atoi(argv[3]) : 80);
  printf("setBrightness: %s\n", done); /* static: not to be released */

  char* report = getDeviceType(argv[1], port);
  if (report == NULL) return 1;
  /* The labels are GBK; a terminal in UTF-8 shows the numbers and stumbles over the rest. */
  fwrite(report, 1, strlen(report), stdout);
  printf("\n");
  const int complete = strstr(report, "\r\ninterfaceEnd") != NULL;
  deleteArry(&report); /* ours: released, and the pointer is null again */
  return strcmp(done, "success") == 0 && complete && report == NULL ? 0 : 1;
}
