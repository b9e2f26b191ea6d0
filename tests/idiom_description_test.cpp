// The description of the language, walked from the root: it knows every class, and what it says fits together.
#include "accessordifferences.h"
#include "description.h"
#include "dom.h"
#include "loading.h"
#include "orbvisualization.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <vector>

using namespace orbchart;
using test::messageOf;
using test::NewDocument;
using test::utf8;
using xercesc::DOMElement;

namespace {

/// A class of the public headers, as far as its declarations tell.
struct DeclaredClass {
  bool hasElement = false;
  std::string base;
  std::set<std::string> attributes; // the X of its accessors
};

std::string capitalised(std::string name) {
  name[0] = static_cast<char>(std::toupper(name[0]));
  return std::regex_replace(name, std::regex("-"), "_");
}

std::map<std::string, DeclaredClass> declaredClasses() {
  std::map<std::string, DeclaredClass> classes;
  const std::regex declaration(R"(class ORBCHART_EXPORT (\w+) : public (\w+))");
  const std::regex accessor(R"(  void set(\w+)\([^,()]+\);|  bool is(\w+)Present\(\) const;)");
  for (const auto& header : std::filesystem::directory_iterator(ORBCHART_SOURCE_DIR "/orbchart/include")) {
    std::ostringstream contents;
    contents << std::ifstream(header.path()).rdbuf();
    const std::string text = contents.str();
    std::smatch match;
    if (!std::regex_search(text, match, declaration))
      continue;
    DeclaredClass& one = classes[match[1]];
    one.base = match[2];
    one.hasElement = text.find(" elementName = ") != std::string::npos;
    for (std::sregex_iterator at(text.begin(), text.end(), accessor), end; at != end; ++at)
      one.attributes.insert((*at)[1].matched ? (*at)[1] : (*at)[2]);
    one.attributes.erase("Text");
  }
  return classes;
}

/// Every description that is reached from another one by families, by class.
void collect(const ElementDescription& element, std::map<std::string, const ElementDescription*>& reached) {
  if (!reached.emplace(element.className, &element).second)
    return;
  for (const FamilyDescription* family : familiesOf(element))
    collect(family->child(), reached);
}

std::map<std::string, const ElementDescription*> allDescriptions() {
  static const test::Platform platform; // for the names, of which there are thousands
  std::map<std::string, const ElementDescription*> reached;
  collect(descriptionOf<OrbVisualization>(), reached);
  return reached;
}

/// The elements that lead from the root to each class.
void collectPaths(const ElementDescription& element, const std::vector<const XMLCh*>& path,
                  std::map<std::string, std::vector<const XMLCh*>>& paths) {
  if (!paths.emplace(element.className, path).second)
    return;
  for (const FamilyDescription* family : familiesOf(element)) {
    std::vector<const XMLCh*> longer = path;
    longer.push_back(family->child().name);
    collectPaths(family->child(), longer, paths);
  }
}

/// What no parent holds, and what only they hold.
const std::set<std::string> withoutParent = {"OrbDescription2",
                                             "OrbEmbeddedMultipleResponseInfo",
                                             "OrbName",
                                             "OrbReshapeSource",
                                             "OrbScope",
                                             "OrbValue",
                                             "OrbValueDescription",
                                             "OrbVariableName"};

} // namespace

TEST(Description, ReachesEveryClassFromTheRoot) {
  std::set<std::string> missing;
  const auto reached = allDescriptions();
  for (const auto& [name, one] : declaredClasses()) {
    if (one.hasElement && reached.count(name) == 0)
      missing.insert(name);
  }
  EXPECT_EQ(missing, withoutParent);
}

TEST(Description, HasEachAttributeOfItsClass) {
  const auto declared = declaredClasses();
  for (const auto& [name, description] : allDescriptions()) {
    std::set<std::string> described;
    for (const AttributeDescription* attribute : attributesOf(*description))
      described.insert(capitalised(utf8(attribute->name)));
    for (std::string owner = name; declared.count(owner) != 0; owner = declared.at(owner).base) {
      for (const std::string& x : declared.at(owner).attributes) {
        const auto other = test::otherNames.find(owner + "::" + x);
        const std::string expected = other == test::otherNames.end() ? x : capitalised(other->second);
        EXPECT_TRUE(described.count(expected) != 0 || description->isFree) << owner << "::" << x;
      }
    }
  }
}

