// CharaSet, the 676-byte record of a main character. It stands in the character
// file and in the settings file as it stands in memory: low byte first.
//
// offset  size  field
//      0     2  CharaNo        number of the character, from 1
//      2    20  MotionA
//     22    20  MotionB
//     42     8  MotionC        four 16-bit numbers
//     50     4  MotionD
//     54     5  MotionE
//     59     5  spare
//     64   100  MotionF        5 rows of 20
//    164   100  MotionG        5 rows of 20
//    264    40  MotionH
//    304    20  MotionI
//    324    20  WalkRow        ten 16-bit numbers
//    344    10  WalkUse        ten bytes
//    354    20  WalkStartX     ten 16-bit numbers
//    374    20  WalkStartY     ten 16-bit numbers
//    394     2  spare
//    396    40  WalkStepX      ten signed 32-bit numbers
//    436    40  WalkStepY      ten signed 32-bit numbers
//    476    20  WalkPeriod     ten 16-bit numbers
//    496    20  WalkCount      ten 16-bit numbers
//    516    50  WalkFrames     ten rows of five
//    566    50  EndFrames      ten rows of five
//    616    20  EndWait        ten 16-bit numbers
//    636     2  WalkStartPoint
//    638    38  spare
//
// Nothing of this program reads the fields MotionA to MotionI; they travel with
// the record. Of the ten uses of a walk only use 0 is played.
#pragma once

#include <cstdint>

#include "services/big_endian.h"

inline constexpr int kCharaSetSize = 676;
inline constexpr int kCharaSetUses = 10;
inline constexpr int kCharaSetFrames = 5;  // frames of a walk, and of its end

inline constexpr int kCharaSetNo = 0;
inline constexpr int kCharaSetMotionA = 2;
inline constexpr int kCharaSetMotionB = 22;
inline constexpr int kCharaSetMotionC = 42;
inline constexpr int kCharaSetMotionD = 50;
inline constexpr int kCharaSetMotionE = 54;
inline constexpr int kCharaSetMotionF = 64;
inline constexpr int kCharaSetMotionG = 164;
inline constexpr int kCharaSetMotionH = 264;
inline constexpr int kCharaSetMotionI = 304;
inline constexpr int kCharaSetWalkRow = 324;
inline constexpr int kCharaSetWalkUse = 344;
inline constexpr int kCharaSetWalkStartX = 354;
inline constexpr int kCharaSetWalkStartY = 374;
inline constexpr int kCharaSetWalkStepX = 396;
inline constexpr int kCharaSetWalkStepY = 436;
inline constexpr int kCharaSetWalkPeriod = 476;
inline constexpr int kCharaSetWalkCount = 496;
inline constexpr int kCharaSetWalkFrames = 516;
inline constexpr int kCharaSetEndFrames = 566;
inline constexpr int kCharaSetEndWait = 616;
inline constexpr int kCharaSetWalkStartPoint = 636;

// Bits of WalkUse.
inline constexpr unsigned kWalkUseOpen = 1;
inline constexpr unsigned kWalkUseMail = 2;

// The accessors take the record and, where a field has ten values, the use from
// 0 to 9; frames of a row count from 0 to 4.

inline std::uint16_t CharaSetNo(const unsigned char* set) {
  return GetLE16(set + kCharaSetNo);
}
inline void SetCharaSetNo(unsigned char* set, int value) {
  PutLE16(set + kCharaSetNo, static_cast<std::uint16_t>(value));
}

// The row of WalkCharas and WalkFlags that walks, from 1; 0 is none.
inline std::uint16_t WalkRow(const unsigned char* set, int use = 0) {
  return GetLE16(set + kCharaSetWalkRow + 2 * use);
}
inline void SetWalkRow(unsigned char* set, int use, int value) {
  PutLE16(set + kCharaSetWalkRow + 2 * use, static_cast<std::uint16_t>(value));
}

// What the walk is for, bits kWalkUse*.
inline std::uint8_t WalkUse(const unsigned char* set, int use = 0) {
  return set[kCharaSetWalkUse + use];
}
inline void SetWalkUse(unsigned char* set, int use, unsigned value) {
  set[kCharaSetWalkUse + use] = static_cast<unsigned char>(value);
}

