// Where the tests find what was built and the tree they were built from.
#pragma once

#include <string>

extern const char* const kResourceFile;      // the program's dialogs and pictures
extern const char* const kTestResourceFile;  // the dialogs of the machinery's own tests
extern const char* const kNewdataProgram;    // mirrell-newdata

// A file or folder of the tree, told from its root.
std::string SourcePath(const std::string& relative);
