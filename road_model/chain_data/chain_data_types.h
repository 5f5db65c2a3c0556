// The chain data type catalogue: what each type of chain data is, which
// free fields its rows carry and how it is drawn in plan and in section.
// The catalogue is kept in an initialisation file of its own
// (chain_data_types_file.h); a model does not hold it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

inline constexpr int kRmChainTypeFieldMax = 15;
inline constexpr int kRmChainThemeSize = 21;
inline constexpr int kRmChainDescrSize = 62;
inline constexpr int kRmChainFigSize = 15;

// How a type is drawn; the catalogue's key of each field is its name.
struct RmChainDataDraw {
  int32_t LType;
  float LScale;
  int32_t LColor;
  char Fig[kRmChainFigSize];
  int32_t FigColor;
  int32_t FigRotMet;
  float FScale;
  int32_t Text;
  int32_t TextFrame;
  uint8_t TextEraseBackground;
  int32_t TextColor;
  float TextH;
  float TextRot;
  float TextDx;
  float TextDy;
  int32_t GdpLayer;  // plan entries only
};

// Field kinds of a type's fields.
inline constexpr int32_t kRmChainFieldNumber = 0;
inline constexpr int32_t kRmChainFieldText = 1;  // written with ",s" behind the name

struct RmChainDataType {
  int32_t Type;
  int32_t InfoType;
  int32_t InheritType;
  int32_t OwnerType;
  int32_t ReflineType;
  char PTheme[kRmChainThemeSize];
  char LTheme[kRmChainThemeSize];
  char Descr[kRmChainDescrSize];
  int32_t FieldCount;
  char FieldNames[kRmChainTypeFieldMax][40];
  int32_t FieldKinds[kRmChainTypeFieldMax];
  RmChainDataDraw PlanDraw;
  RmChainDataDraw SectionDraw;
};

struct RmChainDataInfoType {
  int32_t Key;
  std::string Text;
};

struct RmChainDataTypes {
  std::vector<RmChainDataInfoType> InfoTypes;
  std::vector<RmChainDataType> Types;
};

// The draw defaults of a plan entry (`plan`) or a section entry.
RmChainDataDraw RmChainDataDrawDefaults(bool plan);

// A type with the classification that its number gives before the
// catalogue's keys apply, and the draw defaults.
RmChainDataType RmChainDataTypeDefaults(int type);

// The entry of that type number, or null.
RmChainDataType* RmChainDataTypeFind(RmChainDataTypes* types, int type);
const RmChainDataType* RmChainDataTypeFind(const RmChainDataTypes* types, int type);

// The text of an info type key, or null.
const char* sRmChainDataInfoTypeText(const RmChainDataTypes* types, int key);
