#include "road_model/codes/layer_texts.h"

#include <cstring>

#include "base/temp_text.h"
#include "base/text.h"
#include "parameters/factory_settings.h"
#include "road_model/names/layer_names.h"

namespace {

// Room for a short layer text.
constexpr size_t kShortTextSize = 100;
// The type word of a layer text is compared within this many bytes.
constexpr size_t kTypeWordSize = 80;
// More digits than this cannot be a layer number.
constexpr int kMaxNumberDigits = 9;

// Cuts what follows the first point up to and including the next blank.
void vShortenBehindPoint(char* text) {
  char* point = std::strchr(text, '.');
  if (!point) return;
  char* blank = std::strchr(point + 1, ' ');
  if (!blank) {
    point[1] = 0;
    return;
  }
  std::memmove(point + 1, blank + 1, std::strlen(blank + 1) + 1);
}

bool boIsDigit(char c) { return c >= '0' && c <= '9'; }

// Reads the layer number of a text's head: digits, with ':' standing between
// runs of them. Stops at anything else.
int iLayerNumberOf(const char* digits, const char* end) {
  int number = 0;
  int count = 0;
  for (const char* c = digits; c < end; ++c) {
    if (*c == ':') continue;
    if (!boIsDigit(*c) || count == kMaxNumberDigits) break;
    number = number * 10 + (*c - '0');
    ++count;
  }
  return number;
}

int64_t iLayerFromTextAmong(const char* text, const int* types, int typeCount) {
  if (!text || !*text) return 0;
  const char* head = text;
  const char* separator = std::strstr(text, ": ");
  if (!separator || separator == text) return 0;

  while (head < separator && *head == ' ') ++head;
  const char* digits = head;
  while (digits < separator && !boIsDigit(*digits)) ++digits;
  const char* wordEnd = digits;
  while (wordEnd > head && wordEnd[-1] == ' ') --wordEnd;

  char word[kTypeWordSize];
  size_t wordLength = static_cast<size_t>(wordEnd - head);
  if (wordLength >= sizeof word) return 0;
  std::memcpy(word, head, wordLength);
  word[wordLength] = 0;

  int number = iLayerNumberOf(digits, separator);
  for (int i = 0; i < typeCount; ++i) {
    const char* shortName = sFactoryText(kFactorySectLayerTypeShort, types[i]);
    if (std::strncmp(shortName, word, wordLength) == 0) {
      return static_cast<int64_t>(
          uRmLayerIdPack(RmLayerIdMake(static_cast<uint32_t>(types[i]), number)));
    }
  }
  return 0;
}

}  // namespace

const char* sRmLayerIdDefaultName(RmLayerId id) {
  if (RmLayerIdIsTheoretical(id)) return sFactoryText(kFactorySectLayerTheoName, id.Number);
  if (RmLayerIdIsPhysical(id)) return sFactoryText(kFactorySectLayerPhysName, id.Number);
  if (id.Type == kRmLayerAdvanced) return sFactoryText(kFactorySectLayerAdvancedName, id.Number);
  return "";
}

const char* sLayerText(const RmLayerNames* names, int type, int number) {
  RmLayerId id = RmLayerIdMake(static_cast<uint32_t>(type), number);
  const char* name = sRmLayerNameGetName(names, id);
  if (!name || !*name) name = sRmLayerIdDefaultName(id);
  return sFormat("%s %*d%s%s", sFactoryText(kFactorySectLayerTypeShort, type), 3, number, ": ",
                 name);
}

const char* sLayerShortText(const RmLayerNames* names, int type, int number) {
  const char* text = sLayerText(names, type, number);
  if (type != kRmLayerTheoretical && type != kRmLayerPhysical && type != kRmLayerTheoreticalLike) {
    return sTempCopy(text);
  }
  char shortText[kShortTextSize];
  sCopy(shortText, text, sizeof shortText);
  vShortenBehindPoint(shortText);
  return sTempCopy(shortText);
}

int64_t iLayerFromText(const char* text) {
  static constexpr int kTypes[] = {kRmLayerTheoretical,     kRmLayerPhysical,
                                   kRmLayerTheoretical2,    kRmLayerPhysical2,
                                   kRmLayerShortTextOnly,   kRmLayerTheoreticalLike,
                                   kRmLayerAdvanced};
  return iLayerFromTextAmong(text, kTypes, sizeof kTypes / sizeof kTypes[0]);
}

int64_t iLayerFromTextFor(const char* text, int typeA, int typeB) {
  const int types[] = {typeA, typeB};
  return iLayerFromTextAmong(text, types, 2);
}
