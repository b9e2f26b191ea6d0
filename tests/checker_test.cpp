// What the checker finds: each kind of fault, in its place and its words, and documents that mean harm.
#include "chartchecker.h"
#include "chartreader.h"
#include "dom.h"
#include "orbdocument.h"
#include "orbgraph.h"
#include "orbvisualization.h"
#include "raised.h"
#include "smallstack.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

using test::messageOf;
using test::onSmallStack;
using Report = ChartChecker::Report;

namespace {

using Lines = std::vector<std::string>;

Lines linesOf(const Report& report) {
  Lines lines;
  for (std::size_t i = 0; i < report.size(); ++i)
    lines.push_back(report[i].text());
  return lines;
}

/// The findings of a text, each as "LINE:COLUMN: error: MESSAGE".
Lines findings(const std::string& xml) {
  Lines lines = linesOf(ChartChecker().checkText(xml, "x"));
  for (std::string& line : lines)
    line.erase(0, std::string("x:").size());
  return lines;
}

/// The same without their places and in no order: a DOM knows neither lines nor the order of attributes.
Lines withoutPlaces(Lines lines) {
  for (std::string& line : lines) {
    line.erase(0, std::min(line.find("error: "), line.find("warning: ")));
    line = std::regex_replace(line, std::regex(" on line [0-9]+"), "");
  }
  std::sort(lines.begin(), lines.end());
  return lines;
}

/// Holds the findings of a document to what is expected, as a text and as a DOM.
void expectFindings(const std::string& xml, const Lines& expected) {
  SCOPED_TRACE(xml);
  EXPECT_EQ(findings(xml), expected);
  const test::Parsed parsed(xml);
  EXPECT_EQ(withoutPlaces(linesOf(ChartChecker().checkDocument(parsed.document()))), withoutPlaces(expected));
}

struct Case {
  std::string xml;
  Lines expected;
};

void expectAll(const std::vector<Case>& cases) {
  for (const auto& [xml, expected] : cases)
    expectFindings(xml, expected);
}

/// A chart with some content, which begins at 1:16.
std::string chart(const std::string& content) { return "<visualization>" + content + "</visualization>"; }

std::string repeated(std::size_t count, const std::string& text) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i)
    all += text;
  return all;
}

TEST(Checker, NamesUnknownElementsAndAttributes) {
  expectAll({
      {chart("<graph><poin/></graph>"), {"1:23: error: unknown element \"poin\" under graph; did you mean \"point\"?"}},
      {chart("<Graph/>"), {"1:16: error: unknown element \"Graph\" under visualization; did you mean \"graph\"?"}},
      {chart("<garph/>"), {"1:16: error: unknown element \"garph\" under visualization; did you mean \"graph\"?"}},
      {chart("<spaceship/>"), {"1:16: error: unknown element \"spaceship\" under visualization"}},
      {chart("<v:graph xmlns:v='u'/>"),
       {"1:16: error: unknown element \"v:graph\" under visualization; did you mean \"graph\"?"}},
      // What lies below has no parent that would know it.
      {chart("<spaceship crew='7'>text<crew id='c'/></spaceship>"),
       {"1:16: error: unknown element \"spaceship\" under visualization"}},
      // An add makes it, and a load refuses it.
      {chart("<graph><point><image><scale/></image></point></graph>"),
       {"1:37: error: unknown element \"scale\" under image"}},
      {chart("<graph><point colour='red'/></graph>"),
       {"1:23: error: point has no attribute \"colour\"; did you mean \"color\"?"}},
      {chart("<graph><point color='red'/></graph>"),
       {"1:23: error: point has no attribute \"color\"; color is an element"}},
      {chart("<style visbile='true' whatever=''/>"),
       {"1:16: error: style has no attribute \"visbile\"; did you mean \"visible\"?",
        "1:16: error: style has no attribute \"whatever\""}},
      {"<chart><graph clip='perhaps'/></chart>",
       {"1:1: error: the root is \"chart\", and that of a chart is visualization"}},
      {"<Visualization/>",
       {"1:1: error: the root is \"Visualization\", and that of a chart is visualization; did you mean "
        "\"visualization\"?"}},
  });
}

