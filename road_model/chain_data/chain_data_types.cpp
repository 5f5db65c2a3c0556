#include "road_model/chain_data/chain_data_types.h"

RmChainDataDraw RmChainDataDrawDefaults(bool plan) {
  RmChainDataDraw draw{};
  draw.LType = 1;
  draw.LScale = 1.0f;
  draw.LColor = 1;
  draw.FigColor = 1;
  draw.FigRotMet = plan ? 1 : 0;
  draw.FScale = 1.0f;
  draw.TextColor = 1;
  draw.TextH = 1.0f;
  draw.TextDx = 1.0f;
  draw.TextDy = 1.0f;
  return draw;
}

RmChainDataType RmChainDataTypeDefaults(int type) {
  RmChainDataType entry{};
  entry.Type = type;
  if (type == 119) {
    entry.InfoType = 3;
  } else if (type >= 101 && type <= 110) {
    entry.InfoType = 1;
  } else if (type >= 111 && type <= 120) {
    entry.InfoType = 2;
  } else if (type >= 501 && type <= 510) {
    entry.InfoType = 4;
  }
  if (type >= 111 && type <= 120) entry.OwnerType = type - 10;
  switch (type) {
    case 101:
    case 102:
    case 105:
    case 106:
    case 107:
      entry.ReflineType = 2;
      break;
    case 103:
    case 104:
    case 108:
    case 109:
      entry.ReflineType = 3;
      break;
    default:
      break;
  }
  entry.PlanDraw = RmChainDataDrawDefaults(true);
  entry.SectionDraw = RmChainDataDrawDefaults(false);
  return entry;
}

RmChainDataType* RmChainDataTypeFind(RmChainDataTypes* types, int type) {
  if (!types) return nullptr;
  for (RmChainDataType& entry : types->Types) {
    if (entry.Type == type) return &entry;
  }
  return nullptr;
}

const RmChainDataType* RmChainDataTypeFind(const RmChainDataTypes* types, int type) {
  return RmChainDataTypeFind(const_cast<RmChainDataTypes*>(types), type);
}

const char* sRmChainDataInfoTypeText(const RmChainDataTypes* types, int key) {
  if (!types) return nullptr;
  for (const RmChainDataInfoType& info : types->InfoTypes) {
    if (info.Key == key) return info.Text.c_str();
  }
  return nullptr;
}
