// Opens arbitrary bytes as a design document. A document that opens is
// written out again, which walks every operation of every object of the
// design; the text written must open again and give the same text, in the
// compact and in the indented layout alike.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "design_model/document.h"

namespace {

void vCheckReadsBack(const std::string& text, const std::string& compact) {
  std::unique_ptr<NpDesignModel::DesignModelRecord> again =
      NpDesignModel::ReadDocumentText(text, nullptr);
  if (!again || NpDesignModel::sDocumentText(*again, false) != compact) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string_view bytes(reinterpret_cast<const char*>(data), size);
  NpDesignModel::DocumentProblem problem;
  std::unique_ptr<NpDesignModel::DesignModelRecord> design =
      NpDesignModel::ReadDocumentText(bytes, &problem);
  if (!design) {
    // A refused document always says why.
    if (problem.iError >= 0 || problem.sExpected.empty()) std::abort();
    return 0;
  }
  if (problem.iError != 0) std::abort();
  std::string compact = NpDesignModel::sDocumentText(*design, false);
  vCheckReadsBack(compact, compact);
  vCheckReadsBack(NpDesignModel::sDocumentText(*design, true), compact);
  return 0;
}
