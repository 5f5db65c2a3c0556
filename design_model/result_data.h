// The result side of a design: the computed cross sections with their model
// and terrain parts.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/export.h"
#include "design_model/values.h"

namespace NpDesignModel {

// A point of a result section. 999999.0 means no value.
class NP_DESIGN_MODEL_API CRPoint {
 public:
  // Offset in the section.
  virtual double GetDistance() const = 0;
  // Height relative to the section's reference elevation.
  virtual double GetElevation() const = 0;

 protected:
  ~CRPoint() = default;
};

class NP_DESIGN_MODEL_API CRSurfacePoint {
 public:
  // Never null.
  virtual const CRPoint* GetPoint() const = 0;
  virtual CSurfaceNumber GetSurfaceNumber() const = 0;

 protected:
  ~CRSurfacePoint() = default;
};

class NP_DESIGN_MODEL_API CRLayerPoint {
 public:
  // Never null.
  virtual const CRPoint* GetPoint() const = 0;
  virtual CSurfaceNumber GetSurfaceNumber() const = 0;

 protected:
  ~CRLayerPoint() = default;
};

class NP_DESIGN_MODEL_API CRPavementLayer {
 public:
  virtual std::vector<const CRLayerPoint*> GetLayerPoints() const = 0;
  virtual LayerTypeEnums GetLayerType() const = 0;

 protected:
  ~CRPavementLayer() = default;
};

class NP_DESIGN_MODEL_API CRSplitSodding {
 public:
  virtual int32_t GetID() const = 0;
  virtual double GetNumber() const = 0;
  virtual std::vector<const CRPoint*> GetPoints() const = 0;

 protected:
  ~CRSplitSodding() = default;
};

class NP_DESIGN_MODEL_API CRClosedDrainage {
 public:
  virtual std::vector<const CRPoint*> GetPoints() const = 0;

 protected:
  ~CRClosedDrainage() = default;
};

// The designed (theoretical) part of a result section.
class NP_DESIGN_MODEL_API CRModelSection {
 public:
  virtual std::vector<const CRClosedDrainage*> GetClosedDrainages() const = 0;
  virtual std::vector<const CRPoint*> GetDeepBlastings() const = 0;
  virtual std::vector<const CRPoint*> GetEdgeReinforcesLeft() const = 0;
  virtual std::vector<const CRPoint*> GetEdgeReinforcesRight() const = 0;
  virtual std::vector<const CRPoint*> GetLandscapingsLeft() const = 0;
  virtual std::vector<const CRPoint*> GetLandscapingsRight() const = 0;
  virtual std::vector<const CRPavementLayer*> GetPavementLayers() const = 0;
  virtual double GetRailwayRefElevation() const = 0;
  // Added to each height of the section.
  virtual double GetRefElevation() const = 0;
  virtual std::vector<const CRPoint*> GetRemovalBed() const = 0;
  virtual std::vector<const CRPoint*> GetRoadBed() const = 0;
  virtual std::vector<const CRPoint*> GetSoddingsLeft() const = 0;
  virtual std::vector<const CRPoint*> GetSoddingsRight() const = 0;
  virtual std::vector<const CRSplitSodding*> GetSplitSoddings() const = 0;
  virtual std::vector<const CRSurfacePoint*> GetSurfacesLeft() const = 0;
  virtual std::vector<const CRSurfacePoint*> GetSurfacesRight() const = 0;

 protected:
  ~CRModelSection() = default;
};

// One column of terrain heights at an offset.
class NP_DESIGN_MODEL_API CRLayerElevations {
 public:
  virtual double GetDistance() const = 0;
  // Heights of the further materials, relative to the terrain section's
  // elevation; may be shorter than the list of materials.
  virtual std::vector<double> GetSubSurfaces() const = 0;
  // Height of the top material, relative to the terrain section's elevation.
  virtual double GetSurface() const = 0;

 protected:
  ~CRLayerElevations() = default;
};

class NP_DESIGN_MODEL_API CRObject {
 public:
  virtual std::u16string GetCode() const = 0;
  virtual int32_t GetLevel() const = 0;
  virtual std::vector<const CRPoint*> GetPoints() const = 0;

 protected:
  ~CRObject() = default;
};

// The terrain part of a result section.
class NP_DESIGN_MODEL_API CRTerrainSection {
 public:
  // A material number: the layer number, and the 1-based position of the
  // material's name in the design's sub-surface materials.
  enum MaterialEnums : int32_t {};

  // Base height for the relative heights of this section.
  virtual double GetElevation() const = 0;
  virtual std::vector<const CRLayerElevations*> GetLayerElevations() const = 0;
  // Material numbers in layer order from the top.
  virtual std::vector<MaterialEnums> GetMaterials() const = 0;
  virtual std::vector<const CRObject*> GetObjects() const = 0;

 protected:
  ~CRTerrainSection() = default;
};

class NP_DESIGN_MODEL_API CRResultSection {
 public:
  virtual double GetChainage() const = 0;
  // Never null.
  virtual const CRModelSection* GetModel() const = 0;
  // Never null.
  virtual const CRTerrainSection* GetTerrain() const = 0;

 protected:
  ~CRResultSection() = default;
};

class NP_DESIGN_MODEL_API CResultData {
 public:
  virtual std::vector<const CRResultSection*> GetSections() const = 0;

 protected:
  ~CResultData() = default;
};

}  // namespace NpDesignModel
