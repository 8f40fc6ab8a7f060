// The records of mirrell_chara_file.dcx: a main character with its CharaSet, and a
// clock design. A main character's CharaSet stands in the settings file too. Numbers
// of a main character are big-endian; CharaSet and the design lie as in memory, low
// byte first.
#pragma once

#include "services/record.h"

inline constexpr int kCharaSetUses = 10;
inline constexpr int kCharaSetFrames = 5;  // frames of a walk, and of its end

// CharaSet, 676 bytes
//
// offset  size  field
//      0     2  CharaNo, number of the character, from 1
//      2    20  MotionA
//     22    20  MotionB
//     42     8  MotionC
//     50     4  MotionD
//     54     5  MotionE
//     59     5  spare1
//     64   100  MotionF
//    164   100  MotionG
//    264    40  MotionH
//    304    20  MotionI
//    324    20  WalkRow: the row of WalkCharas and WalkFlags that walks, from 1; 0 for none
//    344    10  WalkUse, bits kWalkUse*
//    354    20  WalkStartX, in pixels of the screen
//    374    20  WalkStartY
//    394     2  spare2
//    396    40  WalkStepX, pixels of one step
//    436    40  WalkStepY
//    476    20  WalkPeriod, ticks between two steps
//    496    20  WalkCount, steps of the whole walk
//    516    50  WalkFrames, from 1; 0 is unused
//    566    50  EndFrames, the same
//    616    20  EndWait, ticks that the end picture stays
//    636     2  WalkStartPoint, code of the point where walks begin: see WalkStartPlace
//    638    38  spare3
//
// Nothing of this program reads MotionA to MotionI; they travel with the record. Of
// the ten uses of a walk only use 0 is played.
struct CharaSetRecord {
  std::uint16_t CharaNo;
  unsigned char MotionA[20];
  unsigned char MotionB[20];
  std::uint16_t MotionC[4];
  unsigned char MotionD[4];
  unsigned char MotionE[5];
  unsigned char spare1[5];
  unsigned char MotionF[5][20];
  unsigned char MotionG[5][20];
  unsigned char MotionH[40];
  unsigned char MotionI[20];
  std::uint16_t WalkRow[kCharaSetUses];
  std::uint8_t WalkUse[kCharaSetUses];
  std::uint16_t WalkStartX[kCharaSetUses];
  std::uint16_t WalkStartY[kCharaSetUses];
  unsigned char spare2[2];
  std::int32_t WalkStepX[kCharaSetUses];
  std::int32_t WalkStepY[kCharaSetUses];
  std::uint16_t WalkPeriod[kCharaSetUses];
  std::uint16_t WalkCount[kCharaSetUses];
  std::uint8_t WalkFrames[kCharaSetUses][kCharaSetFrames];
  std::uint8_t EndFrames[kCharaSetUses][kCharaSetFrames];
  std::uint16_t EndWait[kCharaSetUses];
  std::uint16_t WalkStartPoint;
  unsigned char spare3[38];

  bool operator==(const CharaSetRecord&) const = default;
};

// Bits of WalkUse.
inline constexpr unsigned kWalkUseOpen = 1;
inline constexpr unsigned kWalkUseMail = 2;

template <class Io>
constexpr void Fields(Io& io, CharaSetRecord& set) {
  io.LE16(set.CharaNo);
  io.Bytes(set.MotionA);
  io.Bytes(set.MotionB);
  io.LE16(set.MotionC);
  io.Bytes(set.MotionD);
  io.Bytes(set.MotionE);
  io.Bytes(set.spare1);
  io.At(64);
  io.Bytes(set.MotionF);
  io.Bytes(set.MotionG);
  io.Bytes(set.MotionH);
  io.Bytes(set.MotionI);
  io.At(324);
  io.LE16(set.WalkRow);
  io.U8(set.WalkUse);
  io.LE16(set.WalkStartX);
  io.LE16(set.WalkStartY);
  io.Bytes(set.spare2);
  io.At(396);
  io.LE32(set.WalkStepX);
  io.LE32(set.WalkStepY);
  io.LE16(set.WalkPeriod);
  io.LE16(set.WalkCount);
  io.U8(set.WalkFrames);
  io.U8(set.EndFrames);
  io.LE16(set.EndWait);
  io.LE16(set.WalkStartPoint);
  io.Bytes(set.spare3);
}
static_assert(RecordSize<CharaSetRecord>() == 676);

