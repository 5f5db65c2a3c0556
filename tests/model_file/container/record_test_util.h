// Helpers of the geometry record tests: a memory container with one section
// of records to write or read, the text of that section's body, hand-written
// files to read, and field callbacks over a list of values.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <type_traits>
#include <vector>

#include "model_file/container/asf_file.h"
#include "model_file/container/asf_objects.h"
#include "tests/geometry/geometry_test_util.h"
#include "tests/model_file/container/asf_test_util.h"

// A memory write handle with the head written and one section "S" of
// `type` with the given field names.
struct RecordWriter {
  RecordWriter(int type, const std::vector<std::string>& fields) : file(AsfFileCreate(nullptr)) {
    vAsfFileSetType(file, "sfi");
    section = AsfSectionAdd(file, "S", type);
    for (size_t i = 0; i < fields.size(); ++i) {
      vAsfFieldNameSet(file, section, static_cast<int>(i), fields[i].c_str());
    }
    EXPECT_TRUE(boAsfFileWriteHead(file));
  }
  // Finishes the handle and gives its bytes.
  std::string Finish() {
    EXPECT_TRUE(boAsfFileFinish(file));
    return MemBytes(file);
  }

  OwnedFile file;
  AsfSection* section = nullptr;
};

// The values that the field callback gives, by index.
struct FieldValues {
  std::vector<std::string> values;
};

inline bool boFieldValue(void* datum, const void*, int index, const char** text) {
  const FieldValues* fields = static_cast<const FieldValues*>(datum);
  if (index < 0 || static_cast<size_t>(index) >= fields->values.size()) return false;
  *text = fields->values[static_cast<size_t>(index)].c_str();
  return true;
}

// The bytes of a memory container whose section "S" of `type`, with the
// field names `fields`, holds a record of each object, written by `write`
// with the values of `values` (none when null).
template <typename Object>
std::string WrittenRecords(int type,
                           bool (*write)(AsfFile*, AsfSection*, const Object*, AsfFieldCallback,
                                         void*),
                           std::type_identity_t<std::initializer_list<const Object*>> objects,
                           const std::vector<std::string>& fields = {},
                           FieldValues* values = nullptr) {
  RecordWriter writer(type, fields);
  AsfFieldCallback callback = values ? boFieldValue : nullptr;
  for (const Object* object : objects) {
    EXPECT_TRUE(write(writer.file, writer.section, object, callback, values));
  }
  return writer.Finish();
}

// A memory read handle on a copy of `bytes`, which it reads in place, and
// its section `name` of `type`.
struct RecordReader {
  RecordReader(const std::string& bytes, int type, const char* name = "S")
      : bytes(bytes),
        file(AsfFileOpenMem(this->bytes.data(), this->bytes.size())),
        section(file ? AsfSectionFind(file, name, type) : nullptr) {}
  // The type of the next record, with its id in *id; -1 at the end.
  int Next(long* id = nullptr) { return iAsfObjectNext(file, section, id); }

  const std::string bytes;
  OwnedFile file;
  AsfSection* section;
};

// The records between the body's head line "[+X_S]" and "[END]".
inline std::string BodyOf(const std::string& bytes) {
  size_t head = bytes.find("[+");
  size_t start = bytes.find("\r\n", head);
  size_t end = bytes.rfind("[END]\r\n");
  if (head == std::string::npos || start == std::string::npos || end == std::string::npos) {
    return "<no body>";
  }
  return bytes.substr(start + 2, end - start - 2);
}

// A file in the current format with one section "S" whose body is `body`.
// `letter` gives its type; `fieldNames` is the value of its `_FIELDNAMES`
// line, none when empty.
inline std::string FileWithBody(char letter, const std::string& fieldNames,
                                const std::string& body) {
  std::string text = "[KVRFILE_ASCII]\r\n_VERSION 2\r\n_FILETYPE sfi\r\n";
  text += std::string("[") + letter + "_S]\r\n_EXTENT -1000 -1000 1000 1000 \r\n";
  if (!fieldNames.empty()) text += "_FIELDNAMES " + fieldNames + "\r\n";
  text += std::string("[+") + letter + "_S]\r\n" + body + "[END]\r\n";
  return text;
}

// The values of the record read last, by field.
inline std::vector<std::string> ReadValues(AsfFile* file, AsfSection* section) {
  std::vector<std::string> values;
  const char* value = nullptr;
  for (int i = 0; boAsfFieldValueAt(file, section, i, &value); ++i) values.emplace_back(value);
  return values;
}

// The ids of the records of the section that are read in turn.
inline std::vector<long> RecordIds(RecordReader& reader) {
  std::vector<long> ids;
  long id = 0;
  while (reader.Next(&id) >= 0) ids.push_back(id);
  return ids;
}
