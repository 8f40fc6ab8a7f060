// The windows of a walk, all made from FlyingBat1.
#pragma once

#include "character/walk_state.h"
#include "platform/event.h"

// The size of a window whose frame has no picture.
inline constexpr int kWalkWindowWidth = 300;
inline constexpr int kWalkWindowHeight = 200;

// Runs the walking window of WalkSlotNow until the walk has ended (command 2203).
void WalkWindowRun();

// Opens the end picture of WalkSlotNow and runs the balloon until the end phase is
// over; for a mail the notice opens instead of the balloon (command 2208).
void EndWindowsRun();

// Adds a trail window of the walk: a copy of the walking window at its new place.
void TrailWindowOpen();
void TrailWindowsClose();

// The slot whose window of a kind (&WalkSlot::walkWindow and so on) this is; the slot
// in work if there is none.
int WalkSlotOf(WindowHandle WalkSlot::*kind, WindowHandle window);

// walk_window.cpp, end_window.cpp, balloon.cpp
bool WalkWindowProc(const Event& event);
bool TrailWindowProc(const Event& event);
bool EndWindowProc(const Event& event);
bool BalloonProc(const Event& event);
