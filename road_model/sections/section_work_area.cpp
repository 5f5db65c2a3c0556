#include "road_model/sections/section_work_area.h"

#include "road_model/model/model.h"
#include "road_model/sections/section_set.h"

namespace {

// Whether the work area restricts this set; the range is read at each call.
bool boRestricted(const RmModel* model, const RmSectionSet* set) {
  return model && set && model->WorkArea != 0 && set->Kind != kRmLongSections;
}

bool boInside(const RmModel* model, const RmSection* section) {
  return section && section->Chain >= model->WorkAreaRange.Low &&
         section->Chain <= model->WorkAreaRange.High;
}

}  // namespace

RmSection* RmSectionsWaGetFirst(const RmModel* model, const RmSectionSet* set) {
  if (!boRestricted(model, set)) return RmSectionsGetFirst(set);
  return RmSectionsFindFirstFrom(set, model->WorkAreaRange.Low);
}

RmSection* RmSectionsWaGetLast(const RmModel* model, const RmSectionSet* set) {
  if (!boRestricted(model, set)) return RmSectionsGetLast(set);
  return RmSectionsFindLastUpTo(set, model->WorkAreaRange.High);
}

RmSection* RmSectionsWaGetNext(const RmModel* model, const RmSectionSet* set,
                               const RmSection* section) {
  RmSection* next = RmSectionsGetNext(section);
  if (!boRestricted(model, set)) return next;
  return boInside(model, next) ? next : nullptr;
}

RmSection* RmSectionsWaGetPrev(const RmModel* model, const RmSectionSet* set,
                               const RmSection* section) {
  RmSection* previous = RmSectionsGetPrev(section);
  if (!boRestricted(model, set)) return previous;
  return boInside(model, previous) ? previous : nullptr;
}

int iRmSectionsWaGetCount(const RmModel* model, const RmSectionSet* set) {
  if (!boRestricted(model, set)) return iRmSectionsGetCount(set);
  int count = 0;
  for (const RmSection* section = RmSectionsWaGetFirst(model, set); section;
       section = RmSectionsWaGetNext(model, set, section)) {
    ++count;
  }
  return count;
}

bool boRmModelHasSectionsBeforeWorkArea(const RmModel* model, const RmSectionSet* set) {
  const RmSection* first = RmSectionsGetFirst(set);
  return boRestricted(model, set) && first && model->WorkAreaRange.Low > first->Chain;
}

bool boRmModelHasSectionsAfterWorkArea(const RmModel* model, const RmSectionSet* set) {
  const RmSection* last = RmSectionsGetLast(set);
  return boRestricted(model, set) && last && last->Chain > model->WorkAreaRange.High;
}
