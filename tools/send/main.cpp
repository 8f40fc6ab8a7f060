// mirrell-send: sends one numbered command to the running companion.
//
//   mirrell-send 1918        by number
//   mirrell-send mail        by name
//   mirrell-send --list      the names there are
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

struct NamedCommand {
  unsigned number;
  const char* name;
};

#define COMMAND(number, name, shownName, function) {number, shownName},
constexpr NamedCommand kCommands[] = {
#include "services/command_table.inc"
};
#undef COMMAND

int List() {
  for (const NamedCommand& command : kCommands) std::printf("%5u  %s\n", command.number, command.name);
  return 0;
}

// The number of a command given by number or name; false if it is neither.
bool Find(const char* text, unsigned* number) {
  char* end = nullptr;
  const unsigned long value = std::strtoul(text, &end, 10);
  if (end != text && *end == '\0') {
    *number = static_cast<unsigned>(value);
    return true;
  }
  for (const NamedCommand& command : kCommands) {
    if (std::strcmp(command.name, text) != 0) continue;
    *number = command.number;
    return true;
  }
  return false;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2 || std::strcmp(arguments[1], "--help") == 0) {
    std::fprintf(stderr, "usage: mirrell-send NUMBER | NAME | --list\n");
    return 2;
  }
  if (std::strcmp(arguments[1], "--list") == 0) return List();
  unsigned number = 0;
  if (!Find(arguments[1], &number)) {
    std::fprintf(stderr, "mirrell-send: no command is named \"%s\"; --list shows the names\n", arguments[1]);
    return 2;
  }
  HWND companion = FindWindowW(L"ミルレール", nullptr);
  if (!companion) {
    std::fprintf(stderr, "mirrell-send: the companion is not running\n");
    return 1;
  }
  // Posted, not sent: a command may open a dialog and would keep us waiting.
  if (!PostMessageW(companion, WM_COMMAND, number, 0)) {
    std::fprintf(stderr, "mirrell-send: the command could not be sent\n");
    return 1;
  }
  return 0;
}
