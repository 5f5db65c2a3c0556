#include "model_file/records/tunnel/tunnel_clipboard.h"

#include "model_file/container/asf_clipboard.h"
#include "model_file/container/asf_sections.h"
#include "model_file/records/tunnel/tunnel_blocks_record.h"
#include "model_file/records/tunnel/tunnel_data_lines.h"
#include "model_file/records/tunnel/tunnel_data_record.h"

namespace {

// Writes one section with `write` and hands the container to the clipboard.
template <typename Write>
bool boCopySection(const RmRecordFamily& family, Write write) {
  AsfFile* file = AsfClipboardCreate();
  if (!file) return false;
  AsfSection* section = AsfSectionAdd(file, family.Keyword, iAsfTypeOfLetter(family.Letter));
  if (!section || !boAsfFileWriteHead(file)) {
    vAsfFileClose(file);
    return false;
  }
  write(file, section);
  return boAsfClipboardCommit(file);
}

// Reads the family's section of the clipboard with `read`; false when the
// clipboard holds none.
template <typename Read>
bool boPasteSection(const RmRecordFamily& family, Read read) {
  AsfFile* file = AsfClipboardOpen();
  if (!file) return false;
  AsfSection* section = AsfSectionFind(file, family.Keyword, iAsfTypeOfLetter(family.Letter));
  if (section) read(file, section);
  vAsfFileClose(file);
  return section != nullptr;
}

}  // namespace

bool boRmTunnelDataCopy(const RmTunnelData* data) {
  if (!data) return false;
  return boCopySection(kRmTunnelDataFamily, [data](AsfFile* file, AsfSection* section) {
    vRmTunnelDataWrite(file, section, data);
  });
}

RmTunnelData* RmTunnelDataPaste() {
  RmTunnelData* data = nullptr;
  boPasteSection(kRmTunnelDataFamily, [&data](AsfFile* file, AsfSection* section) {
    data = RmTunnelDataRead(file, section);
  });
  return data;
}

bool boRmTunnelBlocksCopy(const RmTunnelBlocks* blocks) {
  if (!blocks) return false;
  return boCopySection(kRmTunnelBlocksFamily, [blocks](AsfFile* file, AsfSection* section) {
    vRmTunnelBlocksWrite(file, section, blocks);
  });
}

bool boRmTunnelBlocksPaste(RmTunnelBlocks* blocks) {
  if (!blocks) return false;
  return boPasteSection(kRmTunnelBlocksFamily, [blocks](AsfFile* file, AsfSection* section) {
    vRmTunnelBlocksRead(file, section, blocks);
  });
}
