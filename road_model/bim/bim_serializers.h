// Serializers of BIM attributes. This library carries the frame only: a
// serializer is made for a target and has the operations through which a
// host that keeps BIM attributes writes and reads them per layer; here they
// do nothing.
#pragma once

namespace kvr::bim {

class BimAttributesDataSerializer {
 public:
  explicit BimAttributesDataSerializer(void* target) : Target_(target) {}
  virtual ~BimAttributesDataSerializer() = default;
  BimAttributesDataSerializer(const BimAttributesDataSerializer&) = delete;
  BimAttributesDataSerializer& operator=(const BimAttributesDataSerializer&) = delete;

  // Writes and reads the attributes of the object whose ID is `id`
  // (decimal text).
  virtual void Serialize(const char* id);
  virtual void Deserialize(const char* id);

  void* Target() const { return Target_; }

 private:
  void* Target_;
};

// The serializer of the attributes of layers.
class LayerBimAttributesDataSerializer : public BimAttributesDataSerializer {
 public:
  using BimAttributesDataSerializer::BimAttributesDataSerializer;
  void Serialize(const char* id) override;
  void Deserialize(const char* id) override;
};

}  // namespace kvr::bim
