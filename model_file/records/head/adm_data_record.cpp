#include "model_file/records/head/adm_data_record.h"

#include <cstring>

#include "base/fields.h"
#include "base/text.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/adm_data.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"

namespace {

constexpr char kProjectInfo[] = "PROJECTINFO";
constexpr char kProjectDescr[] = "PROJECTDESCR";
constexpr char kEmployer[] = "EMPLOYER";

bool boHasText(const char* text) { return text && *text; }

// The line-encoded form of `text` in `out`, cut to fit with its quotes.
void vLineEncode(const char* text, char* out, size_t size) {
  bool quoted = text[0] != '"';
  size_t room = size - (quoted ? 2 : 1);  // the closing quote and the terminator
  size_t length = 0;
  if (quoted) out[length++] = '"';
  for (const char* c = text; *c && length < room; ++c) {
    if (*c != '\r' && *c != '\n') {
      out[length++] = *c;
      continue;
    }
    if (length + 2 > room) break;
    out[length++] = '\\';
    out[length++] = 'n';
    if (c[0] == '\r' && c[1] == '\n') ++c;
  }
  if (quoted) out[length++] = '"';
  out[length] = 0;
}

// Turns each backslash and n back into CR LF, in place.
void vLineDecode(char* text) {
  for (char* c = text; (c = std::strstr(c, "\\n")) != nullptr; c += 2) {
    c[0] = '\r';
    c[1] = '\n';
  }
}

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return RmModelGetAdmData(model) != nullptr;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  const RmAdmData* data = model->AdmData;
  char quoted[kRecordQuoteSize];
  if (boHasText(data->ProjectInfo)) {
    boRecordWrite(file, section, "%s %s", kProjectInfo,
                  sQuote(quoted, sizeof quoted, data->ProjectInfo));
  }
  if (boHasText(data->ProjectDescr)) {
    // The whole line, keyword and closing quote included, fits the buffer.
    char encoded[kRecordLineSize - sizeof kProjectDescr - 1 + 1];
    vLineEncode(data->ProjectDescr, encoded, sizeof encoded);
    boRecordWrite(file, section, "%s %s", kProjectDescr, encoded);
  }
  if (boHasText(data->Employer)) {
    boRecordWrite(file, section, "%s %s", kEmployer, sQuote(quoted, sizeof quoted, data->Employer));
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmAdmData* data = RmAdmDataCreate();
  if (!data) return;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (std::strcmp(line.Token, kProjectInfo) == 0) {
      sHeapSet(&data->ProjectInfo, sRecordToken(&line));
    } else if (std::strcmp(line.Token, kProjectDescr) == 0) {
      sRecordToken(&line);
      vLineDecode(line.Token);
      sHeapSet(&data->ProjectDescr, line.Token);
    } else if (std::strcmp(line.Token, kEmployer) == 0) {
      sHeapSet(&data->Employer, sRecordToken(&line));
    }
  }
  vRmModelSetAdmData(model, data);
}

}  // namespace

const RmRecordFamily kRmAdmDataFamily = {
    .Keyword = "ADMDATA",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
