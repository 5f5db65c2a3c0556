// A small writer of SVG 1.1 documents: the root with its view box, groups,
// and the few shapes that the plots draw. Coordinates are user units (one
// pixel at the natural size); texts are UTF-8 and escaped by the writer.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct SvgPoint {
  double X, Y;
};

class SvgWriter {
 public:
  // Starts the document: the XML declaration and the root element of the
  // given natural size, whose view box lets it scale to any size.
  SvgWriter(double width, double height);

  // A group; `attributes` are written as they stand (already escaped), e.g.
  // `transform="translate(0 10)"`.
  void BeginGroup(std::string_view attributes);
  void EndGroup();
  // A <title> for the element that holds it (a tooltip in browsers).
  void Title(std::string_view text);

  void Line(SvgPoint a, SvgPoint b, std::string_view stroke, double width);
  void Rect(double x, double y, double width, double height, std::string_view fill,
            std::string_view stroke);
  // An open polyline; `attributes` as for groups.
  void Polyline(const std::vector<SvgPoint>& points, std::string_view stroke, double width,
                std::string_view attributes);
  // A filled circle; with a title it is opened and closed around it.
  void Circle(SvgPoint centre, double radius, std::string_view fill, std::string_view title);
  // `anchor`: "start", "middle" or "end".
  void Text(SvgPoint at, std::string_view text, double size, std::string_view anchor,
            std::string_view fill);

  // Ends the document and gives it.
  std::string Finish();

 private:
  std::string out_;
  int depth_ = 1;
};

// The text with &, <, > and quotes escaped for XML.
std::string sSvgEscape(std::string_view text);
// A coordinate with two decimals at most, without trailing zeros.
std::string sSvgNumber(double value);
