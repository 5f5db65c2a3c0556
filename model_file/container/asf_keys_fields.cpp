#include "model_file/container/asf_keys_fields.h"

#include <cstdlib>
#include <cstring>

namespace {

char* sHeapCopy(const char* text, size_t length) {
  char* copy = static_cast<char*>(malloc(length + 1));
  if (!copy) return nullptr;
  memcpy(copy, text, length);
  copy[length] = 0;
  return copy;
}

size_t uBoundedLength(const char* text, size_t limit) {
  size_t length = 0;
  while (length < limit && text[length]) ++length;
  return length;
}

const AsfKeyList* KeysOf(const AsfFile* file, const AsfSection* section) {
  if (section) return &section->keys;
  return file ? &file->keys : nullptr;
}

AsfField* FieldAt(const AsfSection* section, int index) {
  if (!section || index < 0) return nullptr;
  AsfField* field = section->fields.pFirst;
  while (field && index-- > 0) field = field->pNext;
  return field;
}

bool boNameIs(const char* name, const char* text, size_t length) {
  return strncmp(name, text, length) == 0 && name[length] == 0;
}

}  // namespace

void vAsfCopyText(char* out, size_t size, const char* text) {
  if (!out || size == 0) return;
  size_t length = text ? uBoundedLength(text, size - 1) : 0;
  if (length) memcpy(out, text, length);
  out[length] = 0;
}

// ---- Keys ----

void vAsfKeyListClear(AsfKeyList* list) {
  if (!list) return;
  AsfKey* key = list->pFirst;
  while (key) {
    AsfKey* next = key->pNext;
    free(key->sName);
    free(key->sValue);
    free(key);
    key = next;
  }
  list->pFirst = list->pLast = nullptr;
}

void vAsfKeySet(AsfFile* file, AsfSection* section, const char* name, const char* value) {
  AsfKeyList* list = const_cast<AsfKeyList*>(KeysOf(file, section));
  if (!list) return;
  if (!name) name = "";
  size_t nameLength = uBoundedLength(name, kAsfKeyNameMax);
  char* newValue = nullptr;
  if (value && *value) {
    newValue = sHeapCopy(value, strlen(value));
    if (!newValue) return;
  }
  for (AsfKey* key = list->pFirst; key; key = key->pNext) {
    if (boNameIs(key->sName, name, nameLength)) {
      free(key->sValue);
      key->sValue = newValue;
      return;
    }
  }
  AsfKey* key = static_cast<AsfKey*>(calloc(1, sizeof(AsfKey)));
  char* newName = sHeapCopy(name, nameLength);
  if (!key || !newName) {
    free(key);
    free(newName);
    free(newValue);
    return;
  }
  key->sName = newName;
  key->sValue = newValue;
  if (list->pLast) {
    list->pLast->pNext = key;
  } else {
    list->pFirst = key;
  }
  list->pLast = key;
}

bool boAsfKeyAt(const AsfFile* file, const AsfSection* section, int index, const char** outName,
                const char** outValue) {
  if (outName) *outName = kAsfEmptyText;
  if (outValue) *outValue = kAsfEmptyText;
  const AsfKeyList* list = KeysOf(file, section);
  if (!list || index < 0) return false;
  const AsfKey* key = list->pFirst;
  while (key && index-- > 0) key = key->pNext;
  if (!key) return false;
  if (outName) *outName = key->sName;
  if (outValue && key->sValue) *outValue = key->sValue;
  return true;
}

const char* sAsfKeyGetValue(const AsfFile* file, const AsfSection* section, const char* name) {
  const AsfKeyList* list = KeysOf(file, section);
  if (!list || !name) return kAsfEmptyText;
  for (const AsfKey* key = list->pFirst; key; key = key->pNext) {
    if (strcmp(key->sName, name) == 0) return key->sValue ? key->sValue : kAsfEmptyText;
  }
  return kAsfEmptyText;
}

// ---- Field names ----

void vAsfFieldListClear(AsfFieldList* list) {
  if (!list) return;
  AsfField* field = list->pFirst;
  while (field) {
    AsfField* next = field->pNext;
    free(field->sName);
    free(field);
    field = next;
  }
  list->pFirst = list->pLast = nullptr;
}

void vAsfFieldNameAppend(AsfSection* section, const char* name, size_t length) {
  if (!section || (!name && length)) return;
  AsfField* field = static_cast<AsfField*>(calloc(1, sizeof(AsfField)));
  char* copy = sHeapCopy(name ? name : "", length);
  if (!field || !copy) {
    free(field);
    free(copy);
    return;
  }
  field->sName = copy;
  field->sValue = kAsfEmptyText;
  if (section->fields.pLast) {
    section->fields.pLast->pNext = field;
  } else {
    section->fields.pFirst = field;
  }
  section->fields.pLast = field;
}

AsfField* AsfFieldFind(const AsfSection* section, const char* name, size_t length) {
  if (!section || !name) return nullptr;
  for (AsfField* field = section->fields.pFirst; field; field = field->pNext) {
    if (boNameIs(field->sName, name, length)) return field;
  }
  return nullptr;
}

