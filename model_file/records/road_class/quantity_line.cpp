#include "model_file/records/road_class/quantity_line.h"

#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "model_file/records/frame/record_line.h"
#include "road_model/params/road_class_quantity.h"

namespace {

struct Ratio {
  uint16_t Num = 1;
  uint16_t Den = 1;
};

// The ratio behind the first ";" of `text`, if there is one. False for a
// ratio without its comma.
bool boReadRatio(const char* text, Ratio* ratio) {
  const char* semicolon = std::strchr(text, ';');
  if (!semicolon) return true;
  const char* comma = std::strchr(semicolon + 1, ',');
  if (!comma) return false;
  ratio->Num = static_cast<uint16_t>(std::atoi(semicolon + 1));
  ratio->Den = static_cast<uint16_t>(std::atoi(comma + 1));
  return true;
}

// The number in front of the ratio, up to the first character that does not
// fit; 0 when none can be read or it is no finite number.
double dReadNumber(const char* text) {
  double value = std::strtod(text, nullptr);
  return std::isfinite(value) ? value : 0.0;
}

// An integer as the file prints it, unsigned, or with a sign; what does not
// fit into 32 bits is 0.
int32_t iReadInteger(const char* text) {
  errno = 0;
  long long value = std::strtoll(text, nullptr, 10);
  if (errno != 0 || value < INT32_MIN || value > UINT32_MAX) return 0;
  return static_cast<int32_t>(static_cast<uint32_t>(value));
}

}  // namespace

bool boQuantityRead(const char* text, Quantity* quantity) {
  Ratio ratio;
  if (!boReadRatio(text, &ratio)) return false;
  quantity->value = dReadNumber(text);
  quantity->unitNum = ratio.Num;
  quantity->unitDen = ratio.Den;
  quantity->present = 1;
  return true;
}

bool boIntQuantityRead(const char* text, IntQuantity* quantity) {
  Ratio ratio;
  if (!boReadRatio(text, &ratio)) return false;
  quantity->value = iReadInteger(text);
  quantity->unitNum = ratio.Num;
  quantity->unitDen = ratio.Den;
  quantity->present = 1;
  return true;
}

void vQuantityPairRead(const char* firstText, const char* secondText, RmQuantityPair* pair) {
  boQuantityRead(firstText, &pair->second);
  boQuantityRead(secondText, &pair->first);
}

bool boQuantityWrite(AsfFile* file, AsfSection* section, const char* keyword,
                     const Quantity& quantity) {
  if (quantity.unitNum == 1 && quantity.unitDen == 1) {
    return boRecordWrite(file, section, "%s %.4f", keyword, quantity.value);
  }
  return boRecordWrite(file, section, "%s %.4f;%u,%u", keyword, quantity.value,
                       unsigned{quantity.unitNum}, unsigned{quantity.unitDen});
}

bool boQuantityPairWrite(AsfFile* file, AsfSection* section, const char* keyword,
                         const RmQuantityPair& pair) {
  return boRecordWrite(file, section, "%s %.4f;%u,%u %4f;%u,%u", keyword, pair.second.value,
                       unsigned{pair.second.unitNum}, unsigned{pair.second.unitDen},
                       pair.first.value, unsigned{pair.first.unitNum},
                       unsigned{pair.first.unitDen});
}
