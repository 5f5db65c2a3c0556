// What a mass type's calculation type means, and the rules by which types
// are resolved, classified, cleared and brought up to date.
//
// A type of COMPOSEDTYPE 2 stands for the type whose number is its
// BASEMASSID: each query below resolves it first when a list is given.
#pragma once

#include "road_model/names/mass_types.h"

// The type that `type` stands for: the base type of a composed type of kind
// 2 when `types` is given (null when it is missing), else `type` itself.
const RmMassType* RmMassTypeResolve(const RmMassTypes* types, const RmMassType* type);

// The resolved type's values; a type that cannot be resolved gives -1, 1.0,
// 1.0 and the empty text.
int iRmMassTypeGetCalcType(const RmMassTypes* types, const RmMassType* type);
double dRmMassTypeGetScaleFactor(const RmMassTypes* types, const RmMassType* type);
double dRmMassTypeGetConversionFactor(const RmMassTypes* types, const RmMassType* type);
const char* sRmMassTypeGetConversionUnit(const RmMassTypes* types, const RmMassType* type);

// Classes of the resolved calculation type, by the kind of the list (2 is a
// kind of its own for these tests).
bool boRmMassTypeIsVolume(const RmMassTypes* types, const RmMassType* type);
bool boRmMassTypeIsArea(const RmMassTypes* types, const RmMassType* type);
// 1 or 0; -1 for a type that cannot be resolved.
int boRmMassTypeIsBetweenLayers(const RmMassTypes* types, const RmMassType* type);
bool boRmMassTypeIsTopsoil(const RmMassTypes* types, const RmMassType* type);
bool boRmMassTypeIsLine(const RmMassTypes* types, const RmMassType* type);

// The drawing of a new volume or area: colour 9, material 1, and a hatch of
// pattern 10 for a volume or colour 109 for an area.
void vRmMassTypeMakeVolumeDefaults(const RmMassTypes* types, RmMassType* type);
// Clears the layer lists and restrictions that the calculation type does
// not use.
void vRmMassTypeClearForCalcType(const RmMassTypes* types, RmMassType* type);

// 1 when every number of `numbers` has a type in `types`; 0 otherwise.
int iRmMassTypesAllDefined(const RmMassNumbers* numbers, const RmMassTypes* types);
// 1 when at least one has.
int iRmMassTypesAnyDefined(const RmMassNumbers* numbers, const RmMassTypes* types);
// Not composed, restricted by nothing or a theoretical layer (type 0, 1 or
// 3), and made of theoretical layers only.
bool boRmMassTypeIsAdditive(const RmMassType* type);

// Field by field; the reals within `tolerance`, the rest exact.
bool boRmMassTypesEqual(const RmMassType* a, const RmMassType* b, double tolerance);

// The category of a type that has none, from its number: 1 below 40 (not
// 0), 2 for the forties, 4 for the fifties, 1 from 60 below 100, else 0.
int iRmMassTypeCategoryOfNumber(int number);
// Gives every type of category 0 the category of its number.
void vRmMassTypesDeriveCategories(RmMassTypes* types);
// Rewrites the older single-layer rule of calculation type 3 (one layer to
// measure to, a minimum thickness) as layer lists: the layer becomes the
// area list, and each from-layer is measured to with the old thickness.
void vRmMassTypesRewriteOldRules(RmMassTypes* types);
