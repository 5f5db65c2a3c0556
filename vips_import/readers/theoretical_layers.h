// The designed lines of one section of the design, each read into a layer
// of the theoretical type (3) of a model section: the surface line with the
// codes of its surfaces, the pavement layers, and the plain lines of
// blasting, landscaping, sodding, removal, edge reinforcement, closed
// drainage and road bed, whose codes follow the surface line.
#pragma once

#include <vector>

namespace NpDesignModel {
class CInData;
class CRLayerPoint;
class CRModelSection;
class CRPoint;
class CRSplitSodding;
}  // namespace NpDesignModel
struct RmLayer;
struct RmModel;
struct RmSection;

// The model height of a design point: the design's height over the
// section's reference elevation `refElevation`, in single precision; -99999.0
// when the design gives 999999.0 for the height or for the offset.
double dVipsPointHeight(const NpDesignModel::CRPoint* point, double refElevation);

// The surface line (3, 0), left points first from the centre outward, so
// that the line runs from left to right. A left point carries the code of
// its surface number; a right point carries that of the point before it,
// the first none, since a code names the surface towards the centre line.
// A surface number with a serial number gives that number within its
// family and group. With points, the surface descriptions are reconciled
// with the line (surface_reconciliation.h). Null when the design has no
// surface point.
RmLayer* VipsReadSurfaceLine(const NpDesignModel::CInData* in,
                             const NpDesignModel::CRModelSection* modelSection, RmModel* model,
                             RmSection* section, double refElevation);

// The layer number of a pavement layer type of the design; -2 for a type
// that is not read.
int iVipsPavementLayerNumber(int layerType);

// The pavement layer (3, number), each point with the code of its surface
// number; then the codes follow `surfaceLayer` when it is given.
void vVipsReadPavementLayer(const NpDesignModel::CInData* in,
                            const std::vector<const NpDesignModel::CRLayerPoint*>& layerPoints,
                            int number, RmModel* model, RmSection* section, double refElevation,
                            const RmLayer* surfaceLayer);

// The points appended to layer (3, number), made with `name` at the first
// point when missing. The right part of a line (`side` 2) that has a left
// part already is set apart from it by a point without height at the left
// part's last offset. The codes then follow `surfaceLayer`.
void vVipsReadPointLayer(const NpDesignModel::CInData* in,
                         const std::vector<const NpDesignModel::CRPoint*>& points, int number,
                         RmModel* model, RmSection* section, double refElevation, int side,
                         const char* name, const RmLayer* surfaceLayer);

// The split soddings, each by its kind into layer 5 (kinds 1 to 4), 9 (51)
// or 13 (91 and 92) as a right part; other kinds are left out. True when the
// list held any sodding, also one left out.
bool boVipsReadSplitSoddings(const NpDesignModel::CInData* in,
                             const std::vector<const NpDesignModel::CRSplitSodding*>& soddings,
                             RmModel* model, RmSection* section, double refElevation,
                             const RmLayer* surfaceLayer);
