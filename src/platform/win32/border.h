// The border between this program and Windows: text is turned from code page
// 932 into UTF-16 and back here and nowhere else; handles are cast here.
#pragma once

#include <windows.h>

#include <string>

#include "platform/diagnostics.h"
#include "platform/types.h"

// `length` -1: up to the terminator.
std::wstring Wide(const char* text, int length = -1);
std::string Narrow(const wchar_t* text, int length = -1);

// Copies at most size - 1 bytes and terminates, with no double-byte pair cut in two.
// Returns the length copied.
int CopyNarrow(const wchar_t* text, char* buffer, int size);

// The same to the byte: what is typed into a control is cut wherever its room ends.
int CopyNarrowBytes(const wchar_t* text, char* buffer, int size);

// All of it or nothing: false, with `buffer` as it was, when it does not fit.
bool CopyNarrowWhole(const wchar_t* text, char* buffer, int size);

inline HWND Hwnd(WindowHandle window) {
  return reinterpret_cast<HWND>(window);
}
inline WindowHandle Window(HWND window) {
  return reinterpret_cast<WindowHandle>(window);
}

LiveObjects& Live();

// The fixed text font, made at first use: 8 x 16 with Japanese glyphs.
HFONT TextFont();

// Turns a Windows message into an event for `handler`. False when the message
// is none of ours. `result` takes what the window procedure is to return.
struct Event;
bool EventFromMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam, Event* event);
