#include "road_model/codes/code_lists.h"

#include <cstdlib>
#include <cstring>

#include "road_model/codes/pcode.h"

namespace {

// A list is cut at commas into items of at most this many bytes, terminator
// included; the rest of a longer item is passed over.
constexpr size_t kItemSize = 50;

// The smallest number that the ascending check starts from.
constexpr double kNoNumberYet = -99999.0;

// Copies the item that starts at `cursor` into `item` and returns the place
// behind it: at its comma, or at the end of the list.
const char* NextItem(const char* cursor, char (&item)[kItemSize]) {
  const char* end = std::strchr(cursor, ',');
  if (!end) end = cursor + std::strlen(cursor);
  size_t length = static_cast<size_t>(end - cursor);
  if (length >= kItemSize) length = kItemSize - 1;
  std::memcpy(item, cursor, length);
  item[length] = 0;
  return end;
}

// The code of one decimal, read as the code filters read it.
int iItemCode(const char* text) { return iRmPcodeFromDouble(std::atof(text), false); }

bool boItemHolds(char* item, int code) {
  for (char* c = item; *c; ++c) {
    if (*c == '(' || *c == ')') *c = ' ';
  }
  const char* text = item + std::strspn(item, " ");
  if (!*text) return false;
  char* colon = std::strchr(item, ':');
  if (!colon) return iItemCode(text) == code;
  *colon = 0;
  return iItemCode(text) <= code && code <= iItemCode(colon + 1);
}

bool boStartsNumber(char c) { return (c >= '0' && c <= '9') || c == '-' || c == '.'; }

bool boEndsNumber(char c) { return c == ' ' || c == '(' || c == ')' || c == ':'; }

}  // namespace

bool boCodeInList(const char* list, int code) {
  if (!list || !*list) return true;
  char item[kItemSize];
  for (const char* cursor = list;;) {
    cursor = NextItem(cursor, item);
    if (boItemHolds(item, code)) return true;
    if (!*cursor) return false;
    ++cursor;
  }
}

bool boCodeListIsAscending(const char* list) {
  if (!list || !*list) return true;
  double lastNumber = kNoNumberYet;
  bool insideGroup = false;
  char item[kItemSize];
  for (const char* cursor = list;;) {
    cursor = NextItem(cursor, item);
    bool inNumber = false;
    for (const char* c = item; *c; ++c) {
      if (boEndsNumber(*c)) {
        inNumber = false;
        if (*c == '(') insideGroup = true;
        if (*c == ')') insideGroup = false;
      } else if (!inNumber && boStartsNumber(*c)) {
        double number = std::atof(c);
        if (lastNumber > number) return false;
        lastNumber = number;
        inNumber = true;
      }
    }
    if (!*cursor) return true;
    if (insideGroup) return false;
    ++cursor;
  }
}
