// A user who does anything anywhere: presses, chooses, types, points, waits, and leaves
// every dialog again. The same seed gives the same deeds.
#pragma once

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "platform/headless/free_user.h"

class Wanderer : public FreeUser {
 public:
  explicit Wanderer(std::uint32_t seed);

  // Sends the main window one of the commands of the table.
  void SendAny();
  // Sends this one.
  void Send(std::uint32_t command);
  // The clock goes on and the timer fires, so many times.
  void Wait(int times);
  // The pointer moves and clicks on one of the windows that stand on the desktop.
  void PointAnywhere();

  // A number from 0 to bound - 1.
  int Below(int bound);
  bool OneIn(int chances) { return Below(chances) == 0; }

  int Sends() const { return sends_; }
  int Deeds() const { return deeds_; }
  // What was done last, the newest behind: to be read when something has gone wrong.
  std::string Trail() const;
  // Dialogs that could not be left.
  const std::vector<std::string>& Stuck() const { return stuck_; }

  void Deed() override;
  BoxAnswer Answer(const Box& box) override;
  std::string File(const FileDialogCall& call) override;
  std::uint32_t Entry(const std::vector<std::uint32_t>& entries) override;

 private:
  void Note(const std::string& what);
  std::string Path();
  std::string Text();
  void Point(WindowHandle window);
  void Use(WindowHandle dialog);
  void Leave(WindowHandle dialog, int attempt);
  void Meanwhile();

  std::mt19937 random_;
  int sends_ = 0;
  int deeds_ = 0;
  int nested_ = 0;                        // deeds on the stack
  std::map<WindowHandle, int> patience_;  // deeds that are left for a dialog
  std::vector<std::string> trail_;
  std::vector<std::string> stuck_;
};

// Every number of the command table, rising.
extern const std::vector<std::uint32_t> kEveryCommand;