TEST(Checker, LeavesAloneWhatALoadPassesOver) {
  expectAll({
      {chart("<sourceVariable><mine colour='1'>text<deeper/></mine></sourceVariable>"), {}},
      {chart("<embeddedSource><row>1<b>2</b></row></embeddedSource>"), {}},
      {chart("<graph><extension any='thing'><at>all</at></extension></graph>"), {}},
      {chart("<graph xmlns='u' xmlns:a='v' xsi:type='t' xml:lang='en' xml:space='preserve'/>"), {}},
      // What is known there is checked as it is anywhere.
      {chart("<sourceVariable><mine/><format useGrouping='1'/></sourceVariable>"),
       {"1:39: error: useGrouping of format is \"1\", and takes true or false"}},
  });
}

TEST(Checker, HoldsValuesToTheirKinds) {
  const std::string integer = ", and takes a whole number from -2147483648 to 2147483647";
  const std::string natural = ", and takes a whole number from 0 to 4294967295";
  const std::string number = ", and takes a finite decimal number";
  const auto expectValues = [](const std::string& name, const std::string& attribute, const std::string& legal,
                               const std::string& illegal, const std::string& takes) {
    const auto element = [&](const std::string& value) { return "<" + name + " " + attribute + "='" + value + "'/>"; };
    const auto within = [&](const std::string& value) {
      return chart(name == "style" ? element(value) : "<graph>" + element(value) + "</graph>");
    };
    std::istringstream legals(legal);
    for (std::string value; legals >> value;)
      EXPECT_EQ(findings(within(value)), Lines()) << attribute << " " << value;
    std::istringstream illegals(illegal);
    for (std::string value; illegals >> value;) {
      value = value == "empty" ? "" : value == "blank" ? " 1" : value;
      const Lines found = findings(within(value));
      ASSERT_EQ(found.size(), 1) << attribute << " " << value;
      EXPECT_NE(found[0].find(value.empty() ? "is empty" + takes : "is \"" + value + "\"" + takes), std::string::npos)
          << found[0];
    }
  };
  expectValues("style", "visible", "true false", "True FALSE 1 yes empty", ", and takes true or false");
  expectValues("point", "zOrder", "0 -1 007 2147483647 -2147483648 -0",
               "2147483648 -2147483649 +1 1.0 one - 99999999999999999999 blank empty", integer);
  expectValues("style", "pattern", "0 4294967295 000000000000000001", "-1 4294967296 18446744073709551617 0x1 empty",
               natural);
  expectValues("style", "hue",
               "0 -1.5 +2 1. .5 1e5 1E+5 1e-999 0e99999999999999999999 1.7976931348623157e308 "
               "17976931348623157e292 0.00017976931348623157e312 1e-99999999999999999999",
               "1e309 1.7976931348623159e308 0.1e310 1e99999999999999999999 nan inf -INF 0x1p3 . e5 1e 1e+ 1,5 1.2.3 "
               "--1 blank empty",
               number);
  expectValues("style", "symbol", "circle anything 1", "", "");
  const std::string manyDigits(400, '1');
  EXPECT_EQ(findings(chart("<style hue='0." + manyDigits + "'/>")), Lines());
  EXPECT_EQ(findings(chart("<style hue='" + manyDigits + "'/>")).size(), 1);
  EXPECT_EQ(findings(chart("<style hue='" + manyDigits + "e-200'/>")), Lines());
}

TEST(Checker, NamesTheLegalWords) {
  expectAll({
      {chart("<style stroke-decoration='etchraised'/>"),
       {"1:16: error: stroke-decoration of style is \"etchraised\", and takes etchLowered, etchRaised or bevel; did "
        "you "
        "mean \"etchRaised\"?"}},
      {chart("<style stroke-decoration='wooden'/>"),
       {"1:16: error: stroke-decoration of style is \"wooden\", and takes etchLowered, etchRaised or bevel"}},
      {chart("<style stroke-decoration=''/>"),
       {"1:16: error: stroke-decoration of style is empty, and takes etchLowered, etchRaised or bevel"}},
      {chart("<style visible='ture'/>"),
       {"1:16: error: visible of style is \"ture\", and takes true or false; did you mean \"true\"?"}},
  });
}

