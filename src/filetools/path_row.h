// How a file reads in the lists and fields of the file tools.
#pragma once

// Writes "name [folder]" of a path into `text` of `size` bytes; an empty path
// gives an empty text.
void PathRow(const char* path, char* text, int size);
