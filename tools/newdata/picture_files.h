// The pictures, masks and outlines of the cast, and the sounds.
#pragma once

#include <filesystem>

#include "newdata/cast.h"

// Renders all frames of a character's drawing and writes its pictures, masks and
// outlines into `folder`. Throws std::runtime_error, which names the drawing and
// the frame, for a drawing that has other frames than the cast tells or whose
// figure cannot be outlined.
void WriteCharacter(const CastMember& member, const std::filesystem::path& drawing,
                    const std::filesystem::path& folder);

// All characters; their drawings are charaNN.svg in `drawings`.
void WriteCharacters(const std::filesystem::path& drawings, const std::filesystem::path& folder);

// All sounds; their recipes are in `recipes`.
void WriteSounds(const std::filesystem::path& recipes, const std::filesystem::path& folder);

// Makes the backgrounds of the calendars out of the drawing in `drawings`. Throws
// std::runtime_error, which names the file.
void WriteBackgrounds(const std::filesystem::path& drawings, const std::filesystem::path& folder);
