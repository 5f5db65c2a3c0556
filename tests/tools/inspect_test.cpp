// kvrvips show and kvrvips plot, run as a program on a small road model: the
// summary and one section as text and JSON, the drawings as well-formed SVG
// with the layers' polylines, and what bad input gets.
#include <gtest/gtest.h>
#include <simdjson.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "base/paths.h"
#include "tests/support/scratch_folder.h"
#include "tests/tools/program_run.h"
#include "tests/tools/xml_check.h"

namespace {

const std::string kModel = KVRVIPS_TEST_DATA_DIR "/tools/small_road.sfi";

ProgramRun RunTool(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), KVRVIPS_TOOL);
  return RunProgram(arguments);
}

// The children of element `parent` named `name`.
std::vector<int> Children(const std::vector<XmlElement>& elements, int parent,
                          const std::string& name) {
  std::vector<int> found;
  for (size_t i = 0; i < elements.size(); ++i) {
    if (elements[i].Parent == parent && elements[i].Name == name) {
      found.push_back(static_cast<int>(i));
    }
  }
  return found;
}

// The groups of `parent` with this class.
std::vector<int> Groups(const std::vector<XmlElement>& elements, int parent,
                        const std::string& cls) {
  std::vector<int> found;
  for (int i : Children(elements, parent, "g")) {
    auto it = elements[i].Attributes.find("class");
    if (it != elements[i].Attributes.end() && it->second == cls) found.push_back(i);
  }
  return found;
}

size_t PointCount(const XmlElement& polyline) {
  const std::string& points = polyline.Attributes.at("points");
  return static_cast<size_t>(std::count(points.begin(), points.end(), ','));
}

std::vector<XmlElement> ReadSvg(const std::string& text) {
  std::vector<XmlElement> elements;
  std::string error;
  EXPECT_TRUE(boReadXml(text, &elements, &error)) << error;
  if (!elements.empty()) {
    EXPECT_EQ(elements[0].Name, "svg");
  }
  return elements;
}

TEST(KvrvipsShow, SummarisesTheModelWithItsNamesInUtf8) {
  ProgramRun run = RunTool({"show", kModel});
  EXPECT_EQ(run.iStatus, 0) << run.sErr;
  EXPECT_EQ(run.sErr, "");
  EXPECT_EQ(run.sOut,
            "Model file: " + kModel +
                "\n"
                "Data version: 13\n"
                "Plan lines: 2\n"
                "      id      length  start chain    end chain  centre  name\n"
                "       1     100.000     1000.000     1100.000  yes     Senterlinje\n"
                "       2     100.000        0.000      100.000  no      Kant h\xC3\xB8yre\n"
                "Vertical lines: 1\n"
                "  line 1: 2 points, chainage 1000.000 to 1100.000\n"
                "Cross sections: 3, chainage 1000.000 to 1040.000\n"
                "   layer  type  number  sections  name\n"
                "       1     1       0         2  Terreng\n"
                "      11     1       1         2  Vegoverflate\n"
                "      61     1       6         2  Planum\n"
                "      12     2       1         2  Forsterkning \xC3\xB8st\n"
                "Long sections: 0\n"
                "Surface groups: 0\n"
                "Tables: 3\n"
                "  SIDEBOUNDARIES               2 rows\n"
                "  TUNNELBLOCKS                 0 rows\n"
                "  TUNNELBLOCKINSERTS           0 rows\n"
                "Mass types of cross sections: 1\n"
                "      12  Jord og stein\n"
                "Mass types of long sections: 0\n");
}

