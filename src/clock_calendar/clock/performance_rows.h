// The performances in use, as rows of a list.
#pragma once

// Writes the title of the one at a place among them into `size` bytes, terminated.
void PerformanceTitle(int place, char* text, int size);
