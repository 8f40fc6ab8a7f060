// How a feature has its walks begin, and the dialog that asks for it.
#pragma once

#include <cstdint>

#include "platform/types.h"

inline constexpr int kWalkSoundNameSize = 300;

struct WalkSettings {
  std::uint8_t animeOn;  // the character walks first
  std::uint8_t soundOn;
  char soundName[kWalkSoundNameSize];  // a file of the folder "\サウンド"
};

struct WalkRequest;  // character/walk.h

// What a feature gives the dialog: its words and its own settings.
struct WalkSettingsForm {
  int templateId;
  WalkSettings (*stored)();
  void (*store)(const WalkSettings& settings);  // the user has set them
  // The feature's walk as these settings have it, for a trial.
  void (*request)(const WalkSettings& settings, WalkRequest& request);
};

// Runs SetOpnFileAnimeDlg, or SetMailAnimeDlg on its template. True when the user has
// set the settings.
bool WalkSettingsRun(WindowHandle owner, const WalkSettingsForm& form);
