// The outlines of a character's frames, from the file Chara%d.dwc.
//
// A window is cut to an outline's polygon. In the file y counts upwards from the
// bottom row of the frame's picture; the flips turn it into pixels of a window.
#pragma once

#include "character/chara_paths.h"
#include "platform/types.h"

inline constexpr int kOutlinePointMax = 1024;

// A count of 0 means that the frame has no outline: its window is rectangular.
struct Outline {
  int count;
  Point points[kOutlinePointMax];
};

// Reads the outlines of the frames that a character's file counts (its number minus 1;
// below 0 there is none), and that count, at most 20. Returns 0; -1 when the file cannot
// be opened; -2 when it ends before a frame's points or a count is beyond its table; -3
// when it ends among a frame's points. The frames before the failure and the points that
// were read stay; all others have no outline. A count that could not be read is left.
int OutlineReadCounted(int number, Outline (&outlines)[kFrameMax], int* frameCount);

// The same of all 20 frames, whatever the file's count says.
int OutlineReadAll(int number, Outline (&outlines)[kFrameMax]);

// y of the stage: below the window's menu line.
void OutlineFlipForStage(Outline* outline, int pictureHeight);

// Both ways in from the thin frame of a walking window.
void OutlineFlipForWalker(Outline* outline, int pictureHeight);

// Of a window without a border.
void OutlineFlipForBare(Outline* outline, int pictureHeight);

bool OutlinesEqual(const Outline& a, const Outline& b);

// Copies the points in use.
void OutlineCopy(Outline* to, const Outline& from);
