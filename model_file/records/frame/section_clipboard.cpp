#include "model_file/records/frame/section_clipboard.h"

#include "model_file/container/asf_clipboard.h"
#include "model_file/container/asf_sections.h"
#include "model_file/records/frame/record_family.h"
#include "road_model/model/model.h"

bool boRmSectionCopyWith(const RmRecordFamily& family,
                         void (*write)(AsfFile* file, AsfSection* section, const void* object),
                         const void* object) {
  if (!write) return false;
  AsfFile* file = AsfClipboardCreate();
  if (!file) return false;
  AsfSection* section = AsfSectionAdd(file, family.Keyword, iAsfTypeOfLetter(family.Letter));
  if (!section || !boAsfFileWriteHead(file)) {
    vAsfFileClose(file);
    return false;
  }
  write(file, section, object);
  return boAsfClipboardCommit(file);
}

bool boRmSectionPasteWith(const RmRecordFamily& family,
                          void (*read)(AsfFile* file, AsfSection* section, void* object),
                          void* object) {
  if (!read) return false;
  AsfFile* file = AsfClipboardOpen();
  if (!file) return false;
  AsfSection* section = AsfSectionFind(file, family.Keyword, iAsfTypeOfLetter(family.Letter));
  if (section) read(file, section, object);
  vAsfFileClose(file);
  return section != nullptr;
}

bool boRmSectionCopy(const RmRecordFamily& family, const RmModel* model) {
  if (!model || !family.Write) return false;
  if (family.HasContent && !family.HasContent(model, family)) return false;
  struct Source {
    const RmRecordFamily* Family;
    const RmModel* Model;
  } source{&family, model};
  return boRmSectionCopyWith(
      family,
      [](AsfFile* file, AsfSection* section, const void* object) {
        const auto* from = static_cast<const Source*>(object);
        from->Family->Write(file, section, from->Model, *from->Family);
      },
      &source);
}

bool boRmSectionPaste(const RmRecordFamily& family, RmModel* model) {
  if (!model || !family.Read) return false;
  struct Target {
    const RmRecordFamily* Family;
    RmModel* Model;
  } target{&family, model};
  return boRmSectionPasteWith(
      family,
      [](AsfFile* file, AsfSection* section, void* object) {
        auto* to = static_cast<Target*>(object);
        // The clipboard holds the records in their current form.
        const int loadedVersion = to->Model->DataVersion;
        to->Model->DataVersion = kRmDataVersion;
        to->Family->Read(file, section, to->Model, *to->Family);
        to->Model->DataVersion = loadedVersion;
      },
      &target);
}
