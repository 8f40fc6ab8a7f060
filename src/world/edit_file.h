// How the readers of the edit files (*.sef, *.wef) begin and end.
#pragma once

#include <cstddef>
#include <cstdint>

#include "services/data_file.h"

// What the readers return: 0 done.
inline constexpr int kEditNotOpened = -1;
inline constexpr int kEditShort = -3;
inline constexpr int kEditWrongMagic = -4;

inline constexpr int kEditPathSize = 700;  // of a path of such a file

// Opens a file and reads its magic, a text without terminator. On anything but 0 the
// file is closed again.
int EditFileOpen(DataFile& data, const char* path, const char* magic);

// Passes over bytes of the file, however many it claims to have.
void EditFileSkip(DataFile& data, std::uint64_t bytes);

// Closes the file; 0, or kEditShort when it has come to a short read.
int EditFileEnd(DataFile& data);
