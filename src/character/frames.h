// The pictures of the characters that are on the desktop.
#pragma once

#include "character/chara_paths.h"
#include "services/dib.h"

// A picture with its mask, the mask applied; nulls for what cannot be loaded.
struct MaskedFrame {
  ImageHandle picture;
  ImageHandle mask;
};
// Loads a frame (from 0) of a character (its number, from 1) in place of what is there; frees
// it.
void MaskedFrameLoad(MaskedFrame& item, int number, int frame);
void MaskedFrameFree(MaskedFrame& item);

// Row 0 holds the stage's character, row 1 + slot the character of a walking slot.
inline constexpr int kFrameRowCount = 51;
inline constexpr int kStageRow = 0;

struct FramesState {
  ImageHandle FrameTable[kFrameRowCount][kFrameMax] = {};
};
extern FramesState Frames;

// The picture of a frame; null for none and for a row or frame beyond the table.
ImageHandle FramePicture(int row, int frame);

// Which pictures and masks of a character have a file, by frame. Its folder is asked
// once for all of them: most frames have none, and to ask for a file that is not
// there costs as much as to open one that is.
struct FrameFiles {
  bool picture[kFrameMax];
  bool mask[kFrameMax];
};
// Of a character by its number minus 1; none for a number below 0.
FrameFiles FrameFilesFind(int number);

// Frees a row's pictures and loads those of a character (its number minus 1). A
// file that is missing or no bitmap leaves its frame empty.
void FramesLoad(int row, int number);
void FramesFree(int row);
