// The rules of the house that look at the tree as a whole.
#pragma once

#include <map>
#include <string>
#include <vector>

// Path below src/ and text of each source file.
using SourceTree = std::map<std::string, std::string>;
SourceTree SourceTreeRead(const std::string& folder);

// Every #include of the tree that no row of the table of rooms allows, and every folder
// that is no room.
std::vector<std::string> LintFloors(const SourceTree& tree);

// Every circle of files that include each other. A header and its .cpp are one file.
std::vector<std::string> LintCircles(const SourceTree& tree);

// Process-wide variables that are no state of a feature, and state that is written
// outside the files that own it.
std::vector<std::string> LintState(const SourceTree& tree);

// State that a second start in one process would find as the first one left it: that is
// named neither in the list of resets nor in a reset of its own.
std::vector<std::string> LintResets(const SourceTree& tree);

// Numbers where a name belongs: in a command that is sent or compared, and byte orders
// and places outside the codec of records.
std::vector<std::string> LintNumbers(const SourceTree& tree);

// The text with comments and the insides of literals blanked.
std::string SourceCodeOnly(const std::string& text);
