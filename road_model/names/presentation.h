// How a layer or a mass is drawn, and the presentation text that carries it
// in the model file: items "name:value" separated by blanks, the line type,
// line symbol and hatch with their values in brackets:
//   "Color:5 Mat:2 GDPLN:3 LType:GDPLT(2 0.500 0.250) LSymb:EdgSymbol(4 1.000
//    0.500 0.000) Hatch:Hatch(HType:3 HGdpType:7 HFact:1.000 ) "
#pragma once

#include <cstddef>
#include <cstdint>

struct RmPresentation {
  int32_t Color;             // Color; -1 when not set
  int32_t Material;          // Mat; -1 when not set
  int32_t Pen;               // GDPLN; -1 when not set
  int32_t LineType;          // LType: 1 is a plain line
  double LinePattern[4];     // LType: the dash lengths of a type above 1
  int32_t LineSymbol;        // LSymb: 0 for none
  double LineSymbolValues[3];
  int32_t HatchFillColor;    // Hatch HFillCol; -1 when not set
  int32_t HatchType;         // Hatch HType; 0 for no hatch
  int32_t HatchGdpType;      // Hatch HGdpType, for HType 3
  double HatchAngle;         // Hatch HAng
  double HatchFactor;        // Hatch HFact
};

// The room of a presentation text, its terminator included.
inline constexpr size_t kRmPresentationTextSize = 500;

// Every field to its default: nothing set, a plain line, no symbol, no hatch.
void vRmPresentationClear(RmPresentation* pres);
// A presentation is set when it has a colour (0 or above).
bool boRmPresentationIsSet(const RmPresentation* pres);
// Field by field, the reals within `tolerance`.
bool boRmPresentationsEqual(const RmPresentation* a, const RmPresentation* b, double tolerance);

// The presentation text, each item followed by a blank; cut to the buffer.
// Returns `buffer`.
const char* sRmPresentationFormat(const RmPresentation* pres, char* buffer, size_t size);
// Sets the fields named in `text`; unknown names are passed over, and what
// cannot be read keeps its value. A null text changes nothing.
void vRmPresentationParse(RmPresentation* pres, const char* text);
