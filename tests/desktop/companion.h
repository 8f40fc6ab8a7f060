// The real companion, started in a program folder of its own and driven from
// outside through the desktop.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "shell/diagnostic_numbers.h"

// Waits until the condition holds, looking every few milliseconds. False when it
// has not come about after `milliseconds`.
bool WaitFor(const std::function<bool()>& condition, unsigned milliseconds = 20000);

std::vector<unsigned char> ReadWholeFile(const std::wstring& path);
void WriteWholeFile(const std::wstring& path, const std::vector<unsigned char>& bytes);
void PutBig(std::vector<unsigned char>& bytes, std::size_t at, std::uint32_t value);
std::uint32_t GetBig(const std::vector<unsigned char>& bytes, std::size_t at);

class Companion {
 public:
  // A fresh folder with the programs; with `dataSet` the data set too.
  explicit Companion(bool dataSet = true);
  ~Companion();
  Companion(const Companion&) = delete;
  Companion& operator=(const Companion&) = delete;

  const std::wstring& Folder() const { return folder_; }
  std::wstring File(const std::wstring& name) const { return folder_ + L"\\" + name; }

  // Starts mirrell.exe and waits for its window and first ticks.
  void Start(const std::wstring& arguments = L"");

  HWND Window() const { return window_; }
  DWORD ProcessId() const { return process_.dwProcessId; }
  bool Runs() const;

  // A value that the program lays open.
  int Value(int number) const;
  // The live counts: brushes, pens, fonts, bitmaps, regions, canvases, windows,
  // timers, blocks, files, searches.
  std::vector<int> Live() const;

  // Sets the time of the day that the companion sees; it runs on from there.
  void SetTime(int hour, int minute, int second) const;

  // Drives ticks without waiting for the timer.
  void Tick(int times = 1);

  // Sends a command and waits until it is done with; only for commands that open
  // no modal window.
  void Send(unsigned command) const;
  // Posts one that does.
  void Post(unsigned command) const;

  // A visible window of the companion's process with that title; null if none
  // comes up in time.
  HWND Dialog(const std::wstring& title, unsigned milliseconds = 20000) const;
  HWND FindDialog(const std::wstring& title) const;

  // Closes the main window and waits for the end of the process. Returns the exit
  // code, or -1 when it had to be ended by force.
  int Close();

  // After Close: what was still held at the end, in the order of Live.
  std::vector<int> LiveAtEnd() const;

 private:
  std::wstring folder_;
  std::wstring report_;
  PROCESS_INFORMATION process_{};
  HWND window_ = nullptr;
};

// Pixels of a window that belong to its region, row by row. Empty when the window
// has no region.
std::vector<bool> RegionPixels(HWND window, int* width, int* height);

std::wstring TextOf(HWND window);
void PressButton(HWND dialog, int id);  // and waits
void PostButton(HWND dialog, int id);   // for one that opens something modal
void SetEdit(HWND dialog, int id, const std::wstring& text);
std::wstring EditText(HWND dialog, int id);
void SelectListRow(HWND dialog, int id, int row);  // tells the dialog
int ListRowCount(HWND dialog, int id);
std::wstring ListRowText(HWND dialog, int id, int row);

// What is on the screen inside a rectangle, as 0xRRGGBB row by row.
std::vector<std::uint32_t> ScreenPixels(int x, int y, int width, int height);
