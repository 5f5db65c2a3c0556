// ADMDATA. PROJECTINFO and EMPLOYER go through the quoting helper.
// PROJECTDESCR is line-encoded, the one text of the file that keeps its line
// breaks: it stands in double quotes (unless it starts with one), each CR,
// LF or CR LF is written as backslash and n, and the reader turns those back
// into CR LF.
#include <cstring>

#include "base/fields.h"
#include "base/text.h"
#include "model_file/records/head/head_records.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/adm_data.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"

namespace {

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

}  // namespace

bool boRmAdmDataPresent(const RmModel* model) { return model->AdmData != nullptr; }

void vRmAdmDataWrite(AsfFile* file, AsfSection* section, const RmModel* model) {
  const RmAdmData* data = model->AdmData;
  char quoted[kRecordQuoteSize];
  if (boHasText(data->ProjectInfo)) {
    boRecordWrite(file, section, "PROJECTINFO %s", sQuote(quoted, sizeof quoted, data->ProjectInfo));
  }
  if (boHasText(data->ProjectDescr)) {
    // The whole line, keyword and closing quote included, fits the buffer.
    char encoded[kRecordLineSize - sizeof "PROJECTDESCR " + 1];
    vLineEncode(data->ProjectDescr, encoded, sizeof encoded);
    boRecordWrite(file, section, "PROJECTDESCR %s", encoded);
  }
  if (boHasText(data->Employer)) {
    boRecordWrite(file, section, "EMPLOYER %s", sQuote(quoted, sizeof quoted, data->Employer));
  }
}

void vRmAdmDataRead(AsfFile* file, AsfSection* section, RmModel* model) {
  RmAdmData* data = RmAdmDataCreate();
  if (!data) return;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (std::strcmp(line.Token, "PROJECTINFO") == 0) {
      sHeapSet(&data->ProjectInfo, sRecordToken(&line));
    } else if (std::strcmp(line.Token, "PROJECTDESCR") == 0) {
      sRecordToken(&line);
      vLineDecode(line.Token);
      sHeapSet(&data->ProjectDescr, line.Token);
    } else if (std::strcmp(line.Token, "EMPLOYER") == 0) {
      sHeapSet(&data->Employer, sRecordToken(&line));
    }
  }
  vRmModelSetAdmData(model, data);
}
