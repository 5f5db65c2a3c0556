// Copy and paste of one section of a model through the clipboard.
//
// A copy puts a container of file type "sfi" with the family's one section
// on the clipboard, written from the model by the family's writer, in the
// records of the model file. A paste reads that section back with the
// family's reader, in the current form of the records whatever version the
// model was loaded from, and so replaces what the model held of it. The
// sections that a user copies this way are the surface descriptions
// (SURFGEN), the tables of the surface tables object (CLOSEDDITCHES,
// VIPSSPECIALGRADINGS, FILLDITCHES and the like) and the side boundaries and
// surface border lines of the model.
#pragma once

struct AsfFile;
struct AsfSection;
struct RmModel;
struct RmRecordFamily;

// False, with the clipboard untouched, when the model has nothing for the
// section or nothing could be written.
bool boRmSectionCopy(const RmRecordFamily& family, const RmModel* model);
// False, with the model unchanged, when the clipboard holds no such
// section.
bool boRmSectionPaste(const RmRecordFamily& family, RmModel* model);

// The same for a section whose records are written and read by other means
// than the model's: `write` fills the section of a copy, `read` takes that
// of a paste.
bool boRmSectionCopyWith(const RmRecordFamily& family,
                         void (*write)(AsfFile* file, AsfSection* section, const void* object),
                         const void* object);
bool boRmSectionPasteWith(const RmRecordFamily& family,
                          void (*read)(AsfFile* file, AsfSection* section, void* object),
                          void* object);