TEST(KvrvipsShow, JsonHoldsTheSameContent) {
  ProgramRun run = RunTool({"show", kModel, "--json"});
  ASSERT_EQ(run.iStatus, 0) << run.sErr;
  simdjson::dom::parser parser;
  simdjson::dom::element doc;
  ASSERT_EQ(parser.parse(run.sOut).get(doc), simdjson::SUCCESS) << run.sOut;

  EXPECT_EQ(int64_t(doc["dataVersion"]), 13);
  simdjson::dom::array lines = doc["planLines"];
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(std::string_view(lines.at(1)["name"]), "Kant h\xC3\xB8yre");
  EXPECT_TRUE(bool(lines.at(0)["centreLine"]));
  EXPECT_DOUBLE_EQ(double(lines.at(0)["endChain"]), 1100.0);
  EXPECT_EQ(simdjson::dom::array(doc["verticalLines"]).size(), 1u);

  simdjson::dom::element cross = doc["crossSections"];
  EXPECT_EQ(int64_t(cross["count"]), 3);
  EXPECT_DOUBLE_EQ(double(cross["endChain"]), 1040.0);
  simdjson::dom::array layers = cross["layers"];
  ASSERT_EQ(layers.size(), 4u);
  EXPECT_EQ(int64_t(layers.at(3)["layer"]), 12);
  EXPECT_EQ(std::string_view(layers.at(3)["name"]), "Forsterkning \xC3\xB8st");
  EXPECT_EQ(int64_t(layers.at(3)["sections"]), 2);
  EXPECT_EQ(int64_t(doc["longSections"]["count"]), 0);

  simdjson::dom::array tables = doc["tables"];
  ASSERT_EQ(tables.size(), 3u);
  EXPECT_EQ(std::string_view(tables.at(0)["name"]), "SIDEBOUNDARIES");
  EXPECT_EQ(int64_t(tables.at(0)["rows"]), 2);
  simdjson::dom::array massTypes = doc["massTypes"]["crossSections"];
  ASSERT_EQ(massTypes.size(), 1u);
  EXPECT_EQ(std::string_view(massTypes.at(0)["name"]), "Jord og stein");
}

TEST(KvrvipsShow, OneSectionAsTableAndAsJson) {
  ProgramRun run = RunTool({"show", kModel, "--section", "1020"});
  EXPECT_EQ(run.iStatus, 0) << run.sErr;
  // The first layer, with its gap, and the head of the second.
  EXPECT_TRUE(run.sOut.starts_with("Cross section at chainage 1020.000: 4 layers\n"
                                   "Layer 1 (type 1, number 0) Terreng: 6 points\n"
                                   "      offset      height  pcode\n"
                                   "     -20.000     100.900  \n"
                                   "     -14.000     100.300  \n"
                                   "      -6.000         gap  \n"
                                   "       6.000     100.200  \n"
                                   "      12.000     100.700  \n"
                                   "      20.000     101.500  \n"
                                   "Layer 11 (type 1, number 1) Vegoverflate: 11 points\n"
                                   "      offset      height  pcode\n"
                                   "     -14.000     100.270  -3.01\n"
                                   "      -9.500      99.670  -2.0102\n"))
      << run.sOut;

  run = RunTool({"show", kModel, "--section", "1020.0002", "--json"});
  ASSERT_EQ(run.iStatus, 0) << run.sErr;
  simdjson::dom::parser parser;
  simdjson::dom::element doc;
  ASSERT_EQ(parser.parse(run.sOut).get(doc), simdjson::SUCCESS) << run.sOut;
  EXPECT_DOUBLE_EQ(double(doc["chain"]), 1020.0);
  simdjson::dom::array layers = doc["layers"];
  ASSERT_EQ(layers.size(), 4u);
  simdjson::dom::array terrain = layers.at(0)["points"];
  ASSERT_EQ(terrain.size(), 6u);
  EXPECT_TRUE(terrain.at(2)["height"].is_null());
  EXPECT_DOUBLE_EQ(double(terrain.at(3)["offset"]), 6.0);
  EXPECT_EQ(std::string_view(layers.at(1)["points"].at(0)["pcode"]), "-3.01");
  EXPECT_TRUE(layers.at(1)["points"].at(5)["pcode"].is_null());
}

// The model that the example converts into: its summary as text and as JSON
// tell the same counts.
TEST(KvrvipsShow, TheConvertedExampleCountsAlikeInTextAndJson) {
  ScratchFolder folder;
  const std::string design = folder / "road.json";
  const std::string model = folder / "road.sfi";
  vWriteWholeFile(design, sReadWholeFile(KVRVIPS_SOURCE_DIR "/examples/road.json"));
  ASSERT_EQ(RunTool({"convert", design, model}).iStatus, 0);

  ProgramRun text = RunTool({"show", model});
  ProgramRun json = RunTool({"show", model, "--json"});
  ASSERT_EQ(text.iStatus, 0) << text.sErr;
  ASSERT_EQ(json.iStatus, 0) << json.sErr;
  simdjson::dom::parser parser;
  simdjson::dom::element doc;
  ASSERT_EQ(parser.parse(json.sOut).get(doc), simdjson::SUCCESS) << json.sOut;
  auto said = [&](const std::string& title) {
    size_t at = text.sOut.find("\n" + title + ": ");
    return at == std::string::npos ? -1 : std::stol(text.sOut.substr(at + title.size() + 3));
  };
  simdjson::dom::array lines = doc["planLines"];
  EXPECT_GT(lines.size(), 0u);
  EXPECT_EQ(said("Plan lines"), static_cast<long>(lines.size()));
  EXPECT_EQ(said("Vertical lines"),
            static_cast<long>(simdjson::dom::array(doc["verticalLines"]).size()));
  EXPECT_EQ(said("Cross sections"), int64_t(doc["crossSections"]["count"]));
  EXPECT_EQ(said("Tables"), static_cast<long>(simdjson::dom::array(doc["tables"]).size()));
  for (simdjson::dom::element table : simdjson::dom::array(doc["tables"])) {
    std::string name{std::string_view(table["name"])};
    EXPECT_NE(text.sOut.find("  " + name + " "), std::string::npos) << name;
  }
}