TEST(Checker, HoldsIdsToTheirRules) {
  expectAll({
      {chart("<graph id='g'/>\n<style id='g'/><style\n id='g'/>"),
       {"2:1: error: id \"g\" is given twice: graph on line 1 has it already",
        "2:16: error: id \"g\" is given twice: graph on line 1 has it already"}},
      {chart("<graph id='1 2'/><graph id='a:b'/><graph id='&#xe9;'/>"),
       {"1:16: warning: id \"1 2\" is no XML name, and a parser that validates refuses it",
        "1:33: warning: id \"a:b\" is no XML name, and a parser that validates refuses it"}},
      // Nothing bears an empty id.
      {chart("<graph id=''/><graph id=''/>"),
       {"1:16: warning: id \"\" is no XML name, and a parser that validates refuses it",
        "1:30: warning: id \"\" is no XML name, and a parser that validates refuses it"}},
      // Where a load does not look an id is found all the same.
      {chart("<graph id='g'><extension><any id='g'/></extension></graph>"),
       {"1:41: error: id \"g\" is given twice: graph on line 1 has it already"}},
      {chart("<embeddedSource id='s'><row id='s'/></embeddedSource>"), {"1:39: error: row has no attribute \"id\""}},
  });
}

TEST(Checker, FollowsReferencesForwardAndBack) {
  const std::string variables = "sourceVariable, derivedVariable, expressionVariable or multipleResponseVariable";
  const auto reference = [](const std::string& id) {
    return "<graph><point><x variable='" + id + "'/></point></graph>";
  };
  expectAll({
      {chart(reference("v") + "<sourceVariable id='v'/>" + reference("v")), {}},
      // The setter takes it, and the getter does not find it.
      {chart("<multipleResponseVariable id='v'/>" + reference("v")), {}},
      {chart(reference("v")), {"1:30: error: variable of x refers to \"v\", which is no element's id"}},
      {chart(reference("")), {"1:30: error: variable of x is empty, and takes the id of " + variables}},
      {chart("\n<style id='v'/>" + reference("v")),
       {"2:30: error: variable of x must lead to " + variables + ", and \"v\" is style on line 2"}},
      {chart(reference("v") + "\n<style id='v'/>"),
       {"1:30: error: variable of x must lead to " + variables + ", and \"v\" is style on line 2"}},
      {chart("<sourceVariable><sourceVariable id='v'/></sourceVariable>" + reference("v")),
       {"1:87: error: variable of x must lead to " + variables +
        ", and \"v\" is sourceVariable on line 1, where a load does not look"}},
      // Any element will do, one that is passed over too.
      {chart("<popup target='e'/><graph id='g'><extension><e id='e'/></extension></graph><popup target='g'/>"), {}},
      // What was meant by an unknown element nobody knows.
      {chart("<surceVariable id='v'><deeper id='w'/></surceVariable>" + reference("v") + reference("w")),
       {"1:16: error: unknown element \"surceVariable\" under visualization; did you mean \"sourceVariable\"?"}},
  });
}

TEST(Checker, CountsChildren) {
  expectAll({
      {chart("<graph><faceting/><faceting/><faceting/></graph><graph><faceting/></graph>"),
       {"1:34: error: graph takes no more than 1 faceting"}},
      {chart("<graph><coordinates><dimension><axis/><axis/><axis/><axis/></dimension></coordinates></graph>"),
       {"1:61: error: dimension takes no more than 2 axis"}},
      {chart("<categoricalDomain><statisticSort/><simpleSort/><simpleSort/></categoricalDomain>"),
       {"1:51: error: categoricalDomain takes either statisticSort or simpleSort, and has statisticSort already"}},
      {chart("<categoricalDomain><simpleSort/><statisticSort/><simpleSort/></categoricalDomain>"),
       {"1:48: error: categoricalDomain takes either simpleSort or statisticSort, and has simpleSort already",
        "1:64: error: categoricalDomain takes no more than 1 simpleSort"}},
  });
}

