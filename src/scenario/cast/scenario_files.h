// Lists of the files in a folder of the scenario: its backgrounds and its sounds.
#pragma once

#include "platform/types.h"

// Whether a name that a folder search gives is listed for an extension of three letters: it
// is no folder, does not begin with a full stop, and what stands behind its last full stop
// is the extension, byte by byte.
bool ScenarioFileFits(const char* name, unsigned attributes, const char* extension);

// Fills a list with a row of its own, null for none, and the files of a folder of the main
// folder ("\背景"), in the order of the search.
void ScenarioFilesShow(WindowHandle dialog, int list, const char* part, const char* extension,
                       const char* first = "未設定");
