// The colours of a scene that is shown as a table.
#pragma once

#include "scenario/storage/snry_scene_records.h"

// Sets a table's colours by its colour row; a row that there is not leaves them.
void SnryTableColours(SnryTableRec& table);
