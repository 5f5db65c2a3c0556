// Walking the parts of a line or polygon: the runs of elements between
// invisible moves. A polygon closes each part by itself, so that stepping
// inside a part wraps around: the element after the last element of a part
// is its first, and the one before its first is its last.
//
// A part is named by the position of its first element. Every function
// takes a null line and kLiNoElm quietly and gives kLiNoElm or 0.
#pragma once

#include "geometry/line.h"

LiElm PartFirst(const LiLine* line);
// The part after `part`; kLiNoElm after the last.
LiElm PartNext(const LiLine* line, LiElm part);
// The first element of the last part.
LiElm PartLast(const LiLine* line);
int PartCount(const LiLine* line);
// The number of elements of the part.
int PartElmCount(const LiLine* line, LiElm part);

// The element after and before `elm` inside `part`, with wrap-around.
LiElm PartElmNext(const LiLine* line, LiElm part, LiElm elm);
LiElm PartElmPrev(const LiLine* line, LiElm part, LiElm elm);
