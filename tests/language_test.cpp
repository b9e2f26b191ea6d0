// What the library says of its language, and the schema that it writes from it.
#include "chartlanguage.h"
#include "chartstring.h"
#include "dom.h"
#include "orbdocument.h"
#include "orbvisualization.h"

#include <gtest/gtest.h>
#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/validators/common/Grammar.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>

#include <unistd.h>

using Attribute = ChartLanguage::Attribute;
using Child = ChartLanguage::Child;
using Element = ChartLanguage::Element;

namespace {

const std::filesystem::path schemaFile = ORBCHART_SOURCE_DIR "/orbchart/schema/orbml-2.9.xsd";

Element elementOf(const std::string& className) {
  for (const Element& element : ChartLanguage::elements()) {
    if (element.className() == className)
      return element;
  }
  throw std::runtime_error("no class " + className);
}

/// The entry of a name.
template <class Entry> Entry named(const std::vector<Entry>& entries, const std::string& name) {
  for (const Entry& entry : entries) {
    if (entry.name() == name)
      return entry;
  }
  throw std::runtime_error("nothing is called " + name);
}
Attribute attributeOf(const std::string& className, const std::string& name) {
  return named(elementOf(className).attributes(), name);
}
Child childOf(const std::string& className, const std::string& name) {
  for (const Child& child : elementOf(className).children()) {
    if (child.element().name() == name)
      return child;
  }
  throw std::runtime_error(className + " has no " + name);
}

std::string namesOf(const std::vector<Element>& elements) {
  std::string names;
  for (const Element& element : elements)
    names += (names.empty() ? "" : " ") + element.name();
  return names;
}

/// A chart around some XML, of which the root is what the library makes it.
std::string chart(const std::string& children, const std::string& rootAttributes = "") {
  return "<visualization xmlns=\"" + ChartLanguage::namespaceURI() + "\"" + rootAttributes + ">" + children +
         "</visualization>";
}

/// A parser of Xerces that validates against the committed schema and fetches nothing.
class ValidatingParser {
public:
  ValidatingParser() {
    parser_.setDoNamespaces(true);
    parser_.setDoSchema(true);
    parser_.setValidationScheme(xercesc::XercesDOMParser::Val_Always);
    parser_.setErrorHandler(&errors_);
    parser_.loadGrammar(xercesc::LocalFileInputSource(ChartString(schemaFile.c_str()).xc_str()),
                        xercesc::Grammar::SchemaGrammarType, true);
    parser_.useCachedGrammarInParse(true);
    parser_.setLoadSchema(false);
  }
  /// The document; null for one that is not valid.
  const xercesc::DOMDocument* parse(const std::string& xml) {
    try {
      parser_.parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(), "chart"));
      return parser_.getDocument();
    } catch (const xercesc::SAXException& error) {
      message = test::utf8(error.getMessage());
      return nullptr;
    }
  }

  std::string message;

private:
  struct Throwing : xercesc::HandlerBase {
    void error(const xercesc::SAXParseException& exception) override { throw xercesc::SAXParseException(exception); }
  };
  test::Platform platform_;
  Throwing errors_;
  xercesc::XercesDOMParser parser_;
};

