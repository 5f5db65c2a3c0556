// A small reader of XML documents for checking what the tool writes: whether
// the text is well-formed (one root, tags that nest and close, quoted
// attributes, known entities) and which elements it holds.
#pragma once

#include <cctype>
#include <map>
#include <string>
#include <vector>

struct XmlElement {
  std::string Name;
  std::map<std::string, std::string> Attributes;  // as written, entities left in
  int Parent = -1;                                // index, -1 for the root
  std::string Text;                               // character data directly inside
};

namespace xml_check {

inline bool boEntitiesValid(const std::string& text) {
  for (size_t at = text.find('&'); at != std::string::npos; at = text.find('&', at + 1)) {
    size_t end = text.find(';', at);
    if (end == std::string::npos) return false;
    std::string name = text.substr(at + 1, end - at - 1);
    if (name != "amp" && name != "lt" && name != "gt" && name != "quot" && name != "apos") {
      return false;
    }
  }
  return text.find('<') == std::string::npos;
}

inline bool boNameChar(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '_' || c == ':' ||
         c == '.';
}

}  // namespace xml_check

// The elements of `text` in document order; false, with `error` set, when
// the text is not well-formed.
inline bool boReadXml(const std::string& text, std::vector<XmlElement>* elements,
                      std::string* error) {
  using namespace xml_check;
  elements->clear();
  std::vector<int> open;
  bool rootClosed = false;
  size_t at = 0;
  auto fail = [&](const std::string& why) {
    *error = why + " at byte " + std::to_string(at);
    return false;
  };
  if (text.starts_with("<?xml")) {
    at = text.find("?>");
    if (at == std::string::npos) return fail("unclosed declaration");
    at += 2;
  }
  while (at < text.size()) {
    size_t tag = text.find('<', at);
    std::string chars = text.substr(at, tag == std::string::npos ? std::string::npos : tag - at);
    if (!boEntitiesValid(chars)) return fail("bad character data");
    if (open.empty()) {
      for (char c : chars) {
        if (!std::isspace(static_cast<unsigned char>(c))) return fail("text outside the root");
      }
    } else {
      (*elements)[open.back()].Text += chars;
    }
    if (tag == std::string::npos) break;
    at = tag + 1;
    if (text.compare(at, 1, "/") == 0) {
      size_t end = text.find('>', at);
      if (end == std::string::npos) return fail("unclosed end tag");
      std::string name = text.substr(at + 1, end - at - 1);
      if (open.empty() || (*elements)[open.back()].Name != name) return fail("end tag " + name);
      open.pop_back();
      if (open.empty()) rootClosed = true;
      at = end + 1;
      continue;
    }
    if (rootClosed) return fail("a second root");
    XmlElement element;
    size_t nameEnd = at;
    while (nameEnd < text.size() && boNameChar(text[nameEnd])) ++nameEnd;
    element.Name = text.substr(at, nameEnd - at);
    if (element.Name.empty()) return fail("element without a name");
    at = nameEnd;
    bool selfClosing = false;
    while (true) {
      while (at < text.size() && std::isspace(static_cast<unsigned char>(text[at]))) ++at;
      if (at >= text.size()) return fail("unclosed tag");
      if (text[at] == '>') {
        ++at;
        break;
      }
      if (text.compare(at, 2, "/>") == 0) {
        at += 2;
        selfClosing = true;
        break;
      }
      size_t attrEnd = at;
      while (attrEnd < text.size() && boNameChar(text[attrEnd])) ++attrEnd;
      std::string name = text.substr(at, attrEnd - at);
      if (name.empty() || text.compare(attrEnd, 2, "=\"") != 0) return fail("bad attribute");
      size_t valueEnd = text.find('"', attrEnd + 2);
      if (valueEnd == std::string::npos) return fail("unclosed attribute");
      std::string value = text.substr(attrEnd + 2, valueEnd - attrEnd - 2);
      if (!boEntitiesValid(value)) return fail("bad attribute value");
      if (!element.Attributes.emplace(name, value).second) return fail("repeated attribute");
      at = valueEnd + 1;
    }
    element.Parent = open.empty() ? -1 : open.back();
    elements->push_back(element);
    if (!selfClosing) open.push_back(static_cast<int>(elements->size()) - 1);
    if (selfClosing && open.empty()) rootClosed = true;
  }
  if (!open.empty() || elements->empty()) return fail("unclosed root");
  return true;
}
