// Runs one of the built programs as a child process and keeps what it wrote.
#pragma once

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;
#endif

#include <string>
#include <vector>

#include "tests/support/scratch_folder.h"

struct ProgramRun {
  int iStatus = -1;  // the exit status as the parent sees it; -1: not run or not exited
  std::string sOut;  // standard output
  std::string sErr;  // standard error
};

// Runs `command` (the program and its arguments, passed as they stand) with
// standard output and error sent to files of a scratch folder.
#ifdef _WIN32
// One word of a Windows command line, quoted so that the program's start-up
// code hands it over as it stands: backslashes are doubled only before a
// quote.
inline void vAppendCommandWord(std::string& line, const std::string& word) {
  if (!line.empty()) line += ' ';
  if (!word.empty() && word.find_first_of(" \t\"") == std::string::npos) {
    line += word;
    return;
  }
  line += '"';
  size_t backslashes = 0;
  for (char c : word) {
    if (c == '\\') {
      ++backslashes;
      continue;
    }
    line.append(c == '"' ? 2 * backslashes + 1 : backslashes, '\\');
    backslashes = 0;
    line += c;
  }
  line.append(2 * backslashes, '\\');
  line += '"';
}

inline ProgramRun RunProgram(const std::vector<std::string>& command) {
  ProgramRun run;
  ScratchFolder folder;
  const std::string outFile = folder / "stdout";
  const std::string errFile = folder / "stderr";
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE out = CreateFileA(outFile.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                           CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  HANDLE err = CreateFileA(errFile.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                           CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  std::string line;
  for (const std::string& word : command) vAppendCommandWord(line, word);
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  startup.hStdOutput = out;
  startup.hStdError = err;
  PROCESS_INFORMATION process{};
  BOOL started = CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                nullptr, &startup, &process);
  CloseHandle(out);
  CloseHandle(err);
  if (!started) return run;
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 0;
  if (GetExitCodeProcess(process.hProcess, &code)) run.iStatus = static_cast<int>(code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  // The programs write their standard output and error in text mode.
  run.sOut = sReadTextFile(outFile);
  run.sErr = sReadTextFile(errFile);
  return run;
}
#else
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
#endif