/// Whether another validator takes each of some documents: the names of those that it refuses.
std::set<std::string> refusedByXmllint(const std::map<std::string, std::string>& documents) {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("orbchart_schema." + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  std::string command =
      "cd '" + folder.string() + "' && xmllint --nonet --noout --schema '" + schemaFile.string() + "'";
  for (const auto& [name, document] : documents) {
    std::ofstream(folder / name) << document;
    command += " '" + name + "'";
  }
  std::set<std::string> refused;
  const std::string end = " validates\n";
  for (const auto& [name, document] : documents)
    refused.insert(name);
  FILE* output = popen((command + " 2>&1").c_str(), "r"); // NOLINT(cert-env33-c): a fixed program of the test
  char line[4096];
  while (std::fgets(line, sizeof line, output) != nullptr) {
    const std::string text = line;
    if (text.size() > end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0)
      refused.erase(text.substr(0, text.size() - end.size()));
  }
  pclose(output);
  std::filesystem::remove_all(folder);
  return refused;
}

/// Writes documents that have all that the language has, with legal values.
class Everything {
public:
  Everything() {
    for (const Element& element : ChartLanguage::elements())
      ways_.emplace(element.className(), wayTo(element));
  }
  /// One document in which each element stands once for each word of its attributes.
  std::string document() {
    std::string children;
    for (const Element& element : ChartLanguage::elements()) {
      if (element != ChartLanguage::root())
        children += wrapped(element);
    }
    return chart(children, attributesOf(ChartLanguage::root(), 0));
  }
  unsigned int ids() const { return ids_; }

private:
  /// The elements from below the root down to one.
  static std::vector<Element> wayTo(const Element& element) {
    std::vector<Element> way;
    std::function<bool(const Element&, std::set<std::string>&)> climb = [&](const Element& at,
                                                                            std::set<std::string>& seen) {
      if (at == ChartLanguage::root())
        return true;
      if (!seen.insert(at.className()).second)
        return false;
      for (const Element& parent : at.parents()) {
        if (climb(parent, seen)) {
          way.push_back(at);
          return true;
        }
      }
      return false;
    };
    std::set<std::string> seen;
    climb(element, seen);
    return way;
  }

  std::string wrapped(const Element& element) {
    const std::vector<Element>& way = ways_.at(element.className());
    std::string before;
    std::string behind;
    for (std::size_t i = 0; i + 1 < way.size(); ++i) {
      before += "<" + way[i].name() + ">";
      behind = "</" + way[i].name() + ">" + behind;
    }
    std::string all;
    for (std::size_t word = 0; word < mostWords(element); ++word) {
      all += before + "<" + element.name() + attributesOf(element, word) + ">" + (element.bearsText() ? "text" : "") +
             "</" + element.name() + ">" + behind;
    }
    return all;
  }
  static std::size_t mostWords(const Element& element) {
    std::size_t most = 2; // numbers have two values to try
    for (const Attribute& attribute : element.attributes())
      most = std::max(most, attribute.keywords().size());
    return most;
  }

  std::string attributesOf(const Element& element, std::size_t word) {
    std::string text;
    for (const Attribute& attribute : element.attributes())
      text += " " + attribute.name() + "=\"" + valueOf(attribute, word) + "\"";
    return text;
  }
  std::string valueOf(const Attribute& attribute, std::size_t word) {
    const std::vector<ChartLanguage::Keyword> keywords = attribute.keywords();
    if (word < keywords.size())
      return keywords[word].text();
    switch (attribute.kind()) {
    case ChartLanguage::kind_id:
      return "id" + std::to_string(++ids_);
    case ChartLanguage::kind_boolean:
      return word % 2 == 0 ? "true" : "false";
    case ChartLanguage::kind_integer:
      return word % 2 == 0 ? "-2147483648" : "2147483647";
    case ChartLanguage::kind_unsignedInteger:
      return word % 2 == 0 ? "0" : "4294967295";
    case ChartLanguage::kind_number:
      return word % 2 == 0 ? "-1.5" : "1e+300";
    case ChartLanguage::kind_keyword:
      return keywords.front().text();
    case ChartLanguage::kind_reference:
    case ChartLanguage::kind_anyReference:
      return "id1";
    default:
      return "any text at all";
    }
  }

  std::map<std::string, std::vector<Element>> ways_;
  unsigned int ids_ = 0;
};

} // namespace

TEST(Language, IsReachedFromItsRoot) {
  const std::vector<Element> elements = ChartLanguage::elements();
  ASSERT_TRUE(elements.front() == ChartLanguage::root());
  EXPECT_EQ(ChartLanguage::root().name(), "visualization");
  EXPECT_TRUE(ChartLanguage::root().parents().empty());
  std::set<std::string> classes;
  for (const Element& element : elements) {
    EXPECT_TRUE(classes.insert(element.className()).second) << element.className();
    EXPECT_TRUE(std::filesystem::exists(ORBCHART_SOURCE_DIR "/orbchart/include/" + element.headerName()));
    EXPECT_EQ(element.parents().empty(), element == elements.front()) << element.className();
    for (const Child& child : element.children()) {
      const std::vector<Element> parents = child.element().parents();
      EXPECT_EQ(std::count(parents.begin(), parents.end(), element), 1) << element.className();
    }
  }
  EXPECT_EQ(ChartLanguage::elementsNamed("extension").size(), 4U) << "one name, four classes";
  EXPECT_TRUE(ChartLanguage::elementsNamed("Point").empty());
}

