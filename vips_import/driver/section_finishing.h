// The section steps of an import: the sections are always made anew from
// the design, and when all tables are in, the cross sections get their
// width and their place on the main line.
#pragma once

struct RmModel;

// Empties the cross and long sections of the model, where it has them.
void vVipsClearSections(RmModel* model);

// With SECTPARAMS and cross sections: DISTLEFT and DISTRIGHT become the
// reach of the layers of types 4 and 3 over all cross sections, a metre
// beyond it rounded out to whole metres; then each cross section is placed
// on the main line, if the model has one, with those distances.
void vVipsFitSectionsToMainLine(RmModel* model);
