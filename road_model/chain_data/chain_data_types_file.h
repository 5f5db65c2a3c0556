// The catalogue file of chain data types: an initialisation file with the
// sections "ChainDataInfoTypes" (key=text), "ChainDataTypes" (one entry per
// type, its value a list of name:value tokens such as
// `Descr:"Post" InfoType:1 Fields:(Name,s;Height)`), and "ChainDataPlanDraw"
// and "ChainDataSectionDraw" (one entry per type, its draw fields as
// name:value tokens). The conversion itself never reads it.
#pragma once

struct RmChainDataTypes;

// Reads the types of the file into `types`; unless `viewOnly` is set the
// info types are cleared and read first. A type already in the catalogue is
// replaced when the file's entry differs from it; its draws stay. After the
// read a type that inherits takes the fields of the type it names. False
// when the file cannot be opened.
bool boRmChainDataTypesRead(const char* path, RmChainDataTypes* types, bool viewOnly);

// Reads both draw sections into the types of the catalogue; entries of a key
// of 0 or below and of unknown types are passed over. False when the file
// cannot be opened.
bool boRmChainDataDrawRead(const char* path, RmChainDataTypes* types);