TEST(Checker, WarnsOfTextOnce) {
  expectAll({
      {chart("\n\t<graph>\n \t one <!-- -->two<point>three</point></graph>"),
       {"3:4: warning: graph bears no text, and holds \"one\"",
        "3:26: warning: point bears no text, and holds \"three\""}},
      {chart("<graph>  <![CDATA[raw]]></graph>"), {"1:25: warning: graph bears no text, and holds \"raw\""}},
      {chart(" &#32;<![CDATA[\n]]><graph>\n</graph>"), {}},
      {chart("<graph>&lt;</graph>"), {"1:23: warning: graph bears no text, and holds \"<\""}},
  });
}

TEST(Checker, TellsWhereEachFindingIs) {
  const Report report =
      ChartChecker().checkText("<?xml version='1.0'?>\n<!-- top -->\n<visualization\n  clip='x'>\n\t<graph/>"
                               "<grph/>\n\t<grph/><graph>\n<point/><?p?><point\n\n clip='y'/></graph>"
                               "<sourceVariable><a/><b id='i'/><b id='i'/></sourceVariable></visualization>",
                               "chart.xml");
  Lines places;
  for (std::size_t i = 0; i < report.size(); ++i)
    places.push_back(report[i].path() + " " + std::to_string(report[i].line()) + ":" +
                     std::to_string(report[i].column()));
  EXPECT_EQ(places, (Lines{"/visualization 3:1", "/visualization/grph 5:10", "/visualization/grph[2] 6:2",
                           "/visualization/graph[2]/point[2] 7:14", "/visualization/sourceVariable/b[2] 9:51"}));
  EXPECT_EQ(report[0].text(), "chart.xml:3:1: error: clip of visualization is \"x\", and takes true or false");
  EXPECT_EQ(report[0].severity(), ChartChecker::severity_error);
}

TEST(Checker, ReportsWhatCameBeforeAFault) {
  const Lines found = findings("<visualization><graph clip='x'/><popup target='later'/>\n<graph></visualization>");
  ASSERT_EQ(found.size(), 2);
  EXPECT_EQ(found[0], "1:16: error: clip of graph is \"x\", and takes true or false");
  EXPECT_EQ(found[1].find("2:"), 0) << found[1];
  EXPECT_NE(found[1].find(" error: not well formed: "), std::string::npos) << found[1];
}

TEST(Checker, FindsWhatIsNoDocument) {
  for (const std::string& text :
       {std::string(), std::string(" \n"), std::string("text"), std::string("<"), std::string(1, '\0'),
        std::string("\x7f\x45LF\0\0\1", 7), std::string("\xff\xfe"), std::string("<visualization>\xc3"),
        std::string("<visualization>\xff</visualization>"), std::string("<visualization>&e;</visualization>"),
        std::string("<visualization a='1' a='2'/>"), std::string("<visualization/><graph/>"),
        std::string("<?xml version='1.0' encoding='nonesuch'?><visualization/>")}) {
    const Report report = ChartChecker().checkText(text, "x");
    ASSERT_EQ(report.size(), 1) << text;
    EXPECT_EQ(report.errors(), 1) << text;
    EXPECT_GE(report[0].line(), 1) << text;
    EXPECT_GE(report[0].column(), 1) << text;
  }
}

