// The stage: the main window with one frame of the main character, cut to the
// frame's outline.
#pragma once

#include <cstdint>

#include "character/outline.h"

// Slots of StageOutlines.
inline constexpr int kOutlineIdle = 0;    // frame 0
inline constexpr int kOutlineMenu = 1;    // the menu frame
inline constexpr int kOutlineBlink = 2;   // the blink frame
inline constexpr int kOutlineBored1 = 3;  // the four frames of pattern 1
inline constexpr int kOutlineBored2 = 7;  // the four frames of pattern 2
inline constexpr int kOutlineSlotCount = 11;

// What the next command 2293 does.
inline constexpr std::int32_t kRedrawNothing = 0;
inline constexpr std::int32_t kRedrawOutline = 1;  // another outline: cut the window anew
inline constexpr std::int32_t kRedrawSame = 2;     // the same outline: only draw
inline constexpr std::int32_t kRedrawReload = 3;   // load the character anew

struct StageState {
  std::int32_t CharaFrame = 0;       // the frame on the stage
  std::int32_t StageRedraw = 0;      // kRedraw*
  std::int32_t StageFrameCount = 0;  // of the outline file
  std::int32_t StageWidth = 0;
  std::int32_t StageHeight = 0;
  std::int32_t StageAppliedWidth = 0;  // the size that the window was last given
  std::int32_t StageAppliedHeight = 0;
  Outline StageOutlines[kOutlineSlotCount] = {};  // as the window needs them
  Outline CurrentOutline = {};                    // copy of the slot in force
};
extern StageState Stage;

// Loads the pictures and outlines of the current main character and works out the
// stage's size. Returns 1 when no character is chosen, else 0. What is missing is
// passed over: no outline file gives a rectangular stage, no picture of frame 0
// leaves the size as it is. The window itself is not touched.
int CharaLoadStage();

// Puts a frame (from 0) with the outline of a slot on the stage; StageRedraw then
// tells what command 2293 has to do.
void StageShowFrame(int frame, int slot);

// Command 2293: does what StageRedraw asks for, and clears it.
void CommandRedrawStage();

// Draws the frame on the stage: what the main window does to be painted.
void StagePaint();

// Cuts the window to the current outline and moves it to StageX, StageY: how the
// stage comes up at start.
void StageShapeAndPlace();

// Moves the window to StageX, StageY with the stage's size and notes the size.
void StageMove(bool repaint);

// Gives the stage a place on the screen; StageMove moves its window there.
void StagePlaceSet(std::int32_t x, std::int32_t y);

// The size of a stage whose character cannot be loaded.
void StageSizeBegin();

// The next redraw loads the character anew.
void StageReloadWanted();
