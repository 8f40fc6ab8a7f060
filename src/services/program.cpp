#include "services/program.h"

#include "services/text.h"

ProgramState Program;

int RootPath(char* buffer, int size, const char* name) {
  TextCopy(buffer, static_cast<std::size_t>(size), Program.RootFolder);
  return static_cast<int>(TextAppend(buffer, static_cast<std::size_t>(size), name));
}
