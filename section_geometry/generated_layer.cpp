#include "section_geometry/generated_layer.h"

#include "road_model/sections/section.h"
#include "section_geometry/line_parts.h"

void vGeneratedLayerRemove(RmSection* section, int number) {
  RmLayer* layer = RmLayerFind(section, RmLayerIdMake(kRmLayerTheoreticalLike, number));
  if (layer) vRmLayerRemove(section, layer);
}

void vGeneratedLayerBuild(RmSection* section, int number, const LiLine* shape) {
  vGeneratedLayerRemove(section, number);
  if (!section || iLiLineGetElmCount(shape) == 0) return;
  RmLayer* layer = RmLayerAdd(section, RmLayerIdMake(kRmLayerTheoreticalLike, number));
  if (!layer) return;
  for (LiElm part = PartFirst(shape); part != kLiNoElm; part = PartNext(shape, part)) {
    if (part != PartFirst(shape)) RmPointAdd(layer, nullptr, 0.0, kRmNoHeight, 0);
    const LiElm end = LiElmGetPartEnd(shape, part);
    ViPoint2d point;
    for (LiElm elm = part; elm <= end; ++elm) {
      vLiElmGetP2d(shape, elm, &point);
      RmPointAdd(layer, nullptr, point.x, point.y, 0);
    }
    if (boLiLineIsPolygon(shape)) {
      vLiElmGetP2d(shape, part, &point);
      RmPointAdd(layer, nullptr, point.x, point.y, 0);
    }
  }
}
