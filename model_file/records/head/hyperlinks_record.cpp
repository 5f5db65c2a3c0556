#include "model_file/records/head/hyperlinks_record.h"

#include <cstring>

#include "base/fields.h"
#include "base/text.h"
#include "model_file/container/asf_file.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/hyperlinks.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"

namespace {

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return RmModelGetHyperlinks(model) != nullptr;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  const char* cursor = model->Hyperlinks->Text;
  char entry[kRecordLineSize];
  while (boFieldNextList(&cursor, ' ', entry, sizeof entry)) {
    char* colon = std::strchr(entry, ':');
    if (!colon || !colon[1]) continue;
    *colon = 0;
    boRecordWrite(file, section, " %s:%s", entry, colon + 1);
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmHyperlinks* links = RmHyperlinksCreate();
  if (!links) return;
  bool first = true;
  const char* text = nullptr;
  size_t size = 0;
  while (boAsfSectionNextLine(file, section, &text, &size)) {
    if (text[0] != ' ') continue;
    sHeapAppend(&links->Text, first ? text + 1 : text);
    first = false;
  }
  vRmModelSetHyperlinks(model, links);
}

}  // namespace

const RmRecordFamily kRmHyperlinksFamily = {
    .Keyword = "HYPERLINKSDATA",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