TEST(Language, TellsWhatAnAttributeHoldsAndWhatItsAbsenceReadsAs) {
  EXPECT_EQ(attributeOf("OrbPoint", "id").kind(), ChartLanguage::kind_id);
  EXPECT_EQ(attributeOf("OrbVisualization", "version").kind(), ChartLanguage::kind_number);
  EXPECT_EQ(attributeOf("OrbVisualization", "version").fallback(), "0");
  EXPECT_EQ(attributeOf("OrbVisualization", "clip").fallback(), "false");
  EXPECT_EQ(attributeOf("OrbStyle", "symbol").kind(), ChartLanguage::kind_text) << "any text beside its words";
  EXPECT_FALSE(attributeOf("OrbStyle", "symbol").keywords().empty());

  std::set<std::string> fallbacksOfBooleans;
  for (const Element& element : ChartLanguage::elements()) {
    for (const Attribute& attribute : element.attributes()) {
      const std::vector<ChartLanguage::Keyword> keywords = attribute.keywords();
      const bool isWord = std::any_of(keywords.begin(), keywords.end(), [&](const ChartLanguage::Keyword& keyword) {
        return keyword.text() == attribute.fallback() && keyword.number() == attribute.fallbackNumber();
      });
      if (attribute.kind() == ChartLanguage::kind_keyword) {
        EXPECT_FALSE(keywords.empty()) << element.name() << " " << attribute.name();
        EXPECT_EQ(isWord, !attribute.fallback().empty()) << element.name() << " " << attribute.name();
      }
      if (attribute.kind() == ChartLanguage::kind_boolean)
        fallbacksOfBooleans.insert(attribute.fallback());
      EXPECT_FALSE(ChartLanguage::nameOf(attribute.kind()).empty());
    }
  }
  EXPECT_EQ(fallbacksOfBooleans, (std::set<std::string>{"false", "true"}));
}

TEST(Language, TellsWhereReferencesLead) {
  const Attribute variable = attributeOf("OrbX", "variable");
  EXPECT_EQ(namesOf(variable.foundTargets()), "sourceVariable derivedVariable expressionVariable");
  EXPECT_EQ(namesOf(variable.targets()), namesOf(variable.foundTargets()) + " multipleResponseVariable")
      << "the setter takes it, the getter does not find it";
  EXPECT_EQ(namesOf(attributeOf("OrbPoint", "style").targets()), "style");
  EXPECT_TRUE(attributeOf("OrbPoint", "clip").targets().empty());
}

TEST(Language, TellsChildrenWithTheirLimits) {
  EXPECT_EQ(childOf("OrbDimension", "axis").most(), 2U);
  EXPECT_EQ(childOf("OrbGraph", "point").most(), 0U);
  EXPECT_EQ(childOf("OrbMajorTicks", "label").alternatives().size(), 2U);
  EXPECT_TRUE(childOf("OrbGraph", "point").alternatives().empty());
  EXPECT_TRUE(childOf("OrbColor", "scale").isLoaded());
  EXPECT_FALSE(childOf("OrbImage", "scale").isLoaded()) << "it can be added, and the loader refuses it";
  EXPECT_TRUE(elementOf("OrbRow").bearsText());
  EXPECT_TRUE(elementOf("OrbExtension").isFree());
  EXPECT_TRUE(elementOf("OrbColor").passesOverUnknownChildren());
  EXPECT_FALSE(elementOf("OrbGraph").passesOverUnknownChildren());
}

