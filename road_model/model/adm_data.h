// ADMDATA: who the model is made for and what the project is.
#pragma once

struct RmAdmData {
  char* ProjectInfo;   // PROJECTINFO: owned, null when empty
  char* ProjectDescr;  // PROJECTDESCR: owned, may hold line breaks
  char* Employer;      // EMPLOYER: owned, null when empty
};

// A new, empty record; null when memory ran out.
RmAdmData* RmAdmDataCreate();
// Frees the record and its texts and nulls the pointer; null is accepted.
void vRmAdmDataDelete(RmAdmData** data);
void vRmAdmDataCopy(RmAdmData* to, const RmAdmData* from);
