// The pictures and outlines of the design on the desktop: those of its character's
// frames, each loaded when it is first shown and kept until the window closes.
#pragma once

#include "character/chara_paths.h"
#include "character/outline.h"
#include "services/dib.h"

struct ClockPicturesState {
  int number = 0;  // of the character, from 1; 0 for none
  bool tried[kFrameMax] = {};
  ImageHandle pictures[kFrameMax] = {};
  Outline outlines[kFrameMax] = {};  // as the window needs them once their picture is there
  Outline shape = {};                // that the window is cut to
};
extern ClockPicturesState ClockPictures;

// Begins with a character: frees what there is of another one, and reads the outlines.
void ClockPicturesBegin(int number);
void ClockPicturesFree();

// The picture of a frame, from 0; null for what cannot be loaded.
ImageHandle ClockPicture(int frame);

// Makes the outline of a frame the one in force. False when it is in force already, and
// for a frame without a picture: the window keeps the shape it has.
bool ClockShapeTake(int frame);
