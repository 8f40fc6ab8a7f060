// What stands behind the cast of a scene, as SnryCharBackDlg has it in its fields.
#pragma once

#include "platform/types.h"
#include "scenario/storage/scenario.h"
#include "services/dib.h"

struct CastBackdropState {
  SnryBackdropRec fields = {};
  std::uint8_t colour[3] = {};  // R, G, B where there is no background
  ImageHandle picture = nullptr;
  bool shown = false;     // all fields stand in the dialog
  char source[260] = {};  // of a background that is added
};
extern CastBackdropState CastBackdrop;

// Takes the fields from the scene. Names of files that are not there, as a dialog says, are
// cleared, in the scene too.
void CastBackdropBegin(WindowHandle dialog, bool (*isThere)(WindowHandle dialog, const char* name));

// Puts the fields into the scene.
void CastBackdropStore();

// Loads the picture of the background on show; none for an empty name.
void CastBackdropLoad();
void CastBackdropFree();
