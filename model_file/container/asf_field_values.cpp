#include "model_file/container/asf_field_values.h"

#include <cstring>

#include "model_file/container/asf_writer.h"

namespace {

constexpr char kFirstName[] = "_FIELDVALUES ";
constexpr char kNextName[] = "_FIELDVALUES2 ";

// A line of field values being put together in the handle's line buffer,
// which a write handle does not use otherwise.
struct ValuesLine {
  AsfRecordOutput* pOutput;
  char* pBuffer;
  size_t uLength;
};

void vStart(ValuesLine* line, const char* name, size_t length) {
  memcpy(line->pBuffer, name, length);
  line->uLength = length;
}

void vWrite(ValuesLine* line) {
  char* buffer = line->pBuffer;
  buffer[line->uLength] = '\r';
  buffer[line->uLength + 1] = '\n';
  line->pOutput->boOk =
      boAsfWriteBytes(line->pOutput->pFile, buffer, line->uLength + 2) && line->pOutput->boOk;
}

// Goes on in a new `_FIELDVALUES2` line when fewer than `room` bytes are
// left.
void vMakeRoom(ValuesLine* line, size_t room) {
  if (kAsfFieldValuesLineSize - line->uLength >= room) return;
  vWrite(line);
  vStart(line, kNextName, sizeof kNextName - 1);
}

void vAppendValue(ValuesLine* line, const char* value) {
  for (; *value; ++value) {
    char byte = *value;
    if (byte == '\r') continue;
    vMakeRoom(line, 3);
    char* out = line->pBuffer + line->uLength;
    if (byte == '\n' || byte == ';') {
      out[0] = '\\';
      out[1] = byte == '\n' ? 'n' : ';';
      line->uLength += 2;
    } else {
      out[0] = byte;
      line->uLength += 1;
    }
  }
  // Only a long row of empty values can have filled the line to the last
  // byte.
  vMakeRoom(line, 1);
  line->pBuffer[line->uLength++] = ';';
}

}  // namespace

static_assert(kAsfFieldValuesLineSize + 2 <= sizeof(AsfFile::acLine),
              "a values line and its CR LF fit in the line buffer");

void vAsfFieldValuesWrite(AsfRecordOutput* output, const AsfSection* section, const void* object,
                          AsfFieldCallback callback, void* datum) {
  if (!section->fields.pFirst) return;
  // The lines gathered so far go first.
  boAsfOutputFlush(output);
  ValuesLine line{output, output->pFile->acLine, 0};
  vStart(&line, kFirstName, sizeof kFirstName - 1);
  int index = 0;
  for (const AsfField* field = section->fields.pFirst; field; field = field->pNext, ++index) {
    const char* value = nullptr;
    if (!callback || !callback(datum, object, index, &value) || !value) value = kAsfEmptyText;
    vAppendValue(&line, value);
  }
  vWrite(&line);
}