TEST(KvrvipsInspect, BadInputIsNamedAndExitsWithOneOrTwo) {
  ScratchFolder folder;
  const std::string text = folder / "text.sfi";
  vWriteWholeFile(text, "not a model\r\n");
  const std::string missing = folder / "missing.sfi";
  struct Case {
    std::vector<std::string> arguments;
    int status;
    std::string err;  // exact for status 1, a part of the message for status 2
  };
  const std::string at = "kvrvips: " + kModel + ": ";
  const Case cases[] = {
      {{"show", missing}, 1, "kvrvips: cannot read " + missing + ": no such file\n"},
      {{"plot", text, "--plan"}, 1,
       "kvrvips: cannot read " + text +
           ": not a road model file of type sfi that this program reads\n"},
      {{"show", kModel, "--section", "1005"}, 1,
       at + "no cross section at chainage 1005.000; the nearest are at 1000.000 and 1020.000\n"},
      {{"plot", kModel, "--section", "900"}, 1,
       at + "no cross section at chainage 900.000; the nearest is at 1000.000\n"},
      {{"plot", kModel, "--section", "1050", "--to", "1100"}, 1,
       at + "no cross section from chainage 1050.000 to 1100.000; the nearest is at 1040.000\n"},
      {{"show"}, 2, "MODEL"},
      {{"show", kModel, "--section", "abc"}, 2, "not a chainage"},
      {{"plot", kModel}, 2, "--section CHAIN, or use --plan"},
      {{"plot", kModel, "--to", "1020"}, 2, "--section"},
      {{"plot", kModel, "--section", "1000", "--plan"}, 2, "--plan"},
      {{"plot", kModel, "--section", "1000", "--each"}, 2, "--output"},
      {{"plot", kModel, "--section", "1000", "--exaggerate", "0"}, 2, "--exaggerate"},
  };
  for (const Case& c : cases) {
    std::string line;
    for (const std::string& word : c.arguments) line += word + " ";
    ProgramRun run = RunTool(c.arguments);
    EXPECT_EQ(run.iStatus, c.status) << line;
    EXPECT_EQ(run.sOut, "") << line;
    if (c.status == 1) {
      EXPECT_EQ(run.sErr, c.err) << line;
    } else {
      EXPECT_NE(run.sErr.find(c.err), std::string::npos) << line << "\n" << run.sErr;
    }
  }
}

