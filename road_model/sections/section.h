// A section of a road model: where it stands in plan, how far it reaches
// and where it is clipped, whether it is tilted, its layers and the results
// of the mass calculation at its chainage.
//
// A section lives in a section set (section_set.h), whose pools hold its
// node, its layers and their points, and its masses. A free section, made
// with RmSectionCreateFree, keeps its lists on the heap.
#pragma once

#include <cstdint>

#include "base/dlink.h"
#include "road_model/sections/layer.h"

struct LiLine;

// Bits of RmSection::Flags.
inline constexpr uint32_t kRmSectionLeftClip = 1;    // LClipDist is valid
inline constexpr uint32_t kRmSectionRightClip = 2;   // RClipDist is valid
inline constexpr uint32_t kRmSectionFollowsTilt = 4;  // follows the line's tilt angle
inline constexpr uint32_t kRmSectionLocked = 8;      // kept as it is by rebuilding
inline constexpr uint32_t kRmSectionTilted = 16;     // TiltSlope and TiltHeight are valid

// The result of one mass type in one section.
struct RmMass {
  RmMass* Next;
  RmMass* Prev;
  int32_t MassId;         // number of the mass type
  double Area;            // square metres
  double CentroidOffset;  // lever of the area from the line
  LiLine* ExactLine;      // owned outline, or null
  LiLine* ApproxLine;     // owned simplified outline, or null
};

struct RmSection {
  RmSection* Next;
  RmSection* Prev;
  ListHead Layers;        // of RmLayer, sorted by id
  ListHead Masses;        // of RmMass
  double Chain;           // :CHAIN
  double ClX, ClY;        // CLRANG 1, 2: plan point of the section's origin
  double LeftEnd[2];      // plan point of the left end, computed
  double RightEnd[2];     // plan point of the right end, computed
  float LeftDist;         // CLRANG 3: reach to the left, positive
  float RightDist;        // CLRANG 4: reach to the right
  float LClipDist;        // LCLIPDIST: signed offset, normally negative
  float RClipDist;        // RCLIPDIST: signed offset
  int32_t ClipInCorner;   // CLIPINCORNER
  double Direction;       // CLRANG 5: radians, the direction of positive offset
  double Skew;            // CLRANG 6: radians added to Direction in plan
  uint32_t Flags;         // FLAGS
  double TiltSlope;       // CLTILT 1
  double TiltHeight;      // CLTILT 2: height of the pivot
  double TunnelRotation;  // TUNNELROTATION: degrees, 0 for none
};

// Chainages of sections are one chainage within this.
inline constexpr double kRmSectionChainTolerance = 0.0005;

// ---- Free sections ----

// A section outside any set, with its lists on the heap; null when memory
// ran out.
RmSection* RmSectionCreateFree();
// Clears layers and masses and frees the node. Null is accepted.
void vRmSectionDeleteFree(RmSection* section);

// ---- Content ----

// Deletes every layer.
void vRmSectionClearLayers(RmSection* section);
// Deletes every mass with its two outlines.
void vRmSectionClearMasses(RmSection* section);

// Clears `to`, copies the layers that match `layerFilter` (-1 halves are
// wildcards), the masses if `withMasses`, and every other field.
void vRmSectionCopy(RmSection* to, const RmSection* from, RmLayerId layerFilter,
                    bool withMasses);

// Equal layers under the filter, masses by id with area and offset within
// `tolerance`, plan point, angles, chainage and distances within it, flags
// and corner clipping exact. A difference equal to the tolerance is equal.
bool boRmSectionsEqual(const RmSection* a, const RmSection* b, RmLayerId layerFilter,
                       double tolerance);

// ---- Flags and clipping ----

// Whether any bit of `mask` is set.
bool boRmSectionGetFlag(const RmSection* section, uint32_t mask);
void vRmSectionSetFlag(RmSection* section, uint32_t mask, bool on);

// The clip distance of `side` (1 left, 2 right) as a positive number on the
// left and as it stands on the right; false when that side is not clipped.
bool boRmSectionGetClipDist(const RmSection* section, int side, double* dist);
// Stores the left distance negated, the right one as it is, and switches the
// side's bit to `on`.
void vRmSectionSetClipDist(RmSection* section, int side, bool on, double dist);
