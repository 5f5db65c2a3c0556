// The keyword lines of the vocabulary sections (layer names, mass types,
// annotation types): one table per record drives both the writer and the
// reader, so that each keyword is spelled once. Unlike the flat sections,
// most lines are left out when they hold their default, each by a rule of
// its own, and a table holds the record's layer lists and mass lists at
// their places among the plain values.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <span>

#include "base/fields.h"
#include "model_file/records/frame/record_line.h"
#include "model_file/records/types/layer_list_line.h"
#include "road_model/codes/layer_id.h"
#include "road_model/names/mass_types.h"
#include "road_model/names/owned_text.h"

struct RmLayerList;

// When a line is written.
enum class RmWhen {
  kAlways,
  kNotZero,      // reals: not within 0.00001 of 0
  kNotOne,       // reals: not within 0.00001 of 1
  kNotTwo,
  kIsZero,
  kAboveAbsent,  // above -99998
  kSet,          // a layer: a valid id; a list: an entry
  kNotEmpty,     // a text of at least one character
  kPresent,      // a text that is there, even empty
};

template <typename Object>
struct RmVocabularyLine {
  const char* Keyword;
  // The printf form of the value: "%d", "%.3f", "%s"; a layer is "%u".
  const char* Format = "%d";
  RmWhen When = RmWhen::kAlways;
  // Where the value lives: one of these.
  int32_t Object::*Integer = nullptr;
  double Object::*Real = nullptr;
  RmLayerId Object::*Layer = nullptr;
  char* Object::*Text = nullptr;
  int32_t* (*IntegerAt)(Object* object) = nullptr;  // an integer inside a member
  RmLayerList* (*ListAt)(Object* object) = nullptr;
  RmMassNumbers Object::*Masses = nullptr;
  // A text through the quoting helper, read as one token; other texts are
  // the rest of the line.
  bool Quoted = false;
  // The value of a number missing behind its keyword.
  double Default = 0.0;
  // Lines that stand only when the record says so; null: always considered.
  bool (*Applies)(const Object& object) = nullptr;
};

namespace rm_vocabulary_detail {

inline constexpr double kZeroTolerance = 0.00001;
inline constexpr double kAbsentLimit = -99998.0;

inline bool boIntegerWanted(RmWhen when, int32_t value) {
  switch (when) {
    case RmWhen::kNotZero: return value != 0;
    case RmWhen::kNotOne: return value != 1;
    case RmWhen::kNotTwo: return value != 2;
    case RmWhen::kIsZero: return value == 0;
    case RmWhen::kAboveAbsent: return value > kAbsentLimit;
    default: return true;
  }
}

inline bool boRealWanted(RmWhen when, double value) {
  switch (when) {
    case RmWhen::kNotZero: return !(std::fabs(value) < kZeroTolerance);
    case RmWhen::kNotOne: return !(std::fabs(value - 1.0) < kZeroTolerance);
    case RmWhen::kAboveAbsent: return value > kAbsentLimit;
    default: return true;
  }
}

inline bool boTextWanted(RmWhen when, const char* text) {
  if (when == RmWhen::kPresent) return text != nullptr;
  if (when == RmWhen::kNotEmpty) return text && *text;
  return true;
}

// The line's format: the keyword, a blank, the value's format.
inline const char* sLineFormat(char* buffer, size_t size, const char* keyword, const char* format) {
  std::snprintf(buffer, size, "%s %s", keyword, format);
  return buffer;
}

// The rest of the line behind its keyword, leading blanks skipped.
inline const char* sRestOfLine(RecordLine* line) {
  boRecordAtEnd(line);
  return line->Cursor;
}

}  // namespace rm_vocabulary_detail

// Writes the lines of the table that the record wants, in the table's order.
template <typename Object>
void vRmVocabularyLinesWrite(AsfFile* file, AsfSection* section, const Object& object,
                             std::span<const RmVocabularyLine<Object>> lines) {
  namespace d = rm_vocabulary_detail;
  Object& mutableObject = const_cast<Object&>(object);  // the accessors serve both ways
  char format[64];
  for (const RmVocabularyLine<Object>& entry : lines) {
    if (entry.Applies && !entry.Applies(object)) continue;
    d::sLineFormat(format, sizeof format, entry.Keyword, entry.Format);
    if (entry.Integer || entry.IntegerAt) {
      int32_t value = entry.Integer ? object.*entry.Integer : *entry.IntegerAt(&mutableObject);
      if (d::boIntegerWanted(entry.When, value)) boRecordWrite(file, section, format, value);
    } else if (entry.Real) {
      double value = object.*entry.Real;
      if (d::boRealWanted(entry.When, value)) boRecordWrite(file, section, format, value);
    } else if (entry.Layer) {
      RmLayerId id = object.*entry.Layer;
      if (entry.When != RmWhen::kSet || boRmLayerIdValid(id)) {
        boRecordWrite(file, section, format, static_cast<unsigned>(iRmLayerIdToFile(id)));
      }
    } else if (entry.Text) {
      const char* text = object.*entry.Text;
      if (!d::boTextWanted(entry.When, text)) continue;
      if (entry.Quoted) {
        char quoted[kRecordQuoteSize];
        boRecordWrite(file, section, format, sQuote(quoted, sizeof quoted, text));
      } else {
        boRecordWrite(file, section, format, text ? text : "");
      }
    } else if (entry.ListAt) {
      vRmLayerListLineWrite(file, section, entry.Keyword, entry.ListAt(&mutableObject));
    } else if (entry.Masses) {
      vRmMassNumbersLineWrite(file, section, entry.Keyword, &(object.*entry.Masses));
    }
  }
}

// Sets the value of the line's keyword (in line->Token) from the rest of the
// line. False for a keyword that the table does not know.
template <typename Object>
bool boRmVocabularyLineRead(RecordLine* line, Object* object,
                            std::span<const RmVocabularyLine<Object>> lines) {
  namespace d = rm_vocabulary_detail;
  for (const RmVocabularyLine<Object>& entry : lines) {
    if (std::strcmp(line->Token, entry.Keyword) != 0) continue;
    if (entry.Integer) {
      object->*entry.Integer = iRecordInteger(line, static_cast<int>(entry.Default));
    } else if (entry.IntegerAt) {
      *entry.IntegerAt(object) = iRecordInteger(line, static_cast<int>(entry.Default));
    } else if (entry.Real) {
      object->*entry.Real = dRecordNumber(line, entry.Default);
    } else if (entry.Layer) {
      RmLayerId id;
      vRmLayerIdClear(&id);
      if (!boRecordAtEnd(line)) id = RmLayerIdOfFileNumber(iRecordInteger(line));
      object->*entry.Layer = id;
    } else if (entry.Text) {
      const char* text = entry.Quoted ? sRecordToken(line) : d::sRestOfLine(line);
      vRmOwnedTextSet(&(object->*entry.Text), entry.When == RmWhen::kPresent || *text ? text : nullptr);
    } else if (entry.ListAt) {
      vRmLayerListLineRead(line, entry.ListAt(object));
    } else if (entry.Masses) {
      vRmMassNumbersLineRead(line, &(object->*entry.Masses));
    }
    return true;
  }
  return false;
}
