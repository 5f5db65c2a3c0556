// Runs one of the built programs as a child process and keeps what it wrote.
#pragma once

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <string>
#include <vector>

#include "tests/support/scratch_folder.h"

extern char** environ;

struct ProgramRun {
  int iStatus = -1;  // the exit status as the parent sees it; -1: not run or not exited
  std::string sOut;  // standard output
  std::string sErr;  // standard error
};

// Runs `command` (the program and its arguments, passed as they stand) with
// standard output and error sent to files of a scratch folder.
inline ProgramRun RunProgram(const std::vector<std::string>& command) {
  ProgramRun run;
  ScratchFolder folder;
  const std::string outFile = folder / "stdout";
  const std::string errFile = folder / "stderr";
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, outFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  posix_spawn_file_actions_addopen(&actions, 2, errFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  std::vector<std::string> words = command;
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  pid_t child = 0;
  int spawned = posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (spawned != 0) return run;
  int status = 0;
  if (waitpid(child, &status, 0) == child && WIFEXITED(status)) run.iStatus = WEXITSTATUS(status);
  run.sOut = sReadWholeFile(outFile);
  run.sErr = sReadWholeFile(errFile);
  return run;
}
