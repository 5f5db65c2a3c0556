// HYPERLINKSDATA. The model keeps its links as one text of entries
// `name:target` with one blank between them; each entry with a target is one
// line " name:target". The reader joins the lines that start with a blank,
// without the blank of the first, and so gets that text back.
#include <cstring>

#include "base/fields.h"
#include "base/text.h"
#include "model_file/container/asf_file.h"
#include "model_file/records/head/head_records.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/hyperlinks.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"

bool boRmHyperlinksPresent(const RmModel* model) { return model->Hyperlinks != nullptr; }

void vRmHyperlinksWrite(AsfFile* file, AsfSection* section, const RmModel* model) {
  const char* cursor = model->Hyperlinks->Text;
  char entry[kRecordLineSize];
  while (boFieldNextList(&cursor, ' ', entry, sizeof entry)) {
    char* colon = std::strchr(entry, ':');
    if (!colon || !colon[1]) continue;
    *colon = 0;
    boRecordWrite(file, section, " %s:%s", entry, colon + 1);
  }
}

void vRmHyperlinksRead(AsfFile* file, AsfSection* section, RmModel* model) {
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
