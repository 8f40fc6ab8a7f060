// Dates of schedules: which work row a day has, and how work hours add up. Months and
// days count from 0, Monday is 0; services/scl_date.h has the months and weekdays.
#pragma once

#include <cstdint>

#include "schedule/model/scl_records.h"

// The work row of the day `offset` (0 or more) days on: Monday 0 to Sunday 6, holiday 7;
// the date moves there. Inside the years of the calendar a day that is no Sunday is a
// holiday by the calendar's flags and rules.
// kept: from 2100 on the weekday of a month's first day is -1, and the weekdays of its other
// days count from there.
int SclDayRowOf(SclDate& date, int offset);

// The weekday of the day `offset` days on, without holidays, 0 to 6 (or -1, as above). The
// date moves to the first of that day's month; within its own month it stays.
int SclPlainWeekdayOf(SclDate& date, int offset);

// The work row like SclDayRowOf. The date's day stays; when that day lies in a later month
// the date becomes the first of that month, and the caller's offset 0.
// kept: work hours between two dates know the holidays by flags, not those by rules, and their
// count of days begins again at each month.
int SclDayRowCount(SclDate& date, int& offset);

// A work row by its number; any number that is none reads as Monday's.
const SclWorkDayRow& SclRowAt(const SclWorkDayRow (&rows)[kSclRowCount], int row);
// The row of a date's day, without moving it.
const SclWorkDayRow& SclRowOfDay(const SclWorkDayRow (&rows)[kSclRowCount], SclDate date);

// The calendar day after, at the same hour.
SclDate SclNextDay(SclDate date);
// A start that stands exactly at the end of its day's row, moved to the begin of the
// next day's; any other as it is.
SclDate SclStartMoved(const SclWorkDayRow (&rows)[kSclRowCount], const SclDate& start);

// Where `hours` work hours from `start` on end, by the live rows. When no end is found,
// as with eight rows of no hours, the result is the start.
void SclAddWorkHours(std::uint32_t hours, const SclDate& start, SclDate& result);

// Work hours from `earlier` to `later` by the live rows; -2, -3, -4, -5 when the later one
// comes first by its year, month, day, hour.
std::int32_t SclWorkHoursBetween(const SclDate& earlier, const SclDate& later);

// Calendar days from one date to another that is not before it.
std::int32_t SclDayDistance(const SclDate& from, const SclDate& to);

// -1, 0 or 1: by year, month, day and hour.
int SclDateCompare(const SclDate& a, const SclDate& b);

SclDate SclDateOf(const SclItemDate& date);
SclItemDate SclItemDateOf(const SclDate& date);  // each field cut to its byte