inline constexpr int kBoredFrameCount = 5;

// One main character with its idle settings, 740 bytes of the file
//
// offset  size  field
//      0     4  charaNo, of which 16 bits are kept
//      4     4  menuFrame
//      8     4  blinkFrame
//     12    20  bored1Frames
//     32    20  bored2Frames
//     52     4  boredDelaySel
//     56     4  boredSpeedSel
//     60     4  boredRepeatSel
//     64   676  charaSet
//
// The second number and the blink interval stand in lists of their own.
struct MainChara {
  std::uint16_t charaNo;
  std::int32_t menuFrame;
  std::int32_t blinkFrame;
  std::int32_t bored1Frames[kBoredFrameCount];
  std::int32_t bored2Frames[kBoredFrameCount];
  std::int32_t boredDelaySel;
  std::int32_t boredSpeedSel;
  std::int32_t boredRepeatSel;
  std::int32_t blinkSpeedSel;
  std::int32_t secondNumber;  // kept: the second number of a main character has no effect
  CharaSetRecord charaSet;
};

template <class Io>
constexpr void Fields(Io& io, MainChara& chara) {
  io.At(2);
  io.BE16(chara.charaNo);
  io.BE32(chara.menuFrame);
  io.BE32(chara.blinkFrame);
  io.BE32(chara.bored1Frames);
  io.BE32(chara.bored2Frames);
  io.BE32(chara.boredDelaySel);
  io.BE32(chara.boredSpeedSel);
  io.BE32(chara.boredRepeatSel);
  io.At(64);
  io.Record(chara.charaSet);
}
static_assert(RecordSize<MainChara>() == 740);

inline constexpr int kStrikeSteps = 7;
inline constexpr int kStrikeHours = 13;
inline constexpr int kDesignSoundSize = 256;
inline constexpr int kDesignNameSize = 64;

// Clock design, 464 bytes
//
// offset  size  field
//      0     1  hand, ClockHand
//      1     1  repeat flag
//      2     1  strikeMode
//      3     1  soundOn
//      4     2  hourLength of the hand, pixels
//      6     2  minuteLength
//      8     2  centreX, signed
//     10     2  centreY, signed
//     12     3  handColour: red, green, blue
//     15     3  faceColour
//     18    14  strikeDelay, ticks
//     32    91  hourFigures, frame numbers from 1, 0 ends a row
//    123     1  spare1
//    124   256  sound, a file of the folder "\サウンド"
//    380    64  name; empty: the name of its character
//    444    20  spare2
struct ClockDesignRecord {
  std::uint8_t hand;
  std::uint8_t repeat;
  std::uint8_t strikeMode;
  std::uint8_t soundOn;
  std::uint16_t hourLength;
  std::uint16_t minuteLength;
  std::int16_t centreX;
  std::int16_t centreY;
  unsigned char handColour[3];
  unsigned char faceColour[3];
  std::uint16_t strikeDelay[kStrikeSteps];
  std::uint8_t hourFigures[kStrikeHours][kStrikeSteps];
  unsigned char spare1;
  char sound[kDesignSoundSize + 1];
  char name[kDesignNameSize + 1];
  unsigned char spare2[20];
};

template <class Io>
constexpr void Fields(Io& io, ClockDesignRecord& design) {
  io.U8(design.hand);
  io.U8(design.repeat);
  io.U8(design.strikeMode);
  io.U8(design.soundOn);
  io.LE16(design.hourLength);
  io.LE16(design.minuteLength);
  io.LE16(design.centreX);
  io.LE16(design.centreY);
  io.Bytes(design.handColour);
  io.Bytes(design.faceColour);
  io.LE16(design.strikeDelay);
  io.U8(design.hourFigures);
  io.U8(design.spare1);
  io.At(124);
  io.Text(design.sound, kDesignSoundSize);
  io.Text(design.name, kDesignNameSize);
  io.Bytes(design.spare2);
}
static_assert(RecordSize<ClockDesignRecord>() == 464);
