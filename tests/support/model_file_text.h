// Model files as text, for every suite that checks them on bytes: lines with
// CR LF ends, the head of a file, the body of one section, models written to
// memory and read back from bytes.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "model_file/container/asf_file.h"
#include "model_file/records/frame/model_load.h"
#include "model_file/records/frame/model_write.h"
#include "road_model/model/model.h"
#include "tests/support/model_ptr.h"

// The lines, each ended by CR LF.
inline std::string sCrLf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}
inline std::string sCrLf(std::initializer_list<std::string> lines) {
  return sCrLf(std::vector<std::string>(lines));
}

// The `_EXTENT` placeholder of an empty extent, as a finished file holds it.
inline std::string sExtentLine(const std::string& values) {
  std::string line = "_EXTENT " + values + " ";
  return line + std::string(70 - line.size(), '!');
}
inline std::string sEmptyExtentLine() {
  return sExtentLine("99999999 99999999 -99999999 -99999999");
}

// The head of a model file with these head keys and these O sections.
inline std::string sModelHead(std::initializer_list<std::string> keys,
                              std::initializer_list<std::string> sections) {
  std::string head = sCrLf({"[KVRFILE_ASCII]", "_VERSION 2", "_FILETYPE sfi",
                            "_INDEX !!!!!!!!!!!!!!!!!!!!", sEmptyExtentLine()});
  for (const std::string& key : keys) head += key + "\r\n";
  for (const std::string& section : sections) head += "[O_" + section + "]\r\n";
  return head;
}

// The model as a file written to memory.
inline std::string sWrittenModel(const RmModel* model) {
  AsfFile* file = AsfFileCreate(nullptr);
  std::string bytes;
  if (boRmModelWriteFile(file, model) && boAsfFileFinish(file)) {
    const char* data = nullptr;
    size_t size = 0;
    if (boAsfMemGet(file, &data, &size)) bytes.assign(data, size);
  }
  vAsfFileClose(file);
  return bytes;
}

// The body of the section with this head line ("[+L_]", "[+O_VERLINE]"):
// the lines behind it up to the next line that starts with "[".
inline std::string sBody(const std::string& bytes, const std::string& head) {
  size_t start = bytes.find(head + "\r\n");
  if (start == std::string::npos) return "<none>";
  start += head.size() + 2;
  size_t end = start;
  while (end < bytes.size() && bytes[end] != '[') {
    size_t next = bytes.find("\r\n", end);
    end = next == std::string::npos ? bytes.size() : next + 2;
  }
  return bytes.substr(start, end - start);
}

// The body of the O section `name` in a written file.
inline std::string sSectionBody(const std::string& bytes, const std::string& name) {
  return sBody(bytes, "[+O_" + name + "]");
}

// A model read from the bytes of a file, as a load reads it; null when the
// bytes are no model file.
inline ModelPtr ReadModel(const std::string& bytes) {
  AsfFile* file = AsfFileOpenMem(bytes.data(), bytes.size());
  if (!file) return nullptr;
  ModelPtr model = NewModel();
  bool accepted = boRmModelFileAccepted(file, "mem");
  if (accepted) vRmModelRead(file, model.get(), "mem");
  vAsfFileClose(file);
  return accepted ? std::move(model) : nullptr;
}

// A model file of DATAVERSION `version` holding these O sections, each with
// its body, in this order.
inline std::string sModelFileOf(int version,
                                const std::vector<std::pair<std::string, std::string>>& sections) {
  std::string head =
      sCrLf({"[KVRFILE_ASCII]", "_VERSION 2", "_FILETYPE sfi", "_INDEX !!!!!!!!!!!!!!!!!!!!",
             sEmptyExtentLine(), "DATAVERSION " + std::to_string(version)});
  std::string bodies;
  for (const auto& [name, body] : sections) {
    head += "[O_" + name + "]\r\n";
    bodies += "[+O_" + name + "]\r\n" + body;
  }
  return head + bodies + "[END]\r\n";
}

// A section as a file of DATAVERSION `Version` holds it, and as a model
// writes it back after reading it, for tables of such cases.
struct SectionRewrite {
  const char* Name;
  std::vector<std::string> Read;
  std::vector<std::string> Written;
  int Version = 13;
};

// The body of section `name` as a model writes it back after reading a file
// of `version` whose only section is `name` with these lines: "<none>" when
// the model writes no such section, "<refused>" when the file was refused.
inline std::string sSectionWrittenBack(const std::string& name,
                                       const std::vector<std::string>& lines, int version = 13) {
  ModelPtr model = ReadModel(sModelFileOf(version, {{name, sCrLf(lines)}}));
  if (!model) return "<refused>";
  return sSectionBody(sWrittenModel(model.get()), name);
}
