// Items of the schedule on display: their dates worked out, their texts shown.
#pragma once

#include "schedule/model/schedule.h"

// Rewrites an item's start and end: it starts where the one before it ends.
void SclRecalcItem(int index);
// Refreshes the ends of the work rows, then recalculates all items in order.
void SclRecalcAll();

// The start to be shown of an item: one that stands at the end of its day is shown at the
// begin of the next day's row.
SclDate SclShownStart(const SclItemRec& item);

// The planned length as the table shows it: "%3dH", "%3dD", "%3d.%2dD" or "----".
void SclHoursText(const SclItemRec& item, char* text, int size);

// The two digits of a year as "%2d" with a leading blank turned into '0'; behind "20" they
// are the year. Writes at most `size` bytes, terminated.
void SclYearText(int year, char* text, int size);

// A length that the user typed: leading blanks are passed over, a leading '-' gives 0, and
// each further character counts by its place as a hexadecimal digit; what is none counts 1.
std::uint32_t SclHoursParse(const char* text);
