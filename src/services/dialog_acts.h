// What a dialog does about its controls, as a table that its handler runs:
//
//   constexpr DialogAct kActs[] = {
//       {EventKind::Init, Open},
//       {kOkButton, Accept},
//       {IDC_BACKUP_ADD, Command::BackUpAdd},
//       {IDC_OPN_FILE, EventKind::Chosen, FileChosen},
//       {Command::WorkStep, Step},
//   };
//   bool Handle(const Event& event) { return DialogActRun(event, kActs); }
#pragma once

#include <cstddef>

#include "platform/event.h"
#include "services/commands.h"

// One row: an event, and what to do about it. An action is told nothing, the dialog, or
// the whole event; instead of an action the main window may be sent a command.
class DialogAct {
 public:
  // A button that is pressed.
  constexpr DialogAct(int id, void (*act)()) : kind_(EventKind::Pressed), id_(id), plain_(act) {}
  constexpr DialogAct(int id, void (*act)(WindowHandle)) : kind_(EventKind::Pressed), id_(id), dialog_(act) {}
  constexpr DialogAct(int id, void (*act)(const Event&)) : kind_(EventKind::Pressed), id_(id), event_(act) {}
  constexpr DialogAct(int id, Command send) : kind_(EventKind::Pressed), id_(id), command_(send) {}
  // A command that the dialog is sent.
  constexpr DialogAct(Command command, void (*act)())
      : kind_(EventKind::Command), command_(command), plain_(act) {}
  constexpr DialogAct(Command command, void (*act)(WindowHandle))
      : kind_(EventKind::Command), command_(command), dialog_(act) {}
  // Another event of a control: Chosen, Opened, Edited.
  constexpr DialogAct(int id, EventKind kind, void (*act)()) : kind_(kind), id_(id), plain_(act) {}
  constexpr DialogAct(int id, EventKind kind, void (*act)(WindowHandle))
      : kind_(kind), id_(id), dialog_(act) {}
  constexpr DialogAct(int id, EventKind kind, void (*act)(const Event&))
      : kind_(kind), id_(id), event_(act) {}
  // An event of the dialog itself: Init, Paint, Close ...
  constexpr DialogAct(EventKind kind, void (*act)()) : kind_(kind), plain_(act) {}
  constexpr DialogAct(EventKind kind, void (*act)(WindowHandle)) : kind_(kind), dialog_(act) {}
  constexpr DialogAct(EventKind kind, void (*act)(const Event&)) : kind_(kind), event_(act) {}

  bool Fits(const Event& event) const;
  void Run(const Event& event) const;

 private:
  EventKind kind_;
  int id_ = 0;
  Command command_ = Command::None;  // that comes, or that is sent
  void (*plain_)() = nullptr;
  void (*dialog_)(WindowHandle) = nullptr;
  void (*event_)(const Event&) = nullptr;
};

// Runs the first row that fits. False when none does: what happens by default is left
// to whoever asked.
bool DialogActRun(const Event& event, const DialogAct* acts, std::size_t count);
template <std::size_t N>
bool DialogActRun(const Event& event, const DialogAct (&acts)[N]) {
  return DialogActRun(event, acts, N);
}
