// What tables and buffers are made for something new.
#pragma once

#include "scenario/storage/scenario.h"

// A new scenario: title, folders, scenes, parameters, flags and their counts. The rest of
// the main file's tables stays, and so a new main file inherits it.
void SnryMainReset();

// What a new scenario goes on from, and one whose main file could not be read: no folders,
// scenes, keys and registered characters.
void SnryCountsClear();

// A new scene's buffers. Backdrop, keys and scroll stay, and so the scene inherits them.
void SnrySceneReset();

// The cast as a scene begins with it: no lines, no conditions of entry, and each
// character's figures, as the world has them, as its motions; every line of the table is
// free.
void SnryCastReset();

// A table's titles, colours and rows in a new scene.
void SnryTableReset(SnryTableRec& table);

// Puts the defaults of the stage into the options, in nearly all cases.
void SnryOptionCheck();

// The world's characters from the files of the character editor, with their names; a name
// that the files do not give stays.
void SnryWorldLoad();
// Their figures into charMotions, as the main file keeps them.
void SnryFiguresTake();
