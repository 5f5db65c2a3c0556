#include "model_file/container/asf_record_output.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "model_file/container/asf_extent.h"
#include "model_file/container/asf_writer.h"

namespace {

AsfExtent ToAsfExtent(const ViExtent& extent) {
  return AsfExtent{extent.dMinX, extent.dMinY, extent.dMaxX, extent.dMaxY};
}

}  // namespace

void vAsfOutputInit(AsfRecordOutput* output, AsfFile* file) {
  output->pFile = file;
  output->uLength = 0;
  output->boOk = true;
}

bool boAsfRecordBegin(AsfRecordOutput* output, AsfFile* file, AsfSection* section, int type,
                      const ViExtent& extent) {
  vAsfOutputInit(output, file);
  if (!file || !file->pOut || !section || section->iType != type) return false;
  vAsfExtentUnion(&section->extent, ToAsfExtent(extent));
  return boAsfSectionStart(file, section);
}

void vAsfOutputExtent(AsfRecordOutput* output, const ViExtent& extent) {
  char* line = pAsfOutputLineBegin(output);
  vAsfExtentLineFormat(ToAsfExtent(extent), false, line, kAsfPlaceholderWidth + 1);
  vAsfOutputLineEnd(output, line + strlen(line));
}

bool boAsfOutputFlush(AsfRecordOutput* output) {
  if (output->uLength > 0) {
    output->boOk = boAsfWriteBytes(output->pFile, output->acBuffer, output->uLength) &&
                   output->boOk;
    output->uLength = 0;
  }
  return output->boOk;
}

char* pAsfOutputLineBegin(AsfRecordOutput* output) {
  // The line, its CR LF and a terminator must fit.
  if (sizeof output->acBuffer - output->uLength < kAsfOutputLineRoom + 2) {
    boAsfOutputFlush(output);
  }
  return output->acBuffer + output->uLength;
}

void vAsfOutputLineEnd(AsfRecordOutput* output, char* end) {
  end[0] = '\r';
  end[1] = '\n';
  output->uLength = static_cast<size_t>(end + 2 - output->acBuffer);
}

void vAsfOutputText(AsfRecordOutput* output, const char* text) {
  char* line = pAsfOutputLineBegin(output);
  size_t length = strnlen(text, kAsfOutputLineRoom - 1);
  memcpy(line, text, length);
  vAsfOutputLineEnd(output, line + length);
}

void vAsfOutputFormat(AsfRecordOutput* output, const char* format, ...) {
  char* line = pAsfOutputLineBegin(output);
  va_list arguments;
  va_start(arguments, format);
  int length = vsnprintf(line, kAsfOutputLineRoom, format, arguments);
  va_end(arguments);
  if (length < 0) length = 0;
  size_t used = static_cast<size_t>(length);
  if (used > kAsfOutputLineRoom - 1) used = kAsfOutputLineRoom - 1;
  vAsfOutputLineEnd(output, line + used);
}
