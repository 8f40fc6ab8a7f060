// Names of a character's files in the folder "\キャラクタ".
#pragma once

inline constexpr int kFrameMax = 20;  // frames of a character

// Of a character by its number minus 1, of a frame from 0. All three write into one
// buffer, which the next call overwrites.
const char* CharaDwcPath(int number);
const char* CharaBmpPath(int number, int frame);
const char* CharaMaskPath(int number, int frame);
