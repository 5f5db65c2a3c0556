#include "model_file/records/tunnel/tunnel_clipboard.h"

#include "model_file/records/frame/section_clipboard.h"
#include "model_file/records/tunnel/tunnel_blocks_record.h"
#include "model_file/records/tunnel/tunnel_data_lines.h"
#include "model_file/records/tunnel/tunnel_data_record.h"

bool boRmTunnelDataCopy(const RmTunnelData* data) {
  if (!data) return false;
  return boRmSectionCopyWith(
      kRmTunnelDataFamily,
      [](AsfFile* file, AsfSection* section, const void* object) {
        vRmTunnelDataWrite(file, section, static_cast<const RmTunnelData*>(object));
      },
      data);
}

RmTunnelData* RmTunnelDataPaste() {
  RmTunnelData* data = nullptr;
  boRmSectionPasteWith(
      kRmTunnelDataFamily,
      [](AsfFile* file, AsfSection* section, void* object) {
        *static_cast<RmTunnelData**>(object) = RmTunnelDataRead(file, section);
      },
      &data);
  return data;
}

bool boRmTunnelBlocksCopy(const RmTunnelBlocks* blocks) {
  if (!blocks) return false;
  return boRmSectionCopyWith(
      kRmTunnelBlocksFamily,
      [](AsfFile* file, AsfSection* section, const void* object) {
        vRmTunnelBlocksWrite(file, section, static_cast<const RmTunnelBlocks*>(object));
      },
      blocks);
}

bool boRmTunnelBlocksPaste(RmTunnelBlocks* blocks) {
  if (!blocks) return false;
  return boRmSectionPasteWith(
      kRmTunnelBlocksFamily,
      [](AsfFile* file, AsfSection* section, void* object) {
        vRmTunnelBlocksRead(file, section, static_cast<RmTunnelBlocks*>(object));
      },
      blocks);
}
