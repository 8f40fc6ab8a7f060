#include "shell/command_line.h"

#include "services/commands.h"
#include "services/text.h"

CommandLineState ProgramLine;

void CommandLineKeep(const char* text) {
  TextFormat(ProgramLine.PendingCommandLine, sizeof ProgramLine.PendingCommandLine, "%s", text);
}

void CommandLineTick() {
  if (ProgramLine.PendingCommandLine[0] == '\0') return;
  TextCopy(ProgramLine.CommandLine, sizeof ProgramLine.CommandLine, ProgramLine.PendingCommandLine);
  ProgramLine.PendingCommandLine[0] = '\0';
  CommandSend(Command::FirstRun);
}

int CommandLineDue() {
  return TickDueIf(ProgramLine.PendingCommandLine[0] != '\0');
}
