// Opening a design document: the file, the JSON text, the format and its
// version, and then the two sides of the design.
#include <simdjson.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>

#include "base/platform.h"
#include "design_model/document.h"
#include "design_model/json_member_reader.h"

namespace NpDesignModel {

namespace {

constexpr std::string_view kFormatName = "design-model";

// The design may take this much memory per byte of its document, above a
// fixed allowance: real documents stay far below it, while a document of
// nothing but empty records cannot make the reader take unbounded memory.
constexpr uint64_t kRecordBytesPerDocumentByte = 32;
constexpr uint64_t kRecordBytesAllowance = uint64_t{64} << 20;

using Design = std::unique_ptr<DesignModelRecord>;

Design Refuse(DocumentProblem* problem, int32_t error, std::string pointer, std::string expected) {
  if (problem) {
    problem->iError = error;
    problem->sPointer = std::move(pointer);
    problem->sExpected = std::move(expected);
  }
  return nullptr;
}

// Reads the version member: an integer that this library knows.
bool boCheckFormatVersion(simdjson::dom::object root, DocumentProblem* problem) {
  simdjson::dom::element value;
  if (root.at_key("formatVersion").get(value) != simdjson::SUCCESS) {
    Refuse(problem, kOpenIllegal, "/formatVersion", "an integer");
    return false;
  }
  switch (value.type()) {
    case simdjson::dom::element_type::UINT64:  // above every version there is
      Refuse(problem, kOpenVersionTooNew, "/formatVersion", "a format version of at most 1");
      return false;
    case simdjson::dom::element_type::INT64: {
      int64_t version = value.get_int64().value_unsafe();
      if (version > kDocumentFormatVersion) {
        Refuse(problem, kOpenVersionTooNew, "/formatVersion", "a format version of at most 1");
        return false;
      }
      if (version < 1) {
        Refuse(problem, kOpenIllegal, "/formatVersion", "a format version of at least 1");
        return false;
      }
      return true;
    }
    default:
      Refuse(problem, kOpenIllegal, "/formatVersion", "an integer");
      return false;
  }
}

// Reads one side of the design: absent or null leaves it out.
template <class Side>
bool boReadSide(simdjson::dom::object root, const char* name, std::unique_ptr<Side>& side,
                ReadState& state) {
  simdjson::dom::element value;
  if (root.at_key(name).get(value) != simdjson::SUCCESS || value.is_null()) return true;
  if (!value.is_object()) {
    state.vFail("an object or null");
    state.vPrefix(name);
    return false;
  }
  side = std::make_unique<Side>();
  if (!boReadValue(value, *side, state)) {
    state.vPrefix(name);
    return false;
  }
  return true;
}

// Parses `size` bytes into `document`, giving the parser's result in
// `error`; false when the parser cannot have the memory for the text. The
// parser's index of the text, as large as the text itself, is given back
// before the records are read.
bool boParseDocument(const char* bytes, size_t size, bool padded, simdjson::dom::document& document,
                     simdjson::dom::element& root, simdjson::error_code& error) {
  simdjson::dom::parser parser;
  if (parser.allocate(std::max<size_t>(size, 64), kMaxDocumentNesting) != simdjson::SUCCESS) {
    return false;
  }
  error = parser.parse_into_document(document, bytes, size, !padded).get(root);
  return true;
}

// Reads a document of `size` bytes. `padded`: the buffer is the owned one,
// with the parser's padding behind the bytes, so that it need not be copied;
// it is freed once parsed, as the parsed document holds copies of its strings.
Design ReadDocumentBytes(const char* bytes, size_t size, std::unique_ptr<char[]>* padded,
                         DocumentProblem* problem) {
  if (!bytes) {
    bytes = "";
    size = 0;
  }
  // Editors on Windows like to begin UTF-8 text with a byte order mark; JSON
  // readers may pass over it, and this one does.
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (std::string_view(bytes, size).starts_with(kByteOrderMark)) {
    bytes += kByteOrderMark.size();
    size -= kByteOrderMark.size();
  }
  if (size > kMaxDocumentBytes) {
    return Refuse(problem, kOpenIllegal, "", "a document of at most 1073741824 bytes");
  }
  simdjson::dom::document document;
  simdjson::dom::element root;
  simdjson::error_code error;
  bool parsed = boParseDocument(bytes, size, padded != nullptr, document, root, error);
  if (padded) padded->reset();
  if (!parsed) return Refuse(problem, kOpenIllegal, "", "a document that fits in memory");
  if (error != simdjson::SUCCESS) {
    return Refuse(problem, kOpenIllegal, "",
                  std::string("a JSON document (") + simdjson::error_message(error) + ")");
  }
  simdjson::dom::object object;
  if (root.get_object().get(object) != simdjson::SUCCESS) {
    return Refuse(problem, kOpenIllegal, "", "an object");
  }
  std::string_view format;
  if (object.at_key("format").get_string().get(format) != simdjson::SUCCESS ||
      format != kFormatName) {
    return Refuse(problem, kOpenIllegal, "/format", "the string \"design-model\"");
  }
  if (!boCheckFormatVersion(object, problem)) return nullptr;

  ReadState state(kRecordBytesAllowance + kRecordBytesPerDocumentByte * uint64_t{size});
  auto design = std::make_unique<DesignModelRecord>();
  if (!boReadSide(object, "input", design->input, state) ||
      !boReadSide(object, "results", design->results, state)) {
    return Refuse(problem, kOpenIllegal, state.sPointer(), state.sExpected());
  }
  if (problem) *problem = DocumentProblem{};
  return design;
}

// Closes a file when it goes out of scope.
class OpenFile {
 public:
  explicit OpenFile(PlatformFile file) : file_(file) {}
  ~OpenFile() {
    if (file_ != kPlatformNoFile) boPlatformFileClose(file_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  PlatformFile get() const { return file_; }

 private:
  PlatformFile file_;
};

}  // namespace

std::unique_ptr<DesignModelRecord> ReadDocumentText(std::string_view text,
                                                    DocumentProblem* problem) {
  return ReadDocumentBytes(text.data(), text.size(), nullptr, problem);
}

std::unique_ptr<DesignModelRecord> ReadDocumentFile(const char* path, DocumentProblem* problem) {
  const char* unreadable = "a file that can be read";
  OpenFile file(hPlatformFileOpen(path, PlatformOpenMode::kReadExisting, false, nullptr));
  if (file.get() == kPlatformNoFile) return Refuse(problem, kOpenNotReadable, "", unreadable);
  int64_t fileSize = lPlatformFileSize(file.get());
  if (fileSize < 0) return Refuse(problem, kOpenNotReadable, "", unreadable);
  if (static_cast<uint64_t>(fileSize) > kMaxDocumentBytes) {
    return Refuse(problem, kOpenIllegal, "", "a document of at most 1073741824 bytes");
  }
  // Read into a buffer with the parser's padding behind the bytes. A file
  // that grows while it is read is taken up to its size at the start. Only
  // the padding behind what was read is cleared: the read fills the rest.
  size_t size = static_cast<size_t>(fileSize);
  auto buffer = std::make_unique_for_overwrite<char[]>(size + simdjson::SIMDJSON_PADDING);
  size_t have = 0;
  while (have < size) {
    int64_t count = lPlatformFileRead(file.get(), buffer.get() + have, size - have);
    if (count < 0) return Refuse(problem, kOpenNotReadable, "", unreadable);
    if (count == 0) break;
    have += static_cast<size_t>(count);
  }
  std::memset(buffer.get() + have, 0, simdjson::SIMDJSON_PADDING);
  const char* bytes = buffer.get();
  std::unique_ptr<DesignModelRecord> design = ReadDocumentBytes(bytes, have, &buffer, problem);
  if (design) design->documentPath = path;
  return design;
}

DocumentProblem ValidateDocument(const char* path) {
  DocumentProblem problem;
  ReadDocumentFile(path, &problem);
  return problem;
}

CDesignModel* CDesignModel::Open(std::u16string path, int32_t& err) {
  // The path came widened from the ANSI code page; narrowing gives back the
  // bytes that the platform knows the file by.
  std::string narrow(path.size() + 1, '\0');
  narrow.resize(uPlatformWideToAnsi(path.c_str(), narrow.data(), narrow.size()));
  DocumentProblem problem;
  std::unique_ptr<DesignModelRecord> design = ReadDocumentFile(narrow.c_str(), &problem);
  err = problem.iError;
  return design.release();
}

}  // namespace NpDesignModel