TEST(KvrvipsPlot, DrawsEachLayerAsPolylinesBrokenAtGaps) {
  ScratchFolder folder;
  const std::string svgFile = folder / "sections.svg";
  const std::string before = sReadWholeFile(kModel);
  ProgramRun run =
      RunTool({"plot", kModel, "--section", "1000", "--to", "1040", "-o", svgFile});
  ASSERT_EQ(run.iStatus, 0) << run.sErr;
  EXPECT_EQ(run.sOut, "");
  EXPECT_EQ(sReadWholeFile(kModel), before);

  std::vector<XmlElement> svg = ReadSvg(sReadWholeFile(svgFile));
  ASSERT_FALSE(svg.empty());
  std::vector<int> sections = Groups(svg, 0, "section");
  ASSERT_EQ(sections.size(), 3u);
  EXPECT_EQ(svg[sections[0]].Attributes["data-chain"], "1000.000");

  // Chainage 1000: every layer one polyline of all its points; the design
  // surface's ten coded points marked.
  struct Drawn {
    std::string layer;
    std::vector<size_t> runs;  // points per polyline
    size_t marks;
  };
  const std::vector<Drawn> at1000 = {
      {"1", {7}, 0}, {"11", {11}, 10}, {"61", {3}, 0}, {"12", {2}, 0}};
  const std::vector<Drawn> at1020 = {
      {"1", {2, 3}, 0}, {"11", {11}, 10}, {"61", {3}, 0}, {"12", {2}, 0}};
  const std::vector<Drawn>* expected[] = {&at1000, &at1020};
  for (int s = 0; s < 2; ++s) {
    std::vector<int> layers = Groups(svg, sections[s], "layer");
    ASSERT_EQ(layers.size(), expected[s]->size());
    for (size_t l = 0; l < layers.size(); ++l) {
      const Drawn& want = (*expected[s])[l];
      EXPECT_EQ(svg[layers[l]].Attributes["data-layer"], want.layer);
      std::vector<size_t> runs;
      for (int polyline : Children(svg, layers[l], "polyline")) {
        runs.push_back(PointCount(svg[polyline]));
      }
      EXPECT_EQ(runs, want.runs) << "section " << s << " layer " << want.layer;
      EXPECT_EQ(Children(svg, layers[l], "circle").size(), want.marks);
    }
  }
  // A section without layers is an empty frame with its chainage.
  EXPECT_TRUE(Groups(svg, sections[2], "layer").empty());
  std::vector<std::string> texts;
  for (int t : Children(svg, sections[2], "text")) texts.push_back(svg[t].Text);
  ASSERT_FALSE(texts.empty());
  EXPECT_EQ(texts[0], "Chainage 1040.000");
  ASSERT_EQ(Groups(svg, sections[2], "legend").size(), 1u);
  int legend = Groups(svg, sections[2], "legend")[0];
  EXPECT_EQ(svg[Children(svg, legend, "text")[0]].Text, "no layers");
}

TEST(KvrvipsPlot, OneFileEachAndThePlan) {
  ScratchFolder folder;
  // A range given from its far end.
  ProgramRun run = RunTool({"plot", kModel, "--section", "1020", "--to", "1000", "--each",
                            "--exaggerate", "2", "-o", folder / "cut.svg"});
  ASSERT_EQ(run.iStatus, 0) << run.sErr;
  const std::string first = folder / "cut_1000.000.svg";
  const std::string second = folder / "cut_1020.000.svg";
  EXPECT_EQ(run.sOut, first + "\n" + second + "\n");
  for (const std::string& file : {first, second}) {
    std::vector<XmlElement> svg = ReadSvg(sReadWholeFile(file));
    ASSERT_FALSE(svg.empty());
    EXPECT_EQ(Groups(svg, 0, "section").size(), 1u) << file;
  }

  run = RunTool({"plot", kModel, "--plan"});
  ASSERT_EQ(run.iStatus, 0) << run.sErr;
  std::vector<XmlElement> svg = ReadSvg(run.sOut);
  ASSERT_FALSE(svg.empty());
  std::vector<int> lines = Groups(svg, 0, "line");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(svg[lines[1]].Attributes["data-label"], "2 Kant h\xC3\xB8yre");
  for (int line : lines) {
    std::vector<int> polylines = Children(svg, line, "polyline");
    ASSERT_EQ(polylines.size(), 1u);
    EXPECT_EQ(PointCount(svg[polylines[0]]), 2u);
  }
  // One tick per cross section.
  ASSERT_EQ(Groups(svg, 0, "sections").size(), 1u);
  EXPECT_EQ(Children(svg, Groups(svg, 0, "sections")[0], "line").size(), 3u);
}

// A headless browser draws the SVG: more than a blank page.
TEST(KvrvipsPlot, ABrowserRendersTheSectionsAsMoreThanABlankPage) {
  const std::string browser = "/usr/bin/chromium";
  if (!boFileExists(browser.c_str())) GTEST_SKIP() << "no " << browser;
  ScratchFolder folder;
  const std::string drawing = folder / "sections.svg";
  const std::string blank = folder / "blank.svg";
  ASSERT_EQ(RunTool({"plot", kModel, "--section", "1000", "-o", drawing}).iStatus, 0);
  vWriteWholeFile(blank,
                  "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1110\" height=\"300\">"
                  "<rect width=\"1110\" height=\"300\" fill=\"#ffffff\"/></svg>\n");
  auto render = [&](const std::string& svg, const std::string& png) {
    RunProgram({browser, "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                "--window-size=1110,300", "--screenshot=" + png, "file://" + svg});
    return sReadWholeFile(png).size();
  };
  size_t blankSize = render(blank, folder / "blank.png");
  size_t drawingSize = render(drawing, folder / "sections.png");
  ASSERT_GT(blankSize, 0u);
  EXPECT_GT(drawingSize, 2 * blankSize);
}

}  // namespace
