// The folders of a scenario and the scenes of a folder, as tables.
#pragma once

#include "scenario/storage/scenario.h"

// Adds a folder behind the others. False, and nothing else, when there are 30 or the path
// is there already.
bool SnryFolderAdd(const char* path);

// Takes a folder out with all its scenes; those behind move up.
void SnryFolderRemove(int folder);

// "[last part of the path]-name", each cut, "[file]-name" likewise.
void SnryFolderRowText(int folder, char* text, int size);
void SnrySceneRowText(int scene, char* text, int size);  // of the current folder

// Adds a scene of a file to the current folder. False when it has 50.
bool SnrySceneAdd(const char* file);

// Takes a scene of the current folder out; those behind it move up.
void SnrySceneRemove(int scene);

// Whether a scene of the current folder has this file.
bool SnrySceneHasFile(const char* file);
