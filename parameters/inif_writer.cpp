#include "parameters/inif_writer.h"

#include <cstdio>
#include <string_view>

#include "base/platform.h"

namespace {

constexpr char kLineEnd[] = "\r\n";

std::string_view svTrim(std::string_view text) {
  auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

// The file's bytes; empty when it does not exist.
std::string sReadFile(const char* path) {
  std::string content;
  std::FILE* file = std::fopen(path, "rb");
  if (!file) return content;
  char block[8192];
  size_t count;
  while ((count = std::fread(block, 1, sizeof block, file)) > 0) content.append(block, count);
  std::fclose(file);
  return content;
}

// The lines of the text, each with its line end.
std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    size_t end = text.find('\n');
    size_t length = end == std::string_view::npos ? text.size() : end + 1;
    lines.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return lines;
}

bool boIsHeader(std::string_view line) {
  line = svTrim(line);
  return !line.empty() && line.front() == '[' && line.find(']') != std::string_view::npos;
}

bool boIsHeaderOf(std::string_view line, const char* section) {
  if (!boIsHeader(line)) return false;
  line = svTrim(line);
  std::string name(svTrim(line.substr(1, line.find(']') - 1)));
  return iPlatformCompareNoCase(name.c_str(), section, SIZE_MAX) == 0;
}

bool boIsBlank(std::string_view line) { return svTrim(line).empty(); }

// The key of an entry line; empty for a comment or a line without "=".
std::string_view svKeyOf(std::string_view line) {
  std::string_view text = svTrim(line);
  if (text.empty() || text.front() == ';' || text.front() == '#') return {};
  size_t equals = text.find('=');
  return equals == std::string_view::npos ? std::string_view() : svTrim(text.substr(0, equals));
}

// Appends a line of the old file, which carries its own line end; the text
// before it is brought to a line end first.
void vAppendOld(std::string& out, std::string_view line) {
  if (!out.empty() && out.back() != '\n') out += kLineEnd;
  out += line;
}

void vAppendEntry(std::string& out, const KvrInifEntry& entry) {
  if (!out.empty() && out.back() != '\n') out += kLineEnd;
  out += entry.Key;
  out += '=';
  out += entry.Value;
  out += kLineEnd;
}

// The new body of the section from its old lines.
void vAppendBody(std::string& out, const std::vector<std::string_view>& body,
                 const std::vector<KvrInifEntry>& entries, bool keep) {
  size_t end = body.size();
  while (end > 0 && boIsBlank(body[end - 1])) --end;
  std::vector<bool> written(entries.size(), false);
  if (keep) {
    for (size_t i = 0; i < end; ++i) {
      std::string_view key = svKeyOf(body[i]);
      size_t match = 0;
      while (match < entries.size() && (key.empty() || entries[match].Key != key)) ++match;
      if (match == entries.size()) {
        vAppendOld(out, body[i]);
      } else if (!written[match]) {
        vAppendEntry(out, entries[match]);
        written[match] = true;
      }
    }
  }
  for (size_t i = 0; i < entries.size(); ++i) {
    if (!written[i]) vAppendEntry(out, entries[i]);
  }
  for (size_t i = end; i < body.size(); ++i) vAppendOld(out, body[i]);
}

}  // namespace

bool boKvrInifWriteSection(const char* path, const char* section,
                           const std::vector<KvrInifEntry>& entries, bool keep) {
  if (!path || !*path || !section) return false;
  const std::string content = sReadFile(path);
  const std::vector<std::string_view> lines = LinesOf(content);

  std::string out;
  out.reserve(content.size() + entries.size() * 64);
  size_t i = 0;
  while (i < lines.size() && !boIsHeaderOf(lines[i], section)) vAppendOld(out, lines[i++]);
  if (i < lines.size()) {
    vAppendOld(out, lines[i++]);
    std::vector<std::string_view> body;
    while (i < lines.size() && !boIsHeader(lines[i])) body.push_back(lines[i++]);
    vAppendBody(out, body, entries, keep);
    while (i < lines.size()) vAppendOld(out, lines[i++]);
  } else {
    if (!out.empty() && out.back() != '\n') out += kLineEnd;
    out += '[';
    out += section;
    out += ']';
    out += kLineEnd;
    for (const KvrInifEntry& entry : entries) vAppendEntry(out, entry);
  }

  std::FILE* file = std::fopen(path, "wb");
  if (!file) return false;
  bool written = std::fwrite(out.data(), 1, out.size(), file) == out.size();
  return std::fclose(file) == 0 && written;
}
