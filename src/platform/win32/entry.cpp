// Where Windows enters the program.
#include <windows.h>

#include "platform/entry.h"

#include "platform/win32/border.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR commandLine, int showMode) {
  return ProcessEntry(Narrow(commandLine).c_str(), showMode);
}
