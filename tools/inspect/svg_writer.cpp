#include "tools/inspect/svg_writer.h"

#include <fmt/format.h>

std::string sSvgEscape(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    switch (c) {
      case '&': out += "&amp;"; break;
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '"': out += "&quot;"; break;
      case '\'': out += "&apos;"; break;
      default:
        // Control characters are not allowed in XML 1.0.
        if (static_cast<unsigned char>(c) >= 0x20 || c == '\t' || c == '\n') out += c;
    }
  }
  return out;
}

std::string sSvgNumber(double value) {
  std::string text = fmt::format("{:.2f}", value);
  while (text.back() == '0') text.pop_back();
  if (text.back() == '.') text.pop_back();
  if (text == "-0") text = "0";
  return text;
}

SvgWriter::SvgWriter(double width, double height) {
  out_ = fmt::format(
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"{0}\" height=\"{1}\" "
      "viewBox=\"0 0 {0} {1}\" font-family=\"sans-serif\">\n",
      sSvgNumber(width), sSvgNumber(height));
  // A white ground, so that the drawing reads the same on any page.
  Rect(0, 0, width, height, "#ffffff", "none");
}

void SvgWriter::BeginGroup(std::string_view attributes) {
  out_.append(2 * depth_, ' ');
  out_ += attributes.empty() ? "<g>\n" : fmt::format("<g {}>\n", attributes);
  ++depth_;
}

void SvgWriter::EndGroup() {
  --depth_;
  out_.append(2 * depth_, ' ');
  out_ += "</g>\n";
}

void SvgWriter::Title(std::string_view text) {
  out_.append(2 * depth_, ' ');
  out_ += fmt::format("<title>{}</title>\n", sSvgEscape(text));
}

void SvgWriter::Line(SvgPoint a, SvgPoint b, std::string_view stroke, double width) {
  out_.append(2 * depth_, ' ');
  out_ += fmt::format("<line x1=\"{}\" y1=\"{}\" x2=\"{}\" y2=\"{}\" stroke=\"{}\" "
                      "stroke-width=\"{}\"/>\n",
                      sSvgNumber(a.X), sSvgNumber(a.Y), sSvgNumber(b.X), sSvgNumber(b.Y), stroke,
                      sSvgNumber(width));
}

void SvgWriter::Rect(double x, double y, double width, double height, std::string_view fill,
                     std::string_view stroke) {
  out_.append(2 * depth_, ' ');
  out_ += fmt::format("<rect x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\" fill=\"{}\" "
                      "stroke=\"{}\"/>\n",
                      sSvgNumber(x), sSvgNumber(y), sSvgNumber(width), sSvgNumber(height), fill,
                      stroke);
}

void SvgWriter::Polyline(const std::vector<SvgPoint>& points, std::string_view stroke,
                         double width, std::string_view attributes) {
  out_.append(2 * depth_, ' ');
  out_ += "<polyline";
  if (!attributes.empty()) {
    out_ += ' ';
    out_ += attributes;
  }
  out_ += fmt::format(" fill=\"none\" stroke=\"{}\" stroke-width=\"{}\" "
                      "stroke-linejoin=\"round\" points=\"",
                      stroke, sSvgNumber(width));
  for (size_t i = 0; i < points.size(); ++i) {
    if (i > 0) out_ += ' ';
    out_ += sSvgNumber(points[i].X);
    out_ += ',';
    out_ += sSvgNumber(points[i].Y);
  }
  out_ += "\"/>\n";
}

void SvgWriter::Circle(SvgPoint centre, double radius, std::string_view fill,
                       std::string_view title) {
  out_.append(2 * depth_, ' ');
  out_ += fmt::format("<circle cx=\"{}\" cy=\"{}\" r=\"{}\" fill=\"{}\"", sSvgNumber(centre.X),
                      sSvgNumber(centre.Y), sSvgNumber(radius), fill);
  if (title.empty()) {
    out_ += "/>\n";
    return;
  }
  out_ += fmt::format("><title>{}</title></circle>\n", sSvgEscape(title));
}

void SvgWriter::Text(SvgPoint at, std::string_view text, double size, std::string_view anchor,
                     std::string_view fill) {
  out_.append(2 * depth_, ' ');
  out_ += fmt::format("<text x=\"{}\" y=\"{}\" font-size=\"{}\" text-anchor=\"{}\" "
                      "fill=\"{}\">{}</text>\n",
                      sSvgNumber(at.X), sSvgNumber(at.Y), sSvgNumber(size), anchor, fill,
                      sSvgEscape(text));
}

std::string SvgWriter::Finish() {
  out_ += "</svg>\n";
  return std::move(out_);
}
