#include "road_model/tables/pavement.h"

#include <cstdlib>

#include "base/numbers.h"
#include "road_model/tables/pavement_packages.h"

namespace {

void vInitLists(RmPavement* pavement) {
  SLinkInit(&pavement->SoilSections, sizeof(RmPavementSection), nullptr);
  SLinkInit(&pavement->RockSections, sizeof(RmPavementSection), nullptr);
  SLinkInit(&pavement->Packages, sizeof(RmPavementPackage), nullptr);
}

void vDeleteAppearings(RmPavementAppearings** list) {
  if (!*list) return;
  vDLinkClear(&(*list)->Rows);
  std::free(*list);
  *list = nullptr;
}

RmPavementAppearings* NewAppearings() {
  auto* list = static_cast<RmPavementAppearings*>(std::calloc(1, sizeof(RmPavementAppearings)));
  if (list) DLinkInit(&list->Rows, sizeof(RmPavementAppearing), nullptr);
  return list;
}

}  // namespace

RmPavement* RmPavementCreate() {
  auto* pavement = static_cast<RmPavement*>(std::calloc(1, sizeof(RmPavement)));
  if (!pavement) return nullptr;
  vInitLists(pavement);
  pavement->CutAntifreezeMinFillHeight = kNullNumber;
  return pavement;
}

void vRmPavementDelete(RmPavement** pavement) {
  if (!pavement || !*pavement) return;
  vRmPavementClear(*pavement);
  std::free(*pavement);
  *pavement = nullptr;
}

void vRmPavementClear(RmPavement* pavement) {
  if (!pavement) return;
  vSLinkClear(&pavement->SoilSections);
  vSLinkClear(&pavement->RockSections);
  vRmPavementPackagesClear(pavement);
  vDeleteAppearings(&pavement->Appearings);
}

void vRmPavementCopy(RmPavement* to, const RmPavement* from) {
  if (!to || !from || to == from) return;
  vRmPavementClear(to);
  SLinkCopy(&from->SoilSections, &to->SoilSections, nullptr);
  SLinkCopy(&from->RockSections, &to->RockSections, nullptr);
  vRmPavementPackagesCopy(to, from);
  if (from->Appearings && (to->Appearings = NewAppearings())) {
    DLinkCopy(&from->Appearings->Rows, &to->Appearings->Rows, nullptr);
  }
  to->CutAntifreezeFilling = from->CutAntifreezeFilling;
  to->CutAntifreezeMinFillHeight = from->CutAntifreezeMinFillHeight;
  to->CutAntifreezeDeepRockBlast = from->CutAntifreezeDeepRockBlast;
}

bool boRmPavementHasRows(const RmPavement* pavement) {
  return pavement &&
         (pavement->SoilSections.first || pavement->RockSections.first || pavement->Packages.first);
}

// ---- Ranges ----

ListHead* RmPavementSectionsOf(const RmPavement* pavement, int kind) {
  if (!pavement) return nullptr;
  if (kind == kRmPavementSoil) return const_cast<ListHead*>(&pavement->SoilSections);
  if (kind == kRmPavementRock) return const_cast<ListHead*>(&pavement->RockSections);
  return nullptr;
}

RmPavementSection* RmPavementSectionsGetFirst(const RmPavement* pavement, int kind) {
  ListHead* list = RmPavementSectionsOf(pavement, kind);
  return list ? ListFirst<RmPavementSection>(list) : nullptr;
}

RmPavementSection* RmPavementSectionGetNext(const RmPavementSection* section) {
  return section ? section->Next : nullptr;
}

RmPavementSection* RmPavementSectionAdd(RmPavement* pavement, double from, int kind) {
  ListHead* list = RmPavementSectionsOf(pavement, kind);
  if (!list) return nullptr;
  RmPavementSection* before = ListFirst<RmPavementSection>(list);
  while (before && before->Range.Low <= from) before = before->Next;
  auto* section = SLinkNewObjAs<RmPavementSection>(list, before);
  if (section) section->Range.Low = from;
  return section;
}

RmPavementSection* RmPavementSectionAppend(RmPavement* pavement, double from, double to,
                                           int32_t package, int kind) {
  ListHead* list = RmPavementSectionsOf(pavement, kind);
  if (!list) return nullptr;
  auto* section = SLinkNewObjAs<RmPavementSection>(list);
  if (!section) return nullptr;
  section->Range = RmChainRange{from, to};
  section->Package = package;
  return section;
}

void vRmPavementSectionRemove(RmPavement* pavement, RmPavementSection* section, int kind) {
  ListHead* list = RmPavementSectionsOf(pavement, kind);
  if (list && section) vSLinkDeleteObj(list, section);
}

// ---- Appearing rows ----

RmPavementAppearings* RmPavementGetOrCreateAppearings(RmPavement* pavement) {
  if (!pavement) return nullptr;
  if (!pavement->Appearings) pavement->Appearings = NewAppearings();
  return pavement->Appearings;
}

RmPavementAppearing* RmPavementAppearingsGetFirst(const RmPavementAppearings* list) {
  return list ? ListFirst<RmPavementAppearing>(&list->Rows) : nullptr;
}

RmPavementAppearing* RmPavementAppearingAdd(RmPavementAppearings* list, double from, double to,
                                            int32_t number) {
  if (!list) return nullptr;
  auto* row = DLinkNewObjAs<RmPavementAppearing>(&list->Rows);
  if (!row) return nullptr;
  row->Range = RmChainRange{from, to};
  row->Number = number;
  return row;
}

RmPavementAppearing* RmPavementAppearingFind(const RmPavementAppearings* list, double chain) {
  for (RmPavementAppearing* row = RmPavementAppearingsGetFirst(list); row; row = row->Next) {
    if (boRmChainRangeContainsClosed(row->Range, chain)) return row;
  }
  return nullptr;
}

int iRmPavementAppearingNumber(const RmPavementAppearings* list, double chain) {
  const RmPavementAppearing* row = RmPavementAppearingFind(list, chain);
  return row ? row->Number : -1;
}
