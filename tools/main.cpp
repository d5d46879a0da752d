#include <cstdio>
#include <string>
#include <vector>

#include "tools/console.h"
#include "tools/run.h"

int main(int count, char** words) {
  const unsigned consoleBefore = UseUtf8Console();
  const std::vector<std::string> arguments(words + (count > 0), words + count);
  Output output;
  const ExitCode result = RunSprite(arguments, output);
  std::fputs(output.err.c_str(), stderr);
  std::fputs(output.out.c_str(), stdout);
  const bool printed = std::fflush(stdout) == 0;
  RestoreConsole(consoleBefore);
  return printed ? result : kFound;
}
