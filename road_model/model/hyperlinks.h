// HYPERLINKSDATA: links from the model to documents.
//
// The text is a list of entries `name:target`, one blank between entries.
#pragma once

struct RmHyperlinks {
  char* Text;  // owned, null when empty
};

// A new, empty record; null when memory ran out.
RmHyperlinks* RmHyperlinksCreate();
// Frees the record and its text and nulls the pointer; null is accepted.
void vRmHyperlinksDelete(RmHyperlinks** links);
void vRmHyperlinksCopy(RmHyperlinks* to, const RmHyperlinks* from);