void vAsfFieldNameSet(AsfFile* file, AsfSection* section, int index, const char* name) {
  if (!file || !section || index < 0) return;
  if (!name) name = "";
  AsfField* field = FieldAt(section, index);
  if (field) {
    char* copy = sHeapCopy(name, strlen(name));
    if (!copy) return;
    free(field->sName);
    field->sName = copy;
    return;
  }
  if (index == iAsfFieldCount(file, section)) vAsfFieldNameAppend(section, name, strlen(name));
}

int iAsfFieldCount(const AsfFile* file, const AsfSection* section) {
  if (!file || !section) return 0;
  int count = 0;
  for (const AsfField* field = section->fields.pFirst; field; field = field->pNext) ++count;
  return count;
}

bool boAsfFieldNameAt(const AsfFile* file, const AsfSection* section, int index,
                      const char** outName) {
  if (outName) *outName = kAsfEmptyText;
  const AsfField* field = file ? FieldAt(section, index) : nullptr;
  if (!field) return false;
  if (outName) *outName = field->sName;
  return true;
}

// ---- Field values ----

bool boAsfFieldValueAt(const AsfFile* file, const AsfSection* section, int index,
                       const char** outValue) {
  if (outValue) *outValue = kAsfEmptyText;
  const AsfField* field = file ? FieldAt(section, index) : nullptr;
  if (!field) return false;
  if (outValue) *outValue = field->sValue;
  return true;
}

bool boAsfFieldNext(AsfFile* file, const AsfSection* section, const char** outName,
                    const char** outValue) {
  if (outName) *outName = kAsfEmptyText;
  if (outValue) *outValue = kAsfEmptyText;
  if (!file || !section) return false;
  const AsfField* field = FieldAt(section, file->iFieldIterator);
  while (field) {
    ++file->iFieldIterator;
    if (field->sValue[0]) {
      if (outName) *outName = field->sName;
      if (outValue) *outValue = field->sValue;
      return true;
    }
    field = field->pNext;
  }
  return false;
}

void vAsfFieldValuesReset(AsfFile* file, AsfSection* section) {
  if (!file) return;
  file->uFieldStoreUsed = 0;
  if (file->pFieldStore) file->pFieldStore[0] = 0;
  file->iFieldIterator = 0;
  if (!section) return;
  for (AsfField* field = section->fields.pFirst; field; field = field->pNext) {
    field->sValue = kAsfEmptyText;
  }
}

bool boAsfFieldStoreAppend(AsfFile* file, const char* text, size_t length) {
  if (!file || (!text && length)) return false;
  size_t need = file->uFieldStoreUsed + length + 1;
  if (need > file->uFieldStoreCapacity) {
    size_t capacity = file->uFieldStoreCapacity ? file->uFieldStoreCapacity : 256;
    while (capacity < need) capacity *= 2;
    char* store = static_cast<char*>(realloc(file->pFieldStore, capacity));
    if (!store) return false;
    file->pFieldStore = store;
    file->uFieldStoreCapacity = capacity;
  }
  if (length) memcpy(file->pFieldStore + file->uFieldStoreUsed, text, length);
  file->uFieldStoreUsed += length;
  file->pFieldStore[file->uFieldStoreUsed] = 0;
  return true;
}

void vAsfFieldValuesSplit(AsfFile* file, AsfSection* section) {
  if (!file || !section) return;
  char* read = file->pFieldStore;
  AsfField* field = section->fields.pFirst;
  // The values are unescaped in place: the text only ever gets shorter.
  while (read && *read && field) {
    char* value = read;
    char* write = read;
    while (*read && *read != ';') {
      if (read[0] == '\\' && read[1] == ';') {
        *write++ = ';';
        read += 2;
      } else {
        *write++ = *read++;
      }
    }
    bool atEnd = *read == 0;
    *write = 0;
    field->sValue = value;
    field = field->pNext;
    if (atEnd) break;
    ++read;
  }
  vAsfFieldBindingsCopy(section);
}

// ---- Bindings ----

void vAsfBindingsClear(AsfSection* section) {
  if (!section) return;
  for (int i = 0; i < section->iBindingCount; ++i) free(section->aBindings[i].sName);
  section->iBindingCount = 0;
}

void vAsfFieldBind(AsfFile* file, AsfSection* section, const char* name, char* buffer,
                   size_t size) {
  if (!file || !section || !name || !buffer || size == 0) return;
  for (int i = 0; i < section->iBindingCount; ++i) {
    AsfFieldBinding& binding = section->aBindings[i];
    if (strcmp(binding.sName, name) == 0) {
      binding.pBuffer = buffer;
      binding.uSize = size;
      return;
    }
  }
  if (section->iBindingCount >= kAsfMaxFieldBindings) return;
  char* copy = sHeapCopy(name, strlen(name));
  if (!copy) return;
  section->aBindings[section->iBindingCount++] = AsfFieldBinding{copy, buffer, size};
}

void vAsfFieldBindingsCopy(AsfSection* section) {
  if (!section) return;
  for (int i = 0; i < section->iBindingCount; ++i) {
    const AsfFieldBinding& binding = section->aBindings[i];
    const AsfField* field = AsfFieldFind(section, binding.sName, strlen(binding.sName));
    vAsfCopyText(binding.pBuffer, binding.uSize, field ? field->sValue : kAsfEmptyText);
  }
}
