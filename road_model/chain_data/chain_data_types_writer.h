// Writes the chain data type catalogue back into its initialisation file, in
// the form that chain_data_types_file.h reads. Only the sections named are
// rewritten; the rest of the file stays as it is.
#pragma once

struct RmChainDataTypes;

// Clears "ChainDataTypes" and writes one entry per type of a number above 0:
// `Descr:"..."`, `InfoType:n`, then InheritType, OwnerType and ReflineType
// when not 0, PTheme and LTheme in double quotes when not empty, and
// `Fields:(name,s;name)`, text fields marked with ",s".
void vRmChainDataTypesWrite(const char* path, const RmChainDataTypes* types);

// Writes the plan draw of each type into "ChainDataPlanDraw" and its section
// draw into "ChainDataSectionDraw", every draw field as `name:value`
// (GdpLayer in plan entries only, Fig only when there is one). Both sections
// are cleared first unless `keep` is set; then entries of types that are not
// written again stay.
void vRmChainDataDrawWrite(const char* path, const RmChainDataTypes* types, bool keep);
