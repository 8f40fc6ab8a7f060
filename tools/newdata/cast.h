// Who is in a new data set: the characters with their names, frames and roles,
// the idle life of the main ones, the dials of the clocks, and the sounds. Texts
// are code page 932, as the data files hold them.
#pragma once

#include <vector>

#include "newdata/outline_file.h"

enum class Role {
  Main,     // stands on the stage
  Alarm,    // shows itself in notices
  Walker,   // walks over the screen
  Dial,     // a clock design
  Sticker,  // its frames are stuck on days of a calendar
  Figure,   // stands or moves on a calendar's page
  Mark,     // its frames are put into the cells of a schedule's map
};

// Stickers, the figures of a page and marks are never a window's shape, so they have no
// outlines and may be in pieces.
constexpr bool HasOutline(Role role) {
  return role != Role::Sticker && role != Role::Figure && role != Role::Mark;
}

// How the windows of a role are shaped.
constexpr OutlineKind OutlineKindOf(Role role) {
  switch (role) {
    case Role::Main:
      return OutlineKind::Stage;
    case Role::Walker:
      return OutlineKind::Walker;
    default:
      return OutlineKind::Bare;
  }
}

struct CastMember {
  int number;  // of the character, from 1
  Role role;
  const char* name;
  std::vector<const char*> frames;  // their names, frame 1 first
};

// In the order of their numbers, which have gaps. Within a role, the order is the
// order of that role's list.
const std::vector<CastMember>& Cast();
std::vector<const CastMember*> CastOf(Role role);

// How a main character lives when nobody touches it. Frames count from 0.
struct IdleLife {
  int menuFrame;
  int blinkFrame;
  std::vector<int> bored1;  // at most 4 of each are played
  std::vector<int> bored2;
  int boredDelaySel;  // rows of the option lists
  int boredSpeedSel;
  int boredRepeatSel;
  int blinkSpeedSel;
};
// Of the main character at a place of their list, from 0.
const IdleLife& IdleLifeOf(int place);

// The dial of a clock design.
struct Dial {
  int hand;  // ClockHand
  int hourLength;
  int minuteLength;
  int centreX;  // of the dial; top left of a digital display
  int centreY;
  Rgb hands;
  Rgb face;
  bool repeat;                       // the performance repeats as often as the hour counts
  std::vector<int> performance;      // frames of the hourly performance, from 1
  std::vector<int> performanceWait;  // ticks that each of them stays
};
// Of the clock design at a place of their list, from 0.
const Dial& DialOf(int place);

// A sound file of the folder "サウンド" and the recipe that it is made from, a
// file of the assets' folder "sounds".
struct Sound {
  const char* file;
  const char* recipe;
};
const std::vector<Sound>& Sounds();

// A background of the calendars' months, a file of the folder "背景", and the frame of the
// drawing "haikei.svg" that it is made from. In the order of the seasons, spring first.
struct Background {
  const char* file;
  int frame;
};
const std::vector<Background>& Backgrounds();
