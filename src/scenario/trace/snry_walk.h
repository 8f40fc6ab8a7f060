// The two views of a parameter: both walk every scene of every scenario folder, and say in
// lines what they find. Nothing is played and nothing is carried from scene to scene.
//
// Each scene is loaded into the buffers of the editor, which hold the last one behind a
// walk; a scene that cannot be read is told of with what the one before it left there.
#pragma once

#include <cstdint>

// Where the lines go, one call each; terminated, at most kRowTextSize bytes.
struct SnryLineSink {
  void (*line)(void* context, const char* text);
  void* context;
};

// Every place where the parameter of a slot (from 0) is tested or changed.
void SnryWalkChange(int slot, const SnryLineSink& sink);

// What would start if the parameter of a slot had a value.
void SnryWalkProgress(int slot, std::int32_t value, const SnryLineSink& sink);
