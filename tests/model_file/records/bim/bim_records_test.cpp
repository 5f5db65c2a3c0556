// The BIM attribute sections: named in the directory with empty bodies when
// the model's store asks for them, the layer serializer handed each layer,
// and a load without a store passing over them. Also the field transformer
// that empties excepted fields.
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "model_file/container/asf_file.h"
#include "model_file/container/asf_sections.h"
#include "model_file/records/bim/bim_attributes_record.h"
#include "road_model/bim/bim_attributes.h"
#include "road_model/bim/field_transformer.h"
#include "road_model/codes/layer_id.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/layer_names.h"
#include "tests/support/model_file_text.h"

namespace {

// Remembers the layer numbers that it is handed.
class RecordingSerializer : public kvr::bim::LayerBimAttributesDataSerializer {
 public:
  explicit RecordingSerializer(std::vector<std::string>* seen)
      : LayerBimAttributesDataSerializer(nullptr), seen_(seen) {}
  void Serialize(const char* id) override { seen_->push_back(std::string("w") + id); }
  void Deserialize(const char* id) override { seen_->push_back(std::string("r") + id); }

 private:
  std::vector<std::string>* seen_;
};

// A model with layers 12 and 22, a store whose layer 22 has attributes and
// whose schema has an entry.
ModelPtr ModelWithStore(std::vector<std::string>* seen, bool withSerializer) {
  ModelPtr model = NewModel();
  RmLayerNames* names = RmModelGetOrCreateLayerNames(model.get());
  RmLayerNameSet(names, RmLayerIdMake(2, 1), "Planum");
  RmLayerNameSet(names, RmLayerIdMake(2, 2), "Forsterkning");
  RmBimAttributes* store = RmBimAttributesCreate();
  if (withSerializer) {
    store->Serializers[kRmBimLayerKey] = std::make_unique<RecordingSerializer>(seen);
  }
  store->LayersWithData.insert(22);
  store->Schema.push_back("IfcWall");
  vRmModelSetBimAttributes(model.get(), store);
  return model;
}

}  // namespace

TEST(BimRecords, TheSectionsAreNamedAndLeftEmpty) {
  std::vector<std::string> seen;
  ModelPtr model = ModelWithStore(&seen, true);
  std::string file = sWrittenModel(model.get());
  EXPECT_NE(file.find("[O_LAYERNAMES]\r\n[O_BIM_ATTRIBUTES_DATA]\r\n[O_BIM_ATTRIBUTES_SCHEMA]\r\n"),
            std::string::npos);
  EXPECT_EQ(sSectionBody(file, "BIM_ATTRIBUTES_DATA"), "");
  EXPECT_EQ(sSectionBody(file, "BIM_ATTRIBUTES_SCHEMA"), "");
  EXPECT_EQ(seen, std::vector<std::string>{"w22"});

  // A copy of the model has no store, and so no sections.
  ModelPtr copy = NewModel();
  vRmModelCopy(copy.get(), model.get(), false);
  EXPECT_EQ(RmModelGetBimAttributes(copy.get()), nullptr);

  // A load without a store passes over the data section.
  ModelPtr loaded = ReadModel(file);
  ASSERT_NE(loaded, nullptr);
  EXPECT_EQ(sSectionBody(sWrittenModel(loaded.get()), "BIM_ATTRIBUTES_DATA"), "<none>");
}

TEST(BimRecords, AStoreWithoutTheLayerSerializerFailsTheWrite) {
  std::vector<std::string> seen;
  ModelPtr model = ModelWithStore(&seen, false);
  // Nothing catches the failure on its way out of the write.
  std::unique_ptr<AsfFile, void (*)(AsfFile*)> file(AsfFileCreate(nullptr), vAsfFileClose);
  EXPECT_THROW(boRmModelWriteFile(file.get(), model.get()), std::out_of_range);
}

TEST(BimRecords, AReadWithAStoreHandsItEveryLayer) {
  std::vector<std::string> seen;
  ModelPtr model = ModelWithStore(&seen, true);
  std::string bytes = sWrittenModel(model.get());
  seen.clear();
  AsfFile* file = AsfFileOpenMem(bytes.data(), bytes.size());
  AsfSection* section = AsfSectionFind(file, "BIM_ATTRIBUTES_DATA", iAsfTypeOfLetter('O'));
  ASSERT_NE(section, nullptr);
  kRmBimAttributesDataFamily.Read(file, section, model.get(), kRmBimAttributesDataFamily);
  vAsfFileClose(file);
  EXPECT_EQ(seen, (std::vector<std::string>{"r12", "r22"}));
}

TEST(FieldTransformers, OnlyTheExceptedFieldsAreEmptied) {
  std::string value = "x";
  FieldTransformer().Transform("A", &value);
  EXPECT_EQ(value, "x");
  ExceptFieldTransformer except("Navn;Type");
  except.Transform("Typ", &value);
  EXPECT_EQ(value, "x");
  except.Transform("Type", &value);
  EXPECT_EQ(value, "");
  value = "y";
  ExceptFieldTransformer("").Transform("", &value);
  EXPECT_EQ(value, "y");
}