TEST(Checker, RefusesADocumentTypeAndGoesOn) {
  const std::string words = " error: a document type declaration (DOCTYPE) is not allowed in a chart";
  EXPECT_EQ(
      findings("<!DOCTYPE visualization SYSTEM 'file:///dev/zero' [<!ENTITY % e SYSTEM 'file:///dev/zero'> %e;]>\n"
               "<visualization clip='x'/>"),
      (Lines{"1:1:" + words, "2:1: error: clip of visualization is \"x\", and takes true or false"}));
  const Lines bomb =
      findings("<!DOCTYPE v [<!ENTITY a 'xxxxxxxx'><!ENTITY b '&a;&a;&a;&a;'>]><visualization>&b;</visualization>");
  ASSERT_EQ(bomb.size(), 2);
  EXPECT_EQ(bomb[0], "1:1:" + words);
  const test::Parsed parsed("<!DOCTYPE visualization><visualization/>");
  EXPECT_EQ(linesOf(ChartChecker().checkDocument(parsed.document())), Lines{words.substr(1)});
}

TEST(Checker, KeepsMessagesShortAndOnOneLine) {
  const std::string longName(1'000'000, 'n');
  const std::string hostile = "<" + longName + "/><style " + longName +
                              "='1'/><style stroke-linecap='a&#10;b&#9;&#x202e;c'/>" + "<style hue='" + longName +
                              "'/><style id='" + longName + "'/><style id='" + longName + "'/><popup target='x" +
                              longName + "'/>" + longName;
  const Lines found = findings(chart(hostile));
  ASSERT_EQ(found.size(), 7);
  for (const std::string& line : found) {
    EXPECT_LT(line.size(), 300) << line;
    EXPECT_EQ(line.find_first_of("\n\t"), std::string::npos) << line;
  }
  EXPECT_EQ(found[0], "1:16: error: unknown element \"" + std::string(59, 'n') + "…\" under visualization");
  EXPECT_NE(found[2].find("\"a\uFFFDb\uFFFD\uFFFDc\""), std::string::npos) << found[2];
  const Lines broken = findings("<visualization></" + longName + ">");
  ASSERT_EQ(broken.size(), 1);
  EXPECT_LT(broken[0].size(), 400);
}

TEST(Checker, ListsTheFirstFindingsAndCountsTheOthers) {
  ChartChecker checker;
  EXPECT_EQ(checker.getLimit(), 1000);
  const std::string content = repeated(3, "<popup target='none'/><graph clip='x'/><graph> text</graph>");
  const auto check = [&](std::size_t limit) {
    checker.setLimit(limit);
    return checker.checkText(chart(content), "x");
  };
  const Report all = check(9);
  EXPECT_EQ(all.omitted(), 0);
  for (std::size_t limit = 0; limit < 9; ++limit) {
    const Report report = check(limit);
    EXPECT_EQ(report.errors(), 6);
    EXPECT_EQ(report.warnings(), 3);
    EXPECT_EQ(report.omitted(), 9 - limit);
    Lines expected = linesOf(all);
    expected.resize(limit);
    EXPECT_EQ(linesOf(report), expected);
  }
  EXPECT_EQ(messageOf([&] { static_cast<void>(all[9]); }), "No finding has the index 9: their number is 9.");
}

TEST(Checker, TakesTimeInProportion) {
  constexpr std::size_t many = 100'000;
  std::string ids;
  std::string attributes;
  for (std::size_t i = 0; i < many; ++i) {
    const std::string number = std::to_string(i);
    ids += "<popup target='x" + number + "'/><style id='s" + number + "'/><style id='s'/><n" + number + "/>";
    attributes += " a" + number + "=''";
  }
  const Report report = ChartChecker().checkText(chart(ids + "<graph" + attributes + "/>"), "x");
  EXPECT_EQ(report.errors(), 4 * many);
  EXPECT_EQ(report.size(), 1000);
}

