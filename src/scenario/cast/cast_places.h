// The hundred places of a cast member for lines and motions; a place that holds 0 is free.
#pragma once

#include <cstddef>

#include "scenario/storage/scenario.h"

template <class T>
int CastPlacesUsed(const T (&places)[kSnryCastPlaces]) {
  int used = 0;
  for (const T place : places) used += place != 0 ? 1 : 0;
  return used;
}

// The place of a row of a list that shows the places in use; -1 for none.
template <class T>
int CastPlaceOfRow(const T (&places)[kSnryCastPlaces], int row) {
  for (int place = 0; place < kSnryCastPlaces; ++place) {
    if (places[place] != 0 && row-- == 0) return place;
  }
  return -1;
}

// The first free place; -1 for none.
template <class T>
int CastPlaceFree(const T (&places)[kSnryCastPlaces]) {
  for (int place = 0; place < kSnryCastPlaces; ++place) {
    if (places[place] == 0) return place;
  }
  return -1;
}

// Those behind a place come down by one; the last is free.
template <class T>
void CastPlaceClose(T (&places)[kSnryCastPlaces], int place) {
  for (; place + 1 < kSnryCastPlaces; ++place) places[place] = places[place + 1];
  places[kSnryCastPlaces - 1] = 0;
}

// Bytes that a list shows of a text and of a condition.
inline constexpr int kCastShownMost = 32;

// As much of a text as is shown, cut between characters.
void CastCut(char (&to)[kCastShownMost + 1], const char* text);

// Appends "-> parameter=value", cut likewise; nothing without a condition.
void CastConditionAppend(char* text, std::size_t size, const SnryPair& pair);
