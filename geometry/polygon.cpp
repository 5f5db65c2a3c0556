#include "geometry/polygon.h"

YgPolygon* YgPolygonCreate() {
  YgPolygon* polygon = LiLineCreate(false);
  vLiLineSetPolygon(polygon, true);
  return polygon;
}

void vYgPolygonDelete(YgPolygon** polygon) { vLiLineDelete(polygon); }

bool boYgPolygonCopy(YgPolygon* to, const YgPolygon* from) { return boLiLineCopy(to, from); }

int iYgElmGetCount(const YgPolygon* polygon) { return iLiLineGetElmCount(polygon); }

void vYgPolygonDeleteElms(YgPolygon* polygon) { vLiLineDeleteElms(polygon); }

double dYgPolygonArea(const YgPolygon* polygon, double* centroidX) {
  return dLiLineArea(polygon, centroidX);
}

YgPolygons* YgPolygonsCreate() {
  YgPolygons* polygons = LiLinesCreate(0, 0);
  polygons->boPolygons = true;
  return polygons;
}

void vYgPolygonsDelete(YgPolygons** polygons) { vLiLinesDelete(polygons); }

YgPolygon* YgPolygonsCreatePolygon(YgPolygons* polygons, long id) {
  return LiLinesCreate2dLine(polygons, id);
}

YgPolygon* YgPolygonsFindID(const YgPolygons* polygons, long id) {
  return LiLinesFindID(polygons, id);
}

YgPolygon* YgPolygonsGetFirst(const YgPolygons* polygons) { return LiLinesGetFirst(polygons); }

YgPolygon* YgPolygonsGetNext(const YgPolygons* polygons, const YgPolygon* polygon) {
  return LiLinesGetNext(polygons, polygon);
}

void vYgPolygonsDeletePolygon(YgPolygons* polygons, YgPolygon* polygon) {
  vLiLinesDeleteLine(polygons, polygon);
}
