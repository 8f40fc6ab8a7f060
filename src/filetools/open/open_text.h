// Names and folders in the fixed fields of the open tables.
//
// kept: of a name's 300 bytes the first 256 count. So many are copied, compared and
// shown; a longer name or folder is cut there, even inside a double-byte pair.
// Fields that come from a file need no terminator.
#pragma once

inline constexpr int kOpnTextSize = 300;
inline constexpr int kOpnTextUsed = 256;

// A field as terminated text.
struct OpnText {
  explicit OpnText(const char* field);
  char text[kOpnTextUsed + 1];
};

// Room for a row of OpnRowText.
inline constexpr int kOpnRowSize = 2 * kOpnTextUsed + 4;

// Takes the first 256 bytes of a text over into a field and clears the rest of it.
void OpnTextSet(char (&field)[kOpnTextSize], const char* text);

// True if two texts are equal in their first 256 bytes.
bool OpnTextSame(const char* a, const char* b);

// "name [folder]", as files and programs read in all lists.
void OpnRowText(char* text, int size, const char* name, const char* folder);

// Takes a row out of a column of `count` rows: those behind it move up.
void OpnRowRemove(char (*column)[kOpnTextSize], int row, int count);

// Moves a row to the top of a column: those before it move down.
void OpnRowToTop(char (*column)[kOpnTextSize], int row);
