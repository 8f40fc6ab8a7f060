// What is wrong with the source tree in the eyes of the house.
#pragma once

#include <string>
#include <vector>

// The findings about one source file, given its path below src/ and its text:
//
//   a system header outside the folders of the platform's backends
//   a backend's own header outside the backends
//   a call that knows no end of its buffer, or starts a shell
std::vector<std::string> LintSource(const std::string& path, const std::string& text);

// The same of every .h and .cpp below a folder of this system, "path:line: what"
// a line; empty if there is none.
std::string LintTree(const std::string& folder);
