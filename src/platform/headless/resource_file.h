// Reads a compiled 32-bit resource file: dialog templates, menus, strings and
// accelerators. Texts come out as code page 932 bytes.
//
// The reader is also what the resource checks of the tests look through, so it
// keeps everything a template tells and judges nothing.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// What kind of control a template asks for.
enum class ControlClass { Button, Edit, Static, ListBox, ScrollBar, ComboBox, Other };

struct ResourceControl {
  ControlClass controlClass = ControlClass::Other;
  std::string className;  // Other
  std::string text;
  int textNumber = -1;  // a resource number in the place of a text; -1: none
  std::int64_t id = 0;  // 0 to 65535; 4294967295 or 65535 for "no id"
  std::uint32_t style = 0;
  std::uint32_t exStyle = 0;
  int x = 0, y = 0, width = 0, height = 0;  // dialog units
};

struct ResourceDialog {
  int id = 0;
  bool extended = false;
  std::uint32_t style = 0;
  std::uint32_t exStyle = 0;
  int x = 0, y = 0, width = 0, height = 0;  // dialog units
  int menuId = 0;                           // 0: none
  std::string caption;
  int fontSize = 0;
  int fontWeight = 0;
  bool fontItalic = false;
  int fontCharset = 0;
  std::string fontFace;
  std::vector<ResourceControl> controls;
};

struct ResourceMenuItem {
  std::string text;
  std::uint32_t command = 0;
  bool separator = false;
  bool grayed = false;
  bool isPopup = false;
  std::vector<ResourceMenuItem> items;  // of a popup
};

struct ResourceAccelerator {
  std::uint32_t flags = 0;  // 1 virtual key, 4 shift, 8 control, 16 alt
  int key = 0;
  std::uint32_t command = 0;
};

// Everything by its number. Resources with a name instead of a number, and
// kinds that are not read, are only counted.
struct ResourceSet {
  std::map<int, ResourceDialog> dialogs;
  std::map<int, std::vector<ResourceMenuItem>> menus;
  std::map<int, std::string> strings;
  std::map<int, std::vector<ResourceAccelerator>> accelerators;
  int others = 0;
};

// Reads the bytes of a resource file. Null on success, else what is wrong with
// them; `set` then holds what came before.
const char* ResourceParse(const std::string& bytes, ResourceSet* set);

// The same from a file of this system.
const char* ResourceLoad(const std::string& path, ResourceSet* set);
