#include "road_model/surfaces/surface_ref_heights.h"

#include <cstdlib>

#include "base/numbers.h"

namespace {

// The height of the straight line through two rows at `chain`.
double dStraightAt(const RmSurfaceRefHeight* a, const RmSurfaceRefHeight* b, double chain) {
  return a->Height + (static_cast<double>(b->Height) - a->Height) * (chain - a->Chain) /
                         (b->Chain - a->Chain);
}

}  // namespace

RmSurfaceRefHeights* RmSurfaceRefHeightsCreate() {
  auto* list = static_cast<RmSurfaceRefHeights*>(std::calloc(1, sizeof(RmSurfaceRefHeights)));
  if (list) DLinkInit(&list->Rows, sizeof(RmSurfaceRefHeight), nullptr);
  return list;
}

void vRmSurfaceRefHeightsDelete(RmSurfaceRefHeights** list) {
  if (!list || !*list) return;
  vDLinkClear(&(*list)->Rows);
  std::free(*list);
  *list = nullptr;
}

void vRmSurfaceRefHeightsCopy(RmSurfaceRefHeights* to, const RmSurfaceRefHeights* from) {
  if (!to || !from || to == from) return;
  vDLinkClear(&to->Rows);
  DLinkCopy(&from->Rows, &to->Rows, nullptr);
}

RmSurfaceRefHeight* RmSurfaceRefHeightsGetFirst(const RmSurfaceRefHeights* list) {
  return list ? static_cast<RmSurfaceRefHeight*>(list->Rows.first) : nullptr;
}

RmSurfaceRefHeight* RmSurfaceRefHeightAdd(RmSurfaceRefHeights* list, double chain) {
  if (!list) return nullptr;
  RmSurfaceRefHeight* before = RmSurfaceRefHeightsGetFirst(list);
  while (before && before->Chain <= chain) before = before->Next;
  auto* row = DLinkNewObjAs<RmSurfaceRefHeight>(&list->Rows, before);
  if (row) row->Chain = chain;
  return row;
}

RmSurfaceRefHeight* RmSurfaceRefHeightFindFrom(const RmSurfaceRefHeights* list, double chain) {
  RmSurfaceRefHeight* row = RmSurfaceRefHeightsGetFirst(list);
  while (row && row->Chain < chain) row = row->Next;
  return row;
}

void vRmSurfaceRefHeightsThin(RmSurfaceRefHeights** list) {
  if (!list || !*list) return;
  RmSurfaceRefHeight* row = RmSurfaceRefHeightsGetFirst(*list);
  while (row && row->Next && row->Next->Next) {
    RmSurfaceRefHeight* middle = row->Next;
    RmSurfaceRefHeight* after = middle->Next;
    if (!boEqual(after->Chain, row->Chain) &&
        boEqual(dStraightAt(row, after, middle->Chain), middle->Height)) {
      vDLinkDeleteObj(&(*list)->Rows, middle);
    } else {
      row = middle;
    }
  }
  const RmSurfaceRefHeight* first = RmSurfaceRefHeightsGetFirst(*list);
  const bool twoFlatRows = first && first->Next && !first->Next->Next &&
                           first->Height == 0.0f && first->Next->Height == 0.0f;
  if (twoFlatRows) vRmSurfaceRefHeightsDelete(list);
}

bool boRmSurfaceRefHeightAt(const RmSurfaceRefHeights* list, double chain, float* height) {
  if (!height) return false;
  *height = 0.0f;
  const RmSurfaceRefHeight* row = RmSurfaceRefHeightFindFrom(list, chain);
  if (!row || !boIsPresent(row->Height)) return false;
  if (boEqual(row->Chain, chain)) {
    *height = row->Height;
    return true;
  }
  const RmSurfaceRefHeight* previous = row->Prev;
  if (!previous || !boIsPresent(previous->Height)) return false;
  if (boEqual(previous->Chain, chain)) {
    *height = previous->Height;
    return true;
  }
  if (boEqual(previous->Chain, row->Chain)) return false;
  *height = static_cast<float>(dStraightAt(previous, row, chain));
  return true;
}
