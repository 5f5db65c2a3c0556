// Flat sections: a list of "KEYWORD value" lines, one for each field of an
// object. One table of keyword lines drives both the writer and the reader,
// so that each keyword is spelled once: the writer prints every line of the
// table in its order, the reader sets the field of each line it knows and
// passes over the others. A keyword that the file leaves out keeps the
// value that the object had before the read; a value missing behind its
// keyword reads as 0, unless the line says that it keeps the value then or
// names another value. A line may be written only when a rule of its own
// holds (a value that is present, a mode that uses it).
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <span>

#include "model_file/records/frame/record_line.h"

template <typename Object>
struct RmKeywordLine {
  const char* Keyword;
  // The printf form of the value: "%d", "%.3lf", "%s".
  const char* Format;
  // Where the value lives: a member of the object, or accessors for a value
  // that is no plain member (a nested field, a text, a constant). A line
  // without a setter is written and passed over on reading.
  int32_t Object::*Integer = nullptr;
  double Object::*Real = nullptr;
  int32_t (*GetInteger)(const Object& object) = nullptr;
  void (*SetInteger)(Object* object, int32_t value) = nullptr;
  double (*GetReal)(const Object& object) = nullptr;
  void (*SetReal)(Object* object, double value) = nullptr;
  const char* (*GetText)(const Object& object) = nullptr;
  void (*SetText)(Object* object, const char* value) = nullptr;
  // A number missing behind the keyword leaves the member as it was.
  bool KeepsValueWhenEmpty = false;
  // The value of a keyword without a number, unless it keeps the value.
  double ValueWhenEmpty = 0.0;
  // Whether the line is written for this object; null: always.
  bool (*WrittenWhen)(const Object& object) = nullptr;
};

// Writes one line of a table.
template <typename Object>
void vRmKeywordLineWrite(AsfFile* file, AsfSection* section, const Object& object,
                         const RmKeywordLine<Object>& entry) {
  if (entry.WrittenWhen && !entry.WrittenWhen(object)) return;
  char format[64];
  std::snprintf(format, sizeof format, "%s %s", entry.Keyword, entry.Format);
  if (entry.Integer) {
    boRecordWrite(file, section, format, object.*entry.Integer);
  } else if (entry.GetInteger) {
    boRecordWrite(file, section, format, entry.GetInteger(object));
  } else if (entry.Real) {
    boRecordWrite(file, section, format, object.*entry.Real);
  } else if (entry.GetReal) {
    boRecordWrite(file, section, format, entry.GetReal(object));
  } else if (entry.GetText) {
    boRecordWrite(file, section, format, entry.GetText(object));
  }
}

// Writes every line of the table, in its order.
template <typename Object>
void vRmKeywordLinesWrite(AsfFile* file, AsfSection* section, const Object& object,
                          std::span<const RmKeywordLine<Object>> lines) {
  for (const RmKeywordLine<Object>& entry : lines) {
    vRmKeywordLineWrite(file, section, object, entry);
  }
}

// Sets the field of the line's keyword (in line->Token) from the rest of
// the line. False for a keyword that the table does not know.
template <typename Object>
bool boRmKeywordLineRead(RecordLine* line, Object* object,
                         std::span<const RmKeywordLine<Object>> lines) {
  for (const RmKeywordLine<Object>& entry : lines) {
    if (std::strcmp(line->Token, entry.Keyword) != 0) continue;
    const int emptyInteger = static_cast<int>(entry.ValueWhenEmpty);
    if (entry.Integer) {
      object->*entry.Integer = iRecordInteger(
          line, entry.KeepsValueWhenEmpty ? object->*entry.Integer : emptyInteger);
    } else if (entry.SetInteger) {
      entry.SetInteger(object, iRecordInteger(line, emptyInteger));
    } else if (entry.Real) {
      object->*entry.Real = dRecordNumber(
          line, entry.KeepsValueWhenEmpty ? object->*entry.Real : entry.ValueWhenEmpty);
    } else if (entry.SetReal) {
      entry.SetReal(object, dRecordNumber(line, entry.ValueWhenEmpty));
    } else if (entry.SetText) {
      entry.SetText(object, sRecordToken(line));
    }
    return true;
  }
  return false;
}

// Reads every line of the section into the object.
template <typename Object>
void vRmKeywordLinesRead(AsfFile* file, AsfSection* section, Object* object,
                         std::span<const RmKeywordLine<Object>> lines) {
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    boRmKeywordLineRead(&line, object, lines);
  }
}