// Where the walk begins, in pixels of the screen.
inline std::uint16_t WalkStartX(const unsigned char* set, int use = 0) {
  return GetLE16(set + kCharaSetWalkStartX + 2 * use);
}
inline std::uint16_t WalkStartY(const unsigned char* set, int use = 0) {
  return GetLE16(set + kCharaSetWalkStartY + 2 * use);
}
inline void SetWalkStart(unsigned char* set, int use, int x, int y) {
  PutLE16(set + kCharaSetWalkStartX + 2 * use, static_cast<std::uint16_t>(x));
  PutLE16(set + kCharaSetWalkStartY + 2 * use, static_cast<std::uint16_t>(y));
}

// Pixels of one step.
inline std::int32_t WalkStepX(const unsigned char* set, int use = 0) {
  return static_cast<std::int32_t>(GetLE32(set + kCharaSetWalkStepX + 4 * use));
}
inline std::int32_t WalkStepY(const unsigned char* set, int use = 0) {
  return static_cast<std::int32_t>(GetLE32(set + kCharaSetWalkStepY + 4 * use));
}
inline void SetWalkStep(unsigned char* set, int use, int x, int y) {
  PutLE32(set + kCharaSetWalkStepX + 4 * use, static_cast<std::uint32_t>(x));
  PutLE32(set + kCharaSetWalkStepY + 4 * use, static_cast<std::uint32_t>(y));
}

// Ticks between two steps.
inline std::uint16_t WalkPeriod(const unsigned char* set, int use = 0) {
  return GetLE16(set + kCharaSetWalkPeriod + 2 * use);
}
inline void SetWalkPeriod(unsigned char* set, int use, int value) {
  PutLE16(set + kCharaSetWalkPeriod + 2 * use, static_cast<std::uint16_t>(value));
}

// Steps of the whole walk.
inline std::uint16_t WalkCount(const unsigned char* set, int use = 0) {
  return GetLE16(set + kCharaSetWalkCount + 2 * use);
}
inline void SetWalkCount(unsigned char* set, int use, int value) {
  PutLE16(set + kCharaSetWalkCount + 2 * use, static_cast<std::uint16_t>(value));
}

// Frame numbers from 1; 0 is unused.
inline std::uint8_t WalkFrames(const unsigned char* set, int use, int place) {
  return set[kCharaSetWalkFrames + kCharaSetFrames * use + place];
}
inline void SetWalkFrames(unsigned char* set, int use, int place, int frame) {
  set[kCharaSetWalkFrames + kCharaSetFrames * use + place] = static_cast<unsigned char>(frame);
}
inline std::uint8_t EndFrames(const unsigned char* set, int use, int place) {
  return set[kCharaSetEndFrames + kCharaSetFrames * use + place];
}
inline void SetEndFrames(unsigned char* set, int use, int place, int frame) {
  set[kCharaSetEndFrames + kCharaSetFrames * use + place] = static_cast<unsigned char>(frame);
}

// Ticks that the end picture stays.
inline std::uint16_t EndWait(const unsigned char* set, int use = 0) {
  return GetLE16(set + kCharaSetEndWait + 2 * use);
}
inline void SetEndWait(unsigned char* set, int use, int value) {
  PutLE16(set + kCharaSetEndWait + 2 * use, static_cast<std::uint16_t>(value));
}

// Code of the point where walks begin: see WalkStartPlace.
inline std::uint16_t WalkStartPoint(const unsigned char* set) {
  return GetLE16(set + kCharaSetWalkStartPoint);
}
inline void SetWalkStartPoint(unsigned char* set, int code) {
  PutLE16(set + kCharaSetWalkStartPoint, static_cast<std::uint16_t>(code));
}

// The screen's point of a start point code: 0 to 3 the corners, 4 the middle, 5
// and 6 the middle of the right and left edge, any other code (700, 600); never
// beyond the working screen.
void WalkStartPlace(int code, int* x, int* y);
