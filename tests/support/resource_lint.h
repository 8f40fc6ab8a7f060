// What is wrong with a dialog template in the eyes of the house.
#pragma once

#include <string>
#include <vector>

#include "platform/headless/resource_file.h"

// Every finding about one template, readable (UTF-8), in the order of its
// controls; empty for a tidy one. Found are:
//
//   a font other than the house's: a dialog unit would not be 2 pixels
//   a mnemonic that stands twice, an id that stands twice
//   controls that overlap (a group box or frame may enclose others; controls
//   that start hidden may lie on others)
//   controls that leave the dialog
//   texts that do not fit: 4 units a half-width column, 8 units a line; a
//   button needs 8 units beside its text, a check box 10, a caption 12
//   one-line edit fields of 30 units and more that stop at their right edge, and list boxes that
//   report nothing
std::vector<std::string> LintDialog(const ResourceDialog& dialog);

// All findings of all dialogs, each dialog under its number; empty if none.
std::string LintResources(const ResourceSet& set);