TEST(Checker, AsksForNoStackInADeepDocument) {
  onSmallStack([] {
    const auto nested = [](std::size_t levels) {
      return chart("<graph><faceting>" + repeated(levels, "<nest>") + repeated(levels, "</nest>") +
                   "</faceting></graph>");
    };
    // The first nest lies three levels below the root.
    EXPECT_EQ(findings(nested(10'238)), Lines());
    const std::string words = "error: elements are nested more than 10240 levels deep";
    EXPECT_EQ(findings(nested(10'239)), Lines{"1:61461: " + words});
    EXPECT_EQ(findings(nested(200'000)), Lines{"1:61461: " + words});
    // Long ways to thousands of findings are not written out before somebody asks.
    const std::string faulty = repeated(10'000, "<nest clip=''>") + repeated(10'000, "</nest>");
    const Report report = ChartChecker().checkText(chart("<graph><faceting>" + faulty + "</faceting></graph>"), "x");
    EXPECT_EQ(report.errors(), 10'000);
    EXPECT_EQ(report[999].path().size(), std::string("/visualization/graph/faceting").size() + 1000 * 5);
  });
}

TEST(Checker, ReportsOutliveWhatMadeThem) {
  ChartChecker::Finding finding = [] {
    static const Report copy = ChartChecker().checkText("<visualization><wrong/></visualization>", "x");
    return Report(copy)[0];
  }();
  EXPECT_EQ(finding.path(), "/visualization/wrong");
}

TEST(Checker, TellsOfADomWhatItCan) {
  EXPECT_EQ(messageOf([] { ChartChecker().checkDocument(nullptr); }),
            "A check needs a document, and got a null pointer.");
  const test::NewDocument empty(u"visualization");
  empty.document()->removeChild(empty.root())->release();
  EXPECT_EQ(linesOf(ChartChecker().checkDocument(empty.document())), Lines{"error: the document has no element"});

  const test::NewDocument document(u"visualization");
  document.root()
      ->appendChild(document.document()->createElement(u"graph"))
      ->appendChild(document.document()->createTextNode(u"t"));
  const Report report = ChartChecker().checkDocument(document.document());
  EXPECT_EQ(linesOf(report), Lines{"/visualization/graph: warning: graph bears no text, and holds \"t\""});
  EXPECT_EQ(report[0].line(), 0);
  EXPECT_EQ(report[0].column(), 0);

  // What the classes write and a load takes is right.
  OrbDocument made;
  made.GetVisualization()->addGraph(u"graph")->setClip(true);
  EXPECT_EQ(linesOf(ChartChecker().checkDocument(made.getImplementation())), Lines());
}

TEST(Checker, RaisesForAFileThatCannotBeRead) {
  EXPECT_EQ(messageOf([] { ChartChecker().checkFile("/nonexistent/chart.xml"); }).find("/nonexistent/chart.xml:1:1: "),
            0);
  EXPECT_EQ(messageOf([] { ChartChecker().checkFile("/"); }).find("/:1:1: "), 0);
}

TEST(Checker, FindsNothingInTheExamples) {
  const std::filesystem::path folder = ORBCHART_SOURCE_DIR "/examples/expected";
  unsigned int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".xml")
      continue;
    ++count;
    EXPECT_EQ(linesOf(ChartChecker().checkFile(entry.path().string())), Lines());
  }
  EXPECT_GE(count, 5);
}

/// What a reader refuses the checker finds as well, and what it finds no error in a reader takes.
TEST(Checker, AgreesWithTheReader) {
  for (const auto& entry : std::filesystem::directory_iterator(ORBCHART_SOURCE_DIR "/fuzz/corpus")) {
    const std::string path = entry.path().string();
    const bool isRead = messageOf([&] { ChartReader::readFile(path); }) == "nothing raised";
    EXPECT_TRUE(isRead || ChartChecker().checkFile(path).errors() != 0) << path;
  }
  std::string attributes;
  for (unsigned int i = 0; i <= 10'000; ++i)
    attributes += " xmlns:a" + std::to_string(i) + "='u'";
  const std::string xml = "<visualization><graph" + attributes + "/></visualization>";
  EXPECT_EQ(messageOf([&] { ChartReader::readText(xml, "x"); }),
            "x:1:16: there are more than 10000 attributes in one element");
  EXPECT_EQ(findings(xml), Lines{"1:16: error: there are more than 10000 attributes in one element"});
}

} // namespace
