// The line forms of the road class values. A quantity is written
// "KEYWORD 80.0000" when its unit ratio is 1,1 and "KEYWORD 80.0000;3,2"
// otherwise; a pair is always written with both ratios, its second value
// with six decimals ("%4f" keeps the form of files already written).
#pragma once

struct AsfFile;
struct AsfSection;
struct IntQuantity;
struct Quantity;
struct RmQuantityPair;

// Reads "number" or "number;num,den" into `quantity` and marks it present.
// A ratio without its comma leaves the quantity as it was (false). A
// number that cannot be read is 0.
bool boQuantityRead(const char* text, Quantity* quantity);
bool boIntQuantityRead(const char* text, IntQuantity* quantity);
// Reads the two values of a pair line: the first into the item's second
// quantity, the second into its first.
void vQuantityPairRead(const char* firstText, const char* secondText, RmQuantityPair* pair);

bool boQuantityWrite(AsfFile* file, AsfSection* section, const char* keyword,
                     const Quantity& quantity);
bool boQuantityPairWrite(AsfFile* file, AsfSection* section, const char* keyword,
                         const RmQuantityPair& pair);
