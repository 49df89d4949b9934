// SPDX-License-Identifier: MIT
#include "tests/support/run_program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tovi::test {

int runProgram(const std::string& program, const std::vector<std::string>& words,
               const Streams& streams) {
  std::vector<std::string> all{program};
  all.insert(all.end(), words.begin(), words.end());
  std::vector<char*> arguments;
  for (std::string& word : all) arguments.push_back(word.data());
  arguments.push_back(nullptr);

  constexpr int kWrite = O_WRONLY | O_CREAT | O_TRUNC;
  const std::string in = streams.in.empty() ? "/dev/null" : streams.in;
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, in.c_str(), O_RDONLY, 0);
  ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, streams.out.c_str(), kWrite, 0600);
  ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, streams.err.c_str(), kWrite, 0600);
  pid_t child = 0;
  const int error =
      ::posix_spawn(&child, program.c_str(), &actions, nullptr, arguments.data(), environ);
  ::posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  if (error != 0 || ::waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

}  // namespace tovi::test
