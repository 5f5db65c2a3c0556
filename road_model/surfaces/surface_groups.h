// The surface groups of the surface description (SURFGEN).
//
// A group belongs to a layer and lists the surfaces across the road from
// which that layer is built. It says where the build starts (the start
// record), which surface and height it refers to, which layers clip it, and
// it may carry a table of reference heights and border lines of its own. The
// groups stand ascending by the number of their layer.
#pragma once

#include <cstdint>

#include "base/slink.h"
#include "road_model/codes/layer_id.h"

struct RmSurfaceBorderLines;
struct RmSurfaceRefHeights;

// Where a group's build starts (STARTTYPE and the four values after it).
enum : int32_t {
  kRmStartAtCentre = 0,     // at the section's centre
  kRmStartAtLayerCode = 1,  // at a point code of a layer
  kRmStartAtExtraLine = 2,  // at an extra line
};

struct RmSurfaceGroupStart {
  int32_t Type;               // STARTTYPE
  float LayerNoOrExtraLine;   // STARTLAYERNOOREXTRALINE: file number of a layer, or a line id
  float Pcode2;               // STARTPCODE2: a PCODE in its decimal form
  float XOffset;              // STARTXOFFSET
  float YOffset;              // STARTYOFFSET
};

struct RmSurfaceGroup {
  RmSurfaceGroup* Next;
  ListHead Surfaces;             // :SURFACE, of RmSurface (surfaces.h)
  RmLayerId Id;                  // :SURFACES
  int32_t RefSurf;               // REFSURF: a surface number
  float RefHeight;               // REFHEIGHT
  RmLayerId ClipLayerLeft;       // CLIPLAYERLEFT; cleared when none
  RmLayerId ClipLayerRight;      // CLIPLAYERRIGHT
  int32_t TrimLeft;              // TRIMLEFT
  int32_t TrimRight;             // TRIMRIGHT
  RmSurfaceRefHeights* RefHeights;   // :SURFACEREFHEIGHTS, owned; null when none
  RmSurfaceBorderLines* BorderLines;  // :GROUPSURFBOUND, owned; null when none
  RmSurfaceGroupStart Start;
};

struct RmSurfaceGroups {
  ListHead Groups;  // of RmSurfaceGroup, heap nodes
};

RmSurfaceGroups* RmSurfaceGroupsCreate();
void vRmSurfaceGroupsDelete(RmSurfaceGroups** groups);
void vRmSurfaceGroupsCopy(RmSurfaceGroups* to, const RmSurfaceGroups* from);
bool boRmSurfaceGroupsHasRows(const RmSurfaceGroups* groups);

RmSurfaceGroup* RmSurfaceGroupsGetFirst(const RmSurfaceGroups* groups);
RmSurfaceGroup* RmSurfaceGroupGetNext(const RmSurfaceGroup* group);
// The group of exactly this layer, or null.
RmSurfaceGroup* RmSurfaceGroupFind(const RmSurfaceGroups* groups, RmLayerId id);
// A new group with no surfaces, in front of the first group of a greater
// layer number (behind those of the same number). Its clip layers are
// cleared and everything else is 0. Null when memory ran out.
RmSurfaceGroup* RmSurfaceGroupsAdd(RmSurfaceGroups* groups, RmLayerId id);
// Removes the group of this layer, if any, and adds a new one that refers
// to the first surface of the pavement and has an empty height table.
RmSurfaceGroup* RmSurfaceGroupsReplace(RmSurfaceGroups* groups, RmLayerId id);
// Takes the group out and deletes it with its surfaces and its two tables.
void vRmSurfaceGroupRemove(RmSurfaceGroups* groups, RmSurfaceGroup* group);
// The position of the group, or -1.
int iRmSurfaceGroupsGetIndexOf(const RmSurfaceGroups* groups, const RmSurfaceGroup* group);

// Replaces surfaces and tables of `to` by copies of those of `from` and
// copies every value; the link to the next group stays.
void vRmSurfaceGroupCopy(RmSurfaceGroup* to, const RmSurfaceGroup* from);
// Side 0 sets both clip layers, 1 the left one, 2 the right one.
void vRmSurfaceGroupSetClipLayer(RmSurfaceGroup* group, RmLayerId id, int side);
// Side 1 is the left trim, any other side the right one.
int32_t iRmSurfaceGroupGetTrim(const RmSurfaceGroup* group, int side);
void vRmSurfaceGroupSetTrim(RmSurfaceGroup* group, int side, int32_t trim);
void vRmSurfaceGroupGetStart(const RmSurfaceGroup* group, RmSurfaceGroupStart* start);
void vRmSurfaceGroupSetStart(RmSurfaceGroup* group, const RmSurfaceGroupStart* start);

// ---- Conversions of older files ----

// Applies `map` to every surface number that the groups hold: each
// surface's number and each group's reference surface.
void vRmSurfaceGroupsMapCodes(RmSurfaceGroups* groups, int32_t (*map)(int32_t code));
// Groups that started at an extra line in older files started at an offset
// from the centre, which those files kept in the two start values: such a
// group starts at the centre with those offsets, and the two values take
// their absent marks (-99999.0 and -9999.0, as the files of that time had).
void vRmSurfaceGroupsStartAtOffsets(RmSurfaceGroups* groups);