TEST(Language, FindsTheWordThatWasMeant) {
  const std::vector<std::string> words = {"clip", "color", "x", "yx", "point", "path", "labelFrame"};
  const auto nearest = [&](const char* misspelt) { return ChartLanguage::nearest(misspelt, words); };
  EXPECT_EQ(nearest("colour"), "color");
  EXPECT_EQ(nearest("POINT"), "point");
  EXPECT_EQ(nearest("ponit"), "point");
  EXPECT_EQ(nearest("xy"), "yx") << "letters exchanged are near in the shortest words";
  EXPECT_EQ(nearest("X"), "x");
  EXPECT_EQ(nearest("labelframes"), "labelFrame");
  EXPECT_EQ(nearest("y"), "");
  EXPECT_EQ(nearest("border"), "");
  EXPECT_EQ(nearest(""), "");
  EXPECT_EQ(nearest(std::string(1'000'000, 'x').c_str()), "");
  EXPECT_EQ(ChartLanguage::nearest("pathe", {"pathd", "path", "paths"}), "pathd") << "the first among equals";
}

TEST(Schema, IsTheOneThatIsCommitted) {
  std::ostringstream committed;
  committed << std::ifstream(schemaFile).rdbuf();
  EXPECT_EQ(ChartLanguage::schema(), committed.str()) << "./dev schema writes it anew";
}

TEST(Schema, TakesAllThatTheLanguageHas) {
  Everything everything;
  const std::string all = everything.document();
  ValidatingParser parser;
  const xercesc::DOMDocument* document = parser.parse(all);
  ASSERT_NE(document, nullptr) << parser.message;
  for (unsigned int id = 1; id <= everything.ids(); ++id)
    ASSERT_NE(document->getElementById(ChartString(("id" + std::to_string(id)).c_str()).xc_str()), nullptr) << id;
  EXPECT_EQ(refusedByXmllint({{"everything.xml", all}}), std::set<std::string>());
}

TEST(Schema, TakesNumbersAsTheLibraryWritesThem) {
  ValidatingParser parser;
  for (const double number : {0.0, -0.1, 1e-300, 123456789.125, 1e20, std::numeric_limits<double>::max()}) {
    OrbDocument document;
    document.GetVisualization()->setVersion(number);
    EXPECT_NE(parser.parse(document.AsUTF8()), nullptr) << number << ": " << parser.message;
  }
}

TEST(Schema, TakesWhatALoadPassesOver) {
  const std::string documents[] = {
      chart("<sourceVariable><unknown/><format/></sourceVariable>"),
      chart("<sourceVariable><format maximumFractionDigits=\"2\"/><extension "
            "any=\"1\">text<b/></extension></sourceVariable>"),
      chart("<graph><point><x><unknown any=\"1\">text</unknown></x></point></graph>"),
      chart("<graph/><style/><graph/><extension/><sourceVariable/>"), // in any order
  };
  ValidatingParser parser;
  for (const std::string& document : documents)
    EXPECT_NE(parser.parse(document), nullptr) << document << parser.message;
}

TEST(Schema, RefusesWhatIsNone) {
  const std::map<std::string, std::string> documents = {
      {"boolean", chart("", " clip=\"1\"")},
      {"boolean_with_blank", chart("", " clip=\" true\"")},
      {"number", chart("", " version=\"NaN\"")},
      {"keyword", chart("<embeddedSource missing=\"none\"/>")},
      {"keyword_in_a_tolerant_element", chart("<graph><point><color><scale method=\"none\"/></color></point></graph>")},
      {"attribute", chart("", " colour=\"red\"")},
      {"element", chart("<poin/>")},
      {"text", chart("<graph>text</graph>")},
      {"id_twice", chart("<graph id=\"a\"/><style id=\"a\"/>")},
      {"id_that_is_no_name", chart("<graph id=\"1 2\"/>")},
      {"signed", chart("<graph><point zOrder=\"+5\"/></graph>")},
  };
  ValidatingParser parser;
  std::set<std::string> names;
  for (const auto& [name, document] : documents) {
    EXPECT_EQ(parser.parse(document), nullptr) << name;
    names.insert(name);
  }
  EXPECT_EQ(refusedByXmllint(documents), names);
  EXPECT_EQ(parser.parse(chart("", " style=\"nobody\"")), nullptr) << "xmllint does not look where ids lead";
  EXPECT_NE(parser.parse(chart("<embeddedSource missing=\"pairwise\"/>")), nullptr) << parser.message;
}
