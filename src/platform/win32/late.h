// Functions of libraries that few runs need. Binding them at first use keeps
// these libraries, and all that they bring along, out of the program's start.
#pragma once

#include <windows.h>

// The function `name` of `library`; null when either is not there.
template <typename Function>
Function* LateFind(const wchar_t* library, const char* name) {
  HMODULE module = LoadLibraryW(library);  // stays loaded
  return module ? reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)))
                : nullptr;
}

// LATE(library, Function): the function of a system header, bound at first use.
#define LATE(library, function)                                                       \
  [] {                                                                                \
    static auto* const bound = LateFind<decltype(::function)>(L##library, #function); \
    return bound;                                                                     \
  }()
