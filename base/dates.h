// Dates and times as the system writes them: "2024.03.01" and
// "2024.03.01_14:05:09", local time, the full year, months from 1.
#pragma once

#include <cstdint>

// Today's date "%04d.%02d.%02d" from the local clock as a temporary text;
// 1980.01.01 when the clock cannot be read.
const char* sDateToday();

// Now as "%04d.%02d.%02d_%02d:%02d:%02d", a temporary text; 1980.01.01_00:00:00
// when the clock cannot be read.
const char* sDateTimeNow();

// The given date and time in the same form, a temporary text of at most 19
// characters.
const char* sDateTimeFormat(int year, int month, int day, int hour, int minute, int second);

// Reads "%d.%d.%d_%d:%d:%d". False, with every field 0, below 3 fields. With
// 6 fields *outDateOnly is false; with 5 the seconds are 0 and it is false;
// with 3 or 4 the hours, minutes and seconds are 0 and it is true. Each
// output may be null.
bool boDateParse(const char* text, int* year, int* month, int* day, int* hour, int* minute,
                 int* second, bool* outDateOnly);

// The local time of such a text in seconds since 1970; the time of day
// counts only when all 6 fields are there. -1 below 3 fields or for a time
// that does not exist.
int64_t lDateParseToTime(const char* text);
