// Owned texts of the vocabulary records that tell "present but empty" from
// "absent": a null field is absent, an empty block is a text that is present
// and empty. (sHeapSet makes both null.)
#pragma once

// Sets the field to a copy of `value`; null frees it and leaves it null, the
// empty text keeps an empty block. The field is left as it was when memory
// ran out.
void vRmOwnedTextSet(char** field, const char* value);
