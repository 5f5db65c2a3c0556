#include "road_model/model/hyperlinks.h"

#include <cstdlib>

#include "base/text.h"

RmHyperlinks* RmHyperlinksCreate() {
  return static_cast<RmHyperlinks*>(std::calloc(1, sizeof(RmHyperlinks)));
}

void vRmHyperlinksDelete(RmHyperlinks** links) {
  if (!links || !*links) return;
  vHeapFree(&(*links)->Text);
  std::free(*links);
  *links = nullptr;
}

void vRmHyperlinksCopy(RmHyperlinks* to, const RmHyperlinks* from) {
  if (to && from && to != from) sHeapSet(&to->Text, from->Text);
}
