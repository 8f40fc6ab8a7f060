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

// The same for a path that there is, and only as code page 932 can hold it: by its short
// names when the long ones have other characters. False when it has none.
bool CopyNarrowPath(const wchar_t* path, char* buffer, int size);

inline HWND Hwnd(WindowHandle window) {
  return reinterpret_cast<HWND>(window);
}
inline WindowHandle Window(HWND window) {
  return reinterpret_cast<WindowHandle>(window);
}

LiveObjects& Live();

// The fixed text font, made at first use: 8 x 16 with Japanese glyphs.
HFONT TextFont();

// The parts of a dialog's procedure. The first begins it and sends Init, and returns what
// WM_INITDIALOG is to; the second handles every other message; the third hands an event to
// the handler.
struct Event;
INT_PTR DialogBegin(HWND window, bool (*handler)(const Event&), void* context);
INT_PTR DialogMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
bool DialogTell(HWND window, const Event& event);

// Turns a Windows message to the main window or to a dialog into an event. False when
// the message is none of ours.
enum class MessageTarget { MainWindow, Dialog };
bool EventFromMessage(MessageTarget target, HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                      Event* event);
