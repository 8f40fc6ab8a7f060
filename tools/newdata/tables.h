// Filling the product's tables with what a new data set holds. The factory
// settings stand in them already; what is added here belongs to the cast.
#pragma once

// The main characters' records and idle lives, the first of them as the current
// one.
void FillCharacters();

// The dials and performances of the clock designs, and the list of them that the
// calendar file keeps.
void FillClocks();

// Three calendars (month, week and day page) that begin with a year from 2022 on,
// with the public holidays and the stickers. The holidays that no rule can tell
// are flagged in the years of the working array.
void FillCalendars(int year);

// A schedule of a few weeks from that date on, with alarms, and with lines in all states at
// the places of the sample map.
void FillSchedule(int year, int month, int day);