TEST(Description, SaysEachThingOnce) {
  for (const auto& [name, description] : allDescriptions()) {
    std::set<std::string> attributes;
    for (const AttributeDescription* attribute : attributesOf(*description)) {
      EXPECT_TRUE(attributes.insert(utf8(attribute->name)).second) << name << " " << utf8(attribute->name);
      std::set<std::string> words;
      std::set<int> numbers;
      for (const KeywordDescription& keyword : attribute->keywords) {
        EXPECT_TRUE(words.insert(utf8(keyword.text)).second) << name << " " << utf8(keyword.text);
        EXPECT_TRUE(numbers.insert(keyword.number).second) << name << " " << keyword.number;
      }
      EXPECT_EQ(numbers.count(attribute->fallback) != 0, attribute->fallbackIsKeyword)
          << name << " " << utf8(attribute->name);
      EXPECT_EQ(attribute->kind == AttributeKind::id, utf8(attribute->name) == "id") << name;
    }
    std::set<std::string> families;
    for (const FamilyDescription* family : familiesOf(*description))
      EXPECT_TRUE(families.insert(utf8(family->child().name)).second) << name << " " << utf8(family->child().name);
  }
}

TEST(Description, ReachesWhatReferencesLeadTo) {
  const auto reached = allDescriptions();
  for (const auto& [name, description] : reached) {
    for (const AttributeDescription* attribute : attributesOf(*description)) {
      for (const Described target : attribute->targets) {
        const std::string className(target().className);
        EXPECT_TRUE(reached.count(className) != 0 || className == "OrbReshapeSource") << name << " " << className;
      }
      if (attribute->takes == nullptr)
        continue;
      const auto derives = [&](const auto& other) { return other.second->base == attribute->takes; };
      EXPECT_TRUE(std::any_of(reached.begin(), reached.end(), derives)) << name << " " << utf8(attribute->name);
    }
  }
}

TEST(Description, KnowsLimitsAlternativesAndWhatALoadPassesOver) {
  const auto reached = allDescriptions();
  const auto family = [&](const char* parent, const char* child) {
    for (const FamilyDescription* one : familiesOf(*reached.at(parent))) {
      if (utf8(one->child().name) == child)
        return *one;
    }
    return FamilyDescription{};
  };
  EXPECT_EQ(family("OrbAxis", "label").most, 1U);
  EXPECT_EQ(family("OrbDimension", "axis").most, 2U);
  EXPECT_EQ(family("OrbFacetLevel", "axis").most, 3U);
  EXPECT_EQ(family("OrbGraph", "point").most, 0U);
  EXPECT_EQ(family("OrbMajorTicks", "label").alternatives.size(), 2U);
  EXPECT_EQ(family("OrbPoint", "x").most, 1U) << "a family of the base";

  std::set<std::string> tolerant;
  for (const auto& [name, description] : reached) {
    if (!familiesOf(*description).empty() && unknownChildrenOf(*description) == Unknown::passes)
      tolerant.insert(name);
  }
  EXPECT_EQ(tolerant, (std::set<std::string>{"OrbColor", "OrbColorComponent", "OrbDash", "OrbDerivedVariable",
                                             "OrbExpressionVariable", "OrbFormat", "OrbLabelLocation", "OrbOffset",
                                             "OrbPattern", "OrbRotation", "OrbShape", "OrbSize", "OrbSourceVariable",
                                             "OrbSplit", "OrbStyleBy", "OrbTransparency"}));
  EXPECT_TRUE(reached.at("OrbRow")->bearsText);
  EXPECT_TRUE(reached.at("OrbExtension")->isFree);
}

TEST(Description, KnowsNoClassThatPassesOverWhatLiesTooDeep) {
  std::map<std::string, std::vector<const XMLCh*>> paths;
  collectPaths(descriptionOf<OrbVisualization>(), {}, paths);
  const NewDocument document(u"visualization");
  DOMElement* deep = document.document()->createElement(u"deep");
  document.nest(deep, u"deep", maximumNesting);
  for (const auto& [name, description] : allDescriptions()) {
    if (unknownChildrenOf(*description) == Unknown::raises)
      continue;
    DOMElement* parent = document.root();
    for (const XMLCh* element : paths.at(name))
      parent = document.nest(parent, element, 1);
    parent->appendChild(deep);
    EXPECT_EQ(messageOf([&] { const OrbVisualization root(document.root()); }).substr(0, 80),
              "Elements are nested more than 10240 levels deep below visualization.")
        << name;
    parent->removeChild(deep);
    document.root()->removeChild(document.root()->getFirstChild());
  }
}
