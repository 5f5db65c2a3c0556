// The whole document of a design, as text and as a file.
#include "design_model/document_writer.h"

#include <string>

#include "base/platform.h"
#include "base/temp_files.h"
#include "design_model/document.h"

namespace NpDesignModel {

std::string sDocumentText(const CDesignModel& design, bool indented) {
  JsonText json(indented);
  json.BeginObject();
  json.Key("format");
  json.Text(u"design-model");
  json.Key("formatVersion");
  json.Integer(kDocumentFormatVersion);
  json.Key("input");
  if (const CInData* in = design.GetI()) {
    vWriteInData(json, *in);
  } else {
    json.Null();
  }
  json.Key("results");
  if (const CResultData* results = design.GetR()) {
    vWriteResultData(json, *results);
  } else {
    json.Null();
  }
  json.EndObject();
  return json.Finish();
}

bool boWriteDocument(const CDesignModel& design, const char* path, bool indented) {
  if (!path || !*path) return false;
  std::string text = sDocumentText(design, indented);
  std::string temporary = sTempFileNear(path, false);
  if (temporary.empty()) return false;
  PlatformFile file =
      hPlatformFileOpen(temporary.c_str(), PlatformOpenMode::kReadWriteCreate, false, nullptr);
  bool written = file != kPlatformNoFile && boPlatformFileWrite(file, text.data(), text.size());
  bool closed = file != kPlatformNoFile && boPlatformFileClose(file);
  if (written && closed && boPlatformMoveFile(temporary.c_str(), path)) return true;
  boPlatformDeleteFile(temporary.c_str());
  return false;
}

}  // namespace NpDesignModel
