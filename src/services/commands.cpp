#include "services/commands.h"

#include "platform/window.h"
#include "services/program.h"

void CommandSend(Command command) {
  CommandSendTo(Program.hMainWnd, command);
}

void CommandSendTo(WindowHandle window, Command command) {
  SendCommand(window, static_cast<std::uint32_t>(command));
}
