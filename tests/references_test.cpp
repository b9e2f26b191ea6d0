// Who refers to whom in a document.
#include "chartreferences.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using test::messageOf;

namespace {

std::string placeOf(std::size_t line, std::size_t column) {
  return std::to_string(line) + ":" + std::to_string(column);
}

std::string textOf(const ChartReferences::Referrer& referrer) {
  return referrer.element() + "#" + referrer.elementId() + "@" + referrer.attribute() + "=" + referrer.id() + " " +
         placeOf(referrer.line(), referrer.column());
}

/// A line for each id and each reference to it, and for those that lead nowhere.
std::vector<std::string> referencesIn(const std::string& xml) {
  const ChartReferences references = ChartReferences::ofText(xml, "x");
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < references.size(); ++i) {
    const ChartReferences::Bearer bearer = references[i];
    lines.push_back(bearer.element() + "#" + bearer.id() + " " + placeOf(bearer.line(), bearer.column()));
    for (std::size_t j = 0; j < bearer.size(); ++j)
      lines.push_back("  " + textOf(bearer[j]));
  }
  for (std::size_t i = 0; i < references.dangling(); ++i)
    lines.push_back("? " + textOf(references.danglingAt(i)));
  return lines;
}

using Lines = std::vector<std::string>;

TEST(References, GoFromEachIdToWhatRefersToIt) {
  EXPECT_EQ(referencesIn("<visualization id='v' style='late'>\n"
                         "  <sourceVariable id='a' dependsOn='b'/>\n"
                         "  <sourceVariable id='b' dependsOn='a' labelVariable='b'/>\n"
                         "  <graph><point style='late'><x\n variable='a'/></point></graph>\n"
                         "  <popup target='nowhere'/><style id='late'/><style id='unused'/>\n"
                         "</visualization>"),
            (Lines{"visualization#v 1:1", "sourceVariable#a 2:3", "  sourceVariable#b@dependsOn=a 3:3",
                   "  x#@variable=a 4:30", "sourceVariable#b 3:3", "  sourceVariable#a@dependsOn=b 2:3",
                   "  sourceVariable#b@labelVariable=b 3:3", "style#late 6:28", "  visualization#v@style=late 1:1",
                   "  point#@style=late 4:10", "style#unused 6:46", "? popup#@target=nowhere 6:3"}));
}

TEST(References, PassOverWhatTheLanguageDoesNotHave) {
  // An id is an id wherever it stands, and the first of its kind counts. An empty one is none.
  EXPECT_EQ(referencesIn("<visualization>"
                         "<wrong id='w' style='s'><graph id='g' style='s'/></wrong>"
                         "<graph id='g' stile='s' style=''/><style id=''/>"
                         "</visualization>"),
            (Lines{"wrong#w 1:16", "graph#g 1:40"}));
  EXPECT_EQ(referencesIn("<other id='o' style='o'/>"), (Lines{"other#o 1:1"}));
  EXPECT_EQ(referencesIn("<visualization/>"), Lines());
}

TEST(References, RaiseWhatAReaderRaises) {
  const auto raised = [](const std::string& xml) { return messageOf([&] { ChartReferences::ofText(xml, "x"); }); };
  EXPECT_EQ(raised("<visualization>\n</chart>").find("x:2:"), 0);
  EXPECT_EQ(raised("").find("x:1:1: "), 0);
  EXPECT_EQ(raised("<!DOCTYPE visualization><visualization/>"),
            "x:1:1: a document type declaration (DOCTYPE) is not allowed in a chart");
  std::string deep = "<visualization><graph><faceting>";
  for (unsigned int level = 0; level < 10'239; ++level)
    deep += "<nest>";
  EXPECT_EQ(raised(deep), "x:1:61461: elements are nested more than 10240 levels deep");
  EXPECT_EQ(messageOf([] { ChartReferences::ofFile("/nonexistent/chart.xml"); }).find("/nonexistent/chart.xml:1:1: "),
            0);
}

TEST(References, TakeTimeInProportionAndOutliveTheirMaker) {
  constexpr std::size_t many = 100'000;
  std::string xml = "<visualization>";
  for (std::size_t i = 0; i < many; ++i) {
    const std::string number = std::to_string(i);
    xml += "<popup id='p" + number + "' target='p" + std::to_string(many - 1 - i) + "'/><popup target='p0'/>";
  }
  auto references = std::make_unique<ChartReferences>(ChartReferences::ofText(xml + "</visualization>", "x"));
  const ChartReferences copy = *references;
  references.reset();
  ASSERT_EQ(copy.size(), many);
  EXPECT_EQ(copy[0].size(), many + 1);
  EXPECT_EQ(copy[0][many].elementId(), "");
  EXPECT_EQ(copy[many - 1][0].elementId(), "p0");
  EXPECT_EQ(messageOf([&] { static_cast<void>(copy[many]); }), "No id has the index 100000: their number is 100000.");
  EXPECT_EQ(messageOf([&] { static_cast<void>(copy[1][1]); }), "No reference has the index 1: their number is 1.");
  EXPECT_EQ(messageOf([&] { static_cast<void>(copy.danglingAt(0)); }),
            "No dangling reference has the index 0: their number is 0.");
}

} // namespace
