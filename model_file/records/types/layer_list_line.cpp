#include "model_file/records/types/layer_list_line.h"

#include <fmt/format.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "model_file/container/asf_file.h"
#include "road_model/names/layer_list.h"
#include "road_model/names/mass_types.h"

namespace {

constexpr char kFieldSeparator = '|';
constexpr int kFieldCount = 8;

// A line put together in place; what does not fit is cut.
struct LineBuffer {
  char Text[kRecordLineSize];
  size_t Length = 0;

  void Append(const char* text, size_t length) {
    size_t room = sizeof Text - 1 - Length;
    if (length > room) length = room;
    std::memcpy(Text + Length, text, length);
    Length += length;
    Text[Length] = 0;
  }
};

void vAppendToken(LineBuffer* line, const RmLayerListEntry* entry) {
  char token[kRecordLineSize];
  int file = iRmLayerIdToFile(entry->Id);
  fmt::format_to_n_result<char*> written;
  if (boRmLayerListEntryIsPlain(entry)) {
    written = fmt::format_to_n(token, sizeof token, " {}", file);
  } else {
    written = fmt::format_to_n(token, sizeof token, " {}|{:.3f}|{}|{}|{}|{}|{:.3f}|{}", file,
                               double(entry->Value), entry->Filter ? entry->Filter : "",
                               entry->Flags, entry->Kind, entry->Number, double(entry->Value2),
                               entry->Text ? entry->Text : "");
  }
  line->Append(token, written.size < sizeof token ? written.size : sizeof token);
}

// Fields are read from a copy of the piece that ends at its separator.
struct Field {
  const char* Start;
  size_t Length;
};

bool boReadLong(Field field, long* value) {
  char text[32];
  if (field.Length == 0 || field.Length >= sizeof text) return false;
  std::memcpy(text, field.Start, field.Length);
  text[field.Length] = 0;
  char* end = nullptr;
  long number = std::strtol(text, &end, 10);
  if (end == text) return false;
  *value = number;
  return true;
}

bool boReadFloat(Field field, float* value) {
  char text[64];
  if (field.Length == 0 || field.Length >= sizeof text) return false;
  std::memcpy(text, field.Start, field.Length);
  text[field.Length] = 0;
  char* end = nullptr;
  double number = std::strtod(text, &end);
  if (end == text || !std::isfinite(number)) return false;
  *value = fRmLayerListValue(number);
  return true;
}

void vSetText(Field field, void (*set)(RmLayerListEntry*, const char*), RmLayerListEntry* entry) {
  if (field.Length == 0) return;
  char text[kRecordLineSize];
  std::memcpy(text, field.Start, field.Length);
  text[field.Length] = 0;
  set(entry, text);
}

void vReadToken(const char* token, RmLayerList* list) {
  Field fields[kFieldCount] = {};
  int count = 0;
  const char* start = token;
  for (const char* c = token;; ++c) {
    if (*c != kFieldSeparator && *c != 0) continue;
    if (count < kFieldCount) fields[count++] = Field{start, size_t(c - start)};
    if (*c == 0) break;
    start = c + 1;
  }
  long number = 0;
  boReadLong(fields[0], &number);
  RmLayerListEntry* entry = RmLayerListAdd(list, RmLayerIdOfFileNumber(number));
  if (!entry || count == 1) return;
  boReadFloat(fields[1], &entry->Value);
  vSetText(fields[2], vRmLayerListEntrySetFilter, entry);
  if (boReadLong(fields[3], &number)) entry->Flags = static_cast<uint32_t>(number);
  if (boReadLong(fields[4], &number)) entry->Kind = static_cast<int32_t>(number);
  if (boReadLong(fields[5], &number)) entry->Number = static_cast<int32_t>(number);
  boReadFloat(fields[6], &entry->Value2);
  vSetText(fields[7], vRmLayerListEntrySetText, entry);
}

}  // namespace

RmLayerId RmLayerIdOfFileNumber(long number) {
  RmLayerId id;
  vRmLayerIdClear(&id);
  if (number >= 0 && number <= INT32_MAX) id = RmLayerIdFromFile(static_cast<int>(number));
  return id;
}

void vRmLayerListLineWrite(AsfFile* file, AsfSection* section, const char* keyword,
                           const RmLayerList* list) {
  const RmLayerListEntry* entry = RmLayerListGetFirst(list);
  if (!entry) return;
  LineBuffer line;
  line.Append(keyword, std::strlen(keyword));
  for (; entry; entry = entry->Next) vAppendToken(&line, entry);
  boAsfSectionWriteLine(file, section, line.Text, line.Length);
}

void vRmLayerListLineRead(RecordLine* line, RmLayerList* list) {
  while (!boRecordAtEnd(line)) vReadToken(sRecordToken(line), list);
}

void vRmMassNumbersLineWrite(AsfFile* file, AsfSection* section, const char* keyword,
                             const RmMassNumbers* numbers) {
  if (!numbers || numbers->Count <= 0) return;
  LineBuffer line;
  line.Append(keyword, std::strlen(keyword));
  char number[24];
  for (int32_t i = 0; i < numbers->Count; ++i) {
    auto written = fmt::format_to_n(number, sizeof number, " {}", numbers->Numbers[i]);
    line.Append(number, written.size);
  }
  boAsfSectionWriteLine(file, section, line.Text, line.Length);
}

void vRmMassNumbersLineRead(RecordLine* line, RmMassNumbers* numbers) {
  while (!boRecordAtEnd(line)) vRmMassNumbersAdd(numbers, iRecordInteger(line));
}
