// The outlines of a character's frames, from the file Chara%d.dwc.
//
// A window is cut to an outline's polygon. In the file y counts upwards from the
// bottom row of the frame's picture; the flips turn it into pixels of a window.
#pragma once

#include "platform/types.h"

inline constexpr int kFrameMax = 20;  // frames of a character
inline constexpr int kOutlinePointMax = 1024;

// A count of 0 means that the frame has no outline: its window is rectangular.
struct Outline {
  int count;
  Point points[kOutlinePointMax];
};

// Reads the outline of one frame (0 to 19) of a character (its number minus 1)
// and the file's frame count. Returns 0; -1 when the file cannot be opened, or for
// a number below 0, which has none;
// nothing is changed then; -2 when the file does not reach the frame or a count is
// beyond its table; -3 when it ends among the frame's points. With -2 and -3 the
// points that were read stay.
int OutlineRead(int number, int frame, Outline* outline, int* frameCount);

// Reads the outlines of the frames that the file counts, each as OutlineRead does,
// in one pass. Results as above; frames behind one that failed have none.
int OutlineReadCounted(int number, Outline (&outlines)[kFrameMax], int* frameCount);

// Reads the outlines of all 20 frames, whatever the file's frame count says.
// Results as above; with -2 and -3 the frames that were read stay and the others
// have no outline.
int OutlineReadAll(int number, Outline (&outlines)[kFrameMax]);

// y of the stage: below the window's menu line.
void OutlineFlipForStage(Outline* outline, int pictureHeight);

// Both ways in from the thin frame of a walking window.
void OutlineFlipForWalker(Outline* outline, int pictureHeight);

bool OutlinesEqual(const Outline& a, const Outline& b);

// Copies the points in use.
void OutlineCopy(Outline* to, const Outline& from);
