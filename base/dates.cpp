#include "base/dates.h"

#include <cstdio>

#include "base/platform.h"
#include "base/temp_text.h"

namespace {

constexpr size_t kDateSize = 12;
constexpr size_t kDateTimeSize = 20;

// The date that stands for a clock that could not be read.
constexpr PlatformDateTime kClockFailed = {1980, 1, 1, 0, 0, 0};

PlatformDateTime localNow() {
  PlatformDateTime now;
  return boPlatformLocalTime(&now) ? now : kClockFailed;
}

// Reads up to six fields; returns how many were read.
int iScanDateTime(const char* text, int fields[6]) {
  for (int i = 0; i < 6; ++i) fields[i] = 0;
  if (!text) return 0;
  int count = std::sscanf(text, "%d.%d.%d_%d:%d:%d", &fields[0], &fields[1], &fields[2],
                          &fields[3], &fields[4], &fields[5]);
  return count < 0 ? 0 : count;
}

void vStore(int* target, int value) {
  if (target) *target = value;
}

}  // namespace

const char* sDateToday() {
  PlatformDateTime now = localNow();
  char* text = static_cast<char*>(pTempAlloc(kDateSize));
  if (!text) return "";
  std::snprintf(text, kDateSize, "%04d.%02d.%02d", now.year, now.month, now.day);
  return text;
}

const char* sDateTimeNow() {
  PlatformDateTime now = localNow();
  return sDateTimeFormat(now.year, now.month, now.day, now.hour, now.minute, now.second);
}

const char* sDateTimeFormat(int year, int month, int day, int hour, int minute, int second) {
  char* text = static_cast<char*>(pTempAlloc(kDateTimeSize));
  if (!text) return "";
  std::snprintf(text, kDateTimeSize, "%04d.%02d.%02d_%02d:%02d:%02d", year, month, day, hour,
                minute, second);
  return text;
}

bool boDateParse(const char* text, int* year, int* month, int* day, int* hour, int* minute,
                 int* second, bool* outDateOnly) {
  int fields[6];
  int count = iScanDateTime(text, fields);
  if (count < 3) {
    for (int& field : fields) field = 0;
  } else if (count < 5) {
    fields[3] = fields[4] = fields[5] = 0;
  } else if (count == 5) {
    fields[5] = 0;
  }
  vStore(year, fields[0]);
  vStore(month, fields[1]);
  vStore(day, fields[2]);
  vStore(hour, fields[3]);
  vStore(minute, fields[4]);
  vStore(second, fields[5]);
  if (outDateOnly) *outDateOnly = count == 3 || count == 4;
  return count >= 3;
}

int64_t lDateParseToTime(const char* text) {
  int fields[6];
  int count = iScanDateTime(text, fields);
  if (count < 3) return -1;
  PlatformDateTime when = {fields[0], fields[1], fields[2], 0, 0, 0};
  if (count == 6) {
    when.hour = fields[3];
    when.minute = fields[4];
    when.second = fields[5];
  }
  return lPlatformMakeLocalTime(when);
}
