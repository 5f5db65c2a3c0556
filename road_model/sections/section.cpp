#include "road_model/sections/section.h"

#include <cmath>
#include <cstdlib>

#include "geometry/line.h"
#include "road_model/sections/layer_compare.h"
#include "road_model/codes/pcode.h"
#include "road_model/sections/section_masses.h"

namespace {

bool boWithin(double a, double b, double tolerance) { return std::fabs(a - b) <= tolerance; }

// The next layer from `layer` on that passes the filter.
const RmLayer* MatchingFrom(const RmLayer* layer, RmLayerId filter) {
  while (layer && !boRmLayerIdMatches(layer->Id, filter)) layer = layer->Next;
  return layer;
}

bool boLayersEqual(const RmSection* a, const RmSection* b, RmLayerId filter, double tolerance) {
  const RmLayer* p = MatchingFrom(RmSectionLayersGetFirst(a), filter);
  const RmLayer* q = MatchingFrom(RmSectionLayersGetFirst(b), filter);
  for (; p && q; p = MatchingFrom(p->Next, filter), q = MatchingFrom(q->Next, filter)) {
    if (!boRmLayerIdEquals(p->Id, q->Id) || !boRmLayersEqual(p, q, tolerance)) return false;
  }
  return !p && !q;
}

bool boMassesEqual(const RmSection* a, const RmSection* b, double tolerance) {
  if (iRmSectionMassesGetCount(a) != iRmSectionMassesGetCount(b)) return false;
  for (const RmMass* mass = RmSectionMassesGetFirst(a); mass; mass = mass->Next) {
    const RmMass* other = RmMassFind(b, mass->MassId);
    if (!other || !boWithin(mass->Area, other->Area, tolerance) ||
        !boWithin(mass->CentroidOffset, other->CentroidOffset, tolerance)) {
      return false;
    }
  }
  return true;
}

}  // namespace

// ---- Free sections ----

RmSection* RmSectionCreateFree() {
  auto* section = static_cast<RmSection*>(std::calloc(1, sizeof(RmSection)));
  if (!section) return nullptr;
  DLinkInit(&section->Layers, sizeof(RmLayer), nullptr);
  DLinkInit(&section->Masses, sizeof(RmMass), nullptr);
  return section;
}

void vRmSectionDeleteFree(RmSection* section) {
  if (!section) return;
  vRmSectionClearLayers(section);
  vRmSectionClearMasses(section);
  std::free(section);
}

// ---- Content ----

void vRmSectionClearLayers(RmSection* section) {
  if (!section) return;
  while (RmLayer* layer = RmSectionLayersGetFirst(section)) vRmLayerRemove(section, layer);
}

void vRmSectionClearMasses(RmSection* section) {
  if (!section) return;
  for (RmMass* mass = RmSectionMassesGetFirst(section); mass; mass = mass->Next) {
    vLiLineDelete(&mass->ExactLine);
    vLiLineDelete(&mass->ApproxLine);
  }
  vDLinkClear(&section->Masses);
}

void vRmSectionCopy(RmSection* to, const RmSection* from, RmLayerId layerFilter,
                    bool withMasses) {
  if (!to || !from || to == from) return;
  vRmSectionClearLayers(to);
  vRmSectionClearMasses(to);
  for (const RmLayer* layer = RmSectionLayersGetFirst(from); layer; layer = layer->Next) {
    if (!boRmLayerIdMatches(layer->Id, layerFilter)) continue;
    RmLayer* copy = RmLayerAddAt(to, nullptr, layer->Id);
    if (!copy) break;
    vRmLayerCopy(copy, layer);
  }
  if (withMasses) {
    for (const RmMass* mass = RmSectionMassesGetFirst(from); mass; mass = mass->Next) {
      RmMass* copy = RmMassAdd(to, mass->MassId);
      if (!copy) break;
      vRmMassCopy(copy, mass);
    }
  }
  to->ClX = from->ClX;
  to->ClY = from->ClY;
  to->LeftEnd[0] = from->LeftEnd[0];
  to->LeftEnd[1] = from->LeftEnd[1];
  to->RightEnd[0] = from->RightEnd[0];
  to->RightEnd[1] = from->RightEnd[1];
  to->Flags = from->Flags;
  to->ClipInCorner = from->ClipInCorner;
  to->Direction = from->Direction;
  to->Skew = from->Skew;
  to->Chain = from->Chain;
  to->LeftDist = from->LeftDist;
  to->RightDist = from->RightDist;
  to->LClipDist = from->LClipDist;
  to->RClipDist = from->RClipDist;
  to->TiltSlope = from->TiltSlope;
  to->TiltHeight = from->TiltHeight;
  to->TunnelRotation = from->TunnelRotation;
}

bool boRmSectionsEqual(const RmSection* a, const RmSection* b, RmLayerId layerFilter,
                       double tolerance) {
  if (!a || !b) return a == b;
  return boLayersEqual(a, b, layerFilter, tolerance) && boMassesEqual(a, b, tolerance) &&
         boWithin(a->ClX, b->ClX, tolerance) && boWithin(a->ClY, b->ClY, tolerance) &&
         a->Flags == b->Flags && a->ClipInCorner == b->ClipInCorner &&
         boWithin(a->Direction, b->Direction, tolerance) &&
         boWithin(a->Skew, b->Skew, tolerance) && boWithin(a->Chain, b->Chain, tolerance) &&
         boWithin(a->LeftDist, b->LeftDist, tolerance) &&
         boWithin(a->RightDist, b->RightDist, tolerance) &&
         boWithin(a->LClipDist, b->LClipDist, tolerance) &&
         boWithin(a->RClipDist, b->RClipDist, tolerance);
}

// ---- Flags and clipping ----

bool boRmSectionGetFlag(const RmSection* section, uint32_t mask) {
  return section && (section->Flags & mask) != 0;
}

void vRmSectionSetFlag(RmSection* section, uint32_t mask, bool on) {
  if (!section) return;
  if (on)
    section->Flags |= mask;
  else
    section->Flags &= ~mask;
}

bool boRmSectionGetClipDist(const RmSection* section, int side, double* dist) {
  if (side == kRmSideLeft && boRmSectionGetFlag(section, kRmSectionLeftClip)) {
    if (dist) *dist = -double(section->LClipDist);
    return true;
  }
  if (side == kRmSideRight && boRmSectionGetFlag(section, kRmSectionRightClip)) {
    if (dist) *dist = section->RClipDist;
    return true;
  }
  return false;
}

void vRmSectionSetClipDist(RmSection* section, int side, bool on, double dist) {
  if (!section) return;
  if (side == kRmSideLeft) {
    section->LClipDist = static_cast<float>(-dist);
    vRmSectionSetFlag(section, kRmSectionLeftClip, on);
  } else if (side == kRmSideRight) {
    section->RClipDist = static_cast<float>(dist);
    vRmSectionSetFlag(section, kRmSectionRightClip, on);
  }
}
