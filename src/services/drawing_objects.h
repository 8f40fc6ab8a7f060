// The shared brushes and pens, made at start and deleted at shutdown.
#pragma once

#include "platform/canvas.h"

inline constexpr int kBrushCount = 12;
inline constexpr int kPenCount = 11;

// Places in Brushes by colour (0xBBGGRR).
enum BrushIndex {
  kBrushBEBEBE,
  kBrushC8C8C8,
  kBrushC8C800,
  kBrushFFFFFF,
  kBrushFFFF00,
  kBrushFF8080,
  kBrush0000E6,
  kBrush00C800,
  kBrush8CE6F0,
  kBrush00F0F0,
  kBrushF000F0,
  kBrushFF0000,
};
inline constexpr Colour kBrushColours[kBrushCount] = {
    0xBEBEBE, 0xC8C8C8, 0xC8C800, 0xFFFFFF, 0xFFFF00, 0xFF8080,
    0x0000E6, 0x00C800, 0x8CE6F0, 0x00F0F0, 0xF000F0, 0xFF0000,
};

// Places in Pens: style, width, colour.
enum PenIndex {
  kPenF0F0F0,
  kPen646464,
  kPenDot646464,
  kPenDot6464F0,
  kPenDotC8C800,
  kPenE6E6E6,
  kPen646464Second,
  kPenFFFFFF,
  kPen0000FF,
  kPenThick000000,
  kPenThick0000FF,
};

struct DrawingState {
  BrushHandle Brushes[kBrushCount] = {};
  PenHandle Pens[kPenCount] = {};
  BrushHandle FaceBrush = nullptr;  // borrowed from the system
  Colour FaceBrushColour = 0;
};
extern DrawingState Drawing;

// Makes the shared brushes and pens, in order.
void DrawingObjectsCreate();
void DrawingObjectsDelete();
