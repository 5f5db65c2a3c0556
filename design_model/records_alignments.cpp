#include "design_model/records_alignments.h"

#include "design_model/record_lists.h"

namespace NpDesignModel {

double HorizontalLineElementRecord::GetClothoidParameter() const { return clothoidParameter; }
int32_t HorizontalLineElementRecord::GetElementNo() const { return elementNo; }
double HorizontalLineElementRecord::GetEndChainage() const { return endChainage; }
double HorizontalLineElementRecord::GetEndEast() const { return endEast; }
double HorizontalLineElementRecord::GetEndNorth() const { return endNorth; }
double HorizontalLineElementRecord::GetEndOffset() const { return endOffset; }
double HorizontalLineElementRecord::GetEndRadius() const { return endRadius; }
double HorizontalLineElementRecord::GetStartChainage() const { return startChainage; }
double HorizontalLineElementRecord::GetStartEast() const { return startEast; }
double HorizontalLineElementRecord::GetStartNorth() const { return startNorth; }
double HorizontalLineElementRecord::GetStartOffset() const { return startOffset; }
double HorizontalLineElementRecord::GetStartRadius() const { return startRadius; }

double VerticalLineAnglePointRecord::GetChainage() const { return chainage; }
double VerticalLineAnglePointRecord::GetElevation() const { return elevation; }
double VerticalLineAnglePointRecord::GetRadius() const { return radius; }

std::u16string AlignmentRecord::GetGuid() const { return guid; }
std::vector<const CIHorizontalLineElement*> AlignmentRecord::GetHorizontalLineElements() const {
  return PointersTo<CIHorizontalLineElement>(horizontalLineElements);
}
int32_t AlignmentRecord::GetId() const { return id; }
std::u16string AlignmentRecord::GetName() const { return name; }
std::vector<const CIVerticalLineAnglePoint*> AlignmentRecord::GetVerticalLineAnglePoints() const {
  return PointersTo<CIVerticalLineAnglePoint>(verticalLineAnglePoints);
}

}  // namespace NpDesignModel
