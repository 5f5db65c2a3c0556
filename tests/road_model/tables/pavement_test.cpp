// The pavement table: its copy, the order of packages and the appearing rows.
#include "road_model/tables/pavement.h"

#include <gtest/gtest.h>

#include <cstring>

#include "road_model/tables/pavement_packages.h"

TEST(Pavement, CopyOwnsItsPackagesAndRows) {
  RmPavement* from = RmPavementCreate();
  RmPavementPackage* package = RmPavementPackageAdd(from, 3);
  vRmPavementPackageSetName(package, "Tung veg");
  RmPavementSurfaceAdd(package, 10101)->Thickness[9] = 0.5;
  RmPavementSurfaceEdgeAdd(package, 10101)->Code = 20301;
  RmPavementGradualAdd(package, 10201)->Gradient = 0.25;
  RmPavementSectionAppend(from, 10.0, 20.0, 3, kRmPavementRock);
  RmPavementAppearingAdd(RmPavementGetOrCreateAppearings(from), 0.0, 50.0, 1);

  RmPavement* to = RmPavementCreate();
  RmPavementPackageAdd(to, 9);
  vRmPavementCopy(to, from);
  vRmPavementDelete(&from);
  EXPECT_EQ(from, nullptr);

  const RmPavementPackage* copied = RmPavementPackagesGetFirst(to);
  ASSERT_NE(copied, nullptr);
  EXPECT_EQ(copied->Number, 3);
  EXPECT_EQ(copied->Next, nullptr);
  EXPECT_STREQ(copied->Name, "Tung veg");
  EXPECT_EQ(RmPavementSurfaceFind(copied, 10101)->Thickness[9], 0.5);
  EXPECT_EQ(RmPavementSurfaceEdgeFind(copied, 10101)->Code, 20301);
  EXPECT_EQ(RmPavementGradualFind(copied, 10201)->Gradient, 0.25);
  EXPECT_EQ(RmPavementSectionsGetFirst(to, kRmPavementRock)->Package, 3);
  EXPECT_EQ(iRmPavementAppearingNumber(to->Appearings, 50.0), 1);
  EXPECT_EQ(iRmPavementAppearingNumber(to->Appearings, 50.1), -1);
  vRmPavementDelete(&to);
}

TEST(Pavement, PackagesOfAnEqualNumberFollowOneAnotherAndSurfacesAscend) {
  RmPavement* pavement = RmPavementCreate();
  RmPavementPackage* first = RmPavementPackageAdd(pavement, 2);
  RmPavementPackage* second = RmPavementPackageAdd(pavement, 2);
  RmPavementPackageAdd(pavement, 1);
  EXPECT_EQ(RmPavementPackagesGetFirst(pavement)->Number, 1);
  EXPECT_EQ(RmPavementPackagesGetFirst(pavement)->Next, first);
  EXPECT_EQ(first->Next, second);
  EXPECT_EQ(RmPavementPackageFind(pavement, 2), first);

  // Surfaces put out of order by hand are ordered again.
  for (int number : {10102, -10101, 10101}) RmPavementSurfaceAdd(first, number);
  RmPavementSurface* last = static_cast<RmPavementSurface*>(first->Surfaces.last);
  vDLinkMove(&first->Surfaces, last, RmPavementSurfacesGetFirst(first));
  EXPECT_EQ(RmPavementSurfacesGetFirst(first)->Number, 10102);
  vRmPavementPackageNormalize(pavement);
  const RmPavementSurface* surface = RmPavementSurfacesGetFirst(first);
  for (int number : {-10101, 10101, 10102}) {
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->Number, number);
    surface = surface->Next;
  }
  vRmPavementClear(pavement);
  EXPECT_FALSE(boRmPavementHasRows(pavement));
  vRmPavementDelete(&pavement);
}
