// A chain data row made to follow its type in the catalogue.
//
// Of a type's draw, a row carries its own copy of the label placement in
// plan, in the four further values of its OFFS line: TextDx, TextDy, TextRot
// and TextH of the plan draw, in that order. The designer shifts, turns and
// sizes single labels where objects stand close (signs at a junction), while
// line, figure and colours stay with the type; the row holds floats and
// offsets, which these four are, and rows are placed in plan.
#pragma once

struct RmChainDataLine;
struct RmChainDataRow;
struct RmChainDataType;

// Copies the four label values of the type's plan draw into the row.
// `line` is the row's line; a null row or type changes nothing.
void vRmChainDataRowApplyType(const RmChainDataLine* line, RmChainDataRow* row,
                              const RmChainDataType* type);

// As vRmChainDataRowApplyType, and sets every field of the line's rows to
// the default of its kind in the type: "0" for a number field, empty for a
// text field and for a field the type does not have. The catalogue gives
// no default values, and a number field reads as a number once it is
// filled, so a new row starts at the zero it would be read as anyway.
void vRmChainDataRowApplyFields(const RmChainDataLine* line, RmChainDataRow* row,
                                const RmChainDataType* type);
