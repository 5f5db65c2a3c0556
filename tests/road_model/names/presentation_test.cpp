#include <gtest/gtest.h>

#include "road_model/names/presentation.h"

namespace {

RmPresentation Cleared() {
  RmPresentation pres;
  vRmPresentationClear(&pres);
  return pres;
}

std::string sText(const RmPresentation& pres) {
  char text[kRmPresentationTextSize];
  return sRmPresentationFormat(&pres, text, sizeof text);
}

}  // namespace

TEST(Presentation, EachPartIsWrittenOnlyWhenItAppliesAndReadsBack) {
  struct Case {
    void (*Fill)(RmPresentation* pres);
    const char* Text;
  };
  const Case cases[] = {
      {[](RmPresentation* p) { p->Color = 0; }, "Color:0 "},
      {[](RmPresentation* p) { p->Color = 3, p->Material = 0, p->Pen = 2; },
       "Color:3 Mat:0 GDPLN:2 "},
      // A plain line (type 1) is no part; type 0 and 1 carry no lengths.
      {[](RmPresentation* p) { p->Color = 1, p->LineType = 0, p->LinePattern[0] = 5; },
       "Color:1 LType:GDPLT(0) "},
      // Lengths up to the last that is not 0, at least one.
      {[](RmPresentation* p) { p->Color = 1, p->LineType = 4, p->LinePattern[2] = 0.25; },
       "Color:1 LType:GDPLT(4 0.000 0.000 0.250) "},
      {[](RmPresentation* p) { p->Color = 1, p->LineType = 2; }, "Color:1 LType:GDPLT(2 0.000) "},
      {[](RmPresentation* p) { p->Color = 1, p->LineSymbol = 6, p->LineSymbolValues[1] = 1.5; },
       "Color:1 LSymb:EdgSymbol(6 0.000 1.500 0.000) "},
      // The GDP type belongs to hatch type 3 only.
      {[](RmPresentation* p) { p->Color = 1, p->HatchType = 2, p->HatchGdpType = 7; },
       "Color:1 Hatch:Hatch(HFillCol:-1 HType:2 HFact:1.000 ) "},
      {[](RmPresentation* p) {
         p->Color = 1, p->HatchFillColor = 0, p->HatchType = 3, p->HatchGdpType = 7;
         p->HatchAngle = 30;
       },
       "Color:1 Hatch:Hatch(HType:3 HGdpType:7 HAng:30.000 HFact:1.000 ) "},
  };
  for (const Case& c : cases) {
    RmPresentation pres = Cleared();
    c.Fill(&pres);
    EXPECT_EQ(sText(pres), c.Text);
    RmPresentation read = Cleared();
    vRmPresentationParse(&read, c.Text);
    // What the text leaves out for its type reads as 0.
    if (pres.LineType <= 1) read.LinePattern[0] = pres.LinePattern[0];
    if (pres.HatchType != 3) read.HatchGdpType = pres.HatchGdpType;
    EXPECT_TRUE(boRmPresentationsEqual(&read, &pres, 0.0005)) << c.Text;
  }
}

TEST(Presentation, WhatCannotBeReadKeepsItsValue) {
  RmPresentation pres = Cleared();
  vRmPresentationParse(&pres,
                       "Color:x Mat:4 Foo:(1 2) LType:GDPLT(3 abc 0.5) LSymb:EdgSymbol() "
                       "Hatch:Hatch(HType: HAng:12 Bar:1 HFact:");
  EXPECT_EQ(pres.Color, -1);
  EXPECT_EQ(pres.Material, 4);
  EXPECT_EQ(pres.LineType, 3);
  EXPECT_EQ(pres.LinePattern[0], 0.0);
  EXPECT_EQ(pres.LinePattern[1], 0.5);
  EXPECT_EQ(pres.LineSymbol, 0);
  EXPECT_EQ(pres.HatchType, 0);
  EXPECT_EQ(pres.HatchAngle, 12.0);
  EXPECT_EQ(pres.HatchFactor, 1.0);

  // A text longer than its buffer is cut, never overrun.
  pres.Color = 1;
  pres.LineType = 2;
  pres.LinePattern[0] = 1e300;
  char small[40];
  EXPECT_EQ(std::string(sRmPresentationFormat(&pres, small, sizeof small)).size(), 39u);
}
