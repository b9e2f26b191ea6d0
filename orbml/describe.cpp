// orbml describe: the reference of the language in the terminal.
#include "commands.h"
#include "files.h"
#include "text.h"

#include <chartlanguage.h>

#include <algorithm>
#include <iostream>
#include <sstream>
#include <vector>

namespace {

using Attribute = ChartLanguage::Attribute;
using Child = ChartLanguage::Child;
using Element = ChartLanguage::Element;

constexpr std::size_t lineWidth = 100;
constexpr std::size_t nameWidth = 28;

/// Prints a text from a column on, and goes on there in the next lines.
void printWrapped(const std::string& text, std::size_t column) {
  std::istringstream words(text);
  std::size_t at = column;
  for (std::string word; words >> word;) {
    if (at > column && at + 1 + word.size() > lineWidth) {
      std::cout << "\n" << std::string(column, ' ');
      at = column;
    }
    std::cout << (at > column ? " " : "") << word;
    at += word.size() + (at > column ? 1 : 0);
  }
  std::cout << "\n";
}

/// A line with a name and what there is to say of it.
void printEntry(const std::string& name, const std::string& text) {
  std::cout << "  " << name;
  if (text.empty()) {
    std::cout << "\n";
    return;
  }
  const std::size_t column = nameWidth + 2;
  if (name.size() >= nameWidth)
    std::cout << "\n" << std::string(column, ' ');
  else
    std::cout << std::string(nameWidth - name.size(), ' ');
  printWrapped(text, column);
}

void printHeading(const char* heading) { std::cout << "\n" << coloured(heading, Colour::bold) << "\n"; }

std::string joined(const std::vector<std::string>& texts) {
  std::string line;
  for (const std::string& text : texts)
    line += (line.empty() ? "" : ", ") + text;
  return line;
}

bool isAlone(const Element& element) { return ChartLanguage::elementsNamed(element.name()).size() == 1; }

/// The name of an element; where several have it, the class as well.
std::string nameOf(const Element& element) {
  return isAlone(element) ? element.name() : element.name() + " (" + element.className() + ")";
}
std::string namesOf(const std::vector<Element>& elements) {
  std::vector<std::string> names;
  names.reserve(elements.size());
  for (const Element& element : elements)
    names.push_back(nameOf(element));
  return joined(names);
}

/// The elements that the setter takes and the getter does not find.
std::vector<Element> unfoundTargets(const Attribute& attribute) {
  const std::vector<Element> targets = attribute.targets();
  return {targets.begin() + static_cast<std::ptrdiff_t>(attribute.foundTargets().size()), targets.end()};
}

std::string describeReference(const Attribute& attribute) {
  std::string found = namesOf(attribute.foundTargets());
  const std::string unfound = namesOf(unfoundTargets(attribute));
  if (unfound.empty())
    return found;
  return found.empty() ? unfound + "; always reads as none"
                       : found + "; " + unfound + " may stand there and read as none";
}

std::string wordsOf(const Attribute& attribute) {
  std::vector<std::string> words;
  for (const ChartLanguage::Keyword& keyword : attribute.keywords())
    words.push_back(keyword.text());
  return joined(words);
}

std::string describeAttribute(const Attribute& attribute) {
  std::string text = ChartLanguage::nameOf(attribute.kind());
  if (attribute.kind() == ChartLanguage::kind_reference)
    text += " to " + describeReference(attribute);
  if (const std::string words = wordsOf(attribute); !words.empty())
    text += (attribute.kind() == ChartLanguage::kind_text ? ", such as " : ": ") + words;
  if (const std::string fallback = attribute.fallback(); !fallback.empty())
    text += "; absent reads as " + fallback;
  return text;
}

std::string describeChild(const Child& child) {
  std::vector<std::string> remarks;
  if (child.most() != 0)
    remarks.push_back("at most " + std::to_string(child.most()));
  std::vector<Element> others = child.alternatives();
  others.erase(std::remove(others.begin(), others.end(), child.element()), others.end());
  if (!others.empty())
    remarks.push_back("not beside " + namesOf(others));
  if (!child.isLoaded())
    remarks.emplace_back("can be added, but a load refuses it");
  return joined(remarks);
}

void printElement(const Element& element) {
  std::cout << coloured(element.name(), Colour::bold) << ", class " << element.className() << " of "
            << element.headerName() << "\n";
  if (element.bearsText())
    std::cout << "  holds a text\n";
  if (element.isFree())
    std::cout << "  takes attributes and children of any name\n";
  else if (element.passesOverUnknownChildren())
    std::cout << "  a load passes over children that it does not know\n";
  if (!element.attributes().empty())
    printHeading("attributes");
  for (const Attribute& attribute : element.attributes())
    printEntry(attribute.name(), describeAttribute(attribute));
  if (!element.children().empty())
    printHeading("children");
  for (const Child& child : element.children())
    printEntry(nameOf(child.element()), describeChild(child));
  if (!element.parents().empty()) {
    printHeading("parents");
    std::cout << "  ";
    printWrapped(namesOf(element.parents()), 2);
  }
}

std::vector<std::string> allNames() {
  std::vector<std::string> names;
  for (const Element& element : ChartLanguage::elements())
    names.push_back(element.name());
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  return names;
}

ExitCode printOverview() {
  const std::vector<std::string> names = allNames();
  std::cout << "orbml " << ChartLanguage::version() << ", namespace " << ChartLanguage::namespaceURI() << "\n"
            << names.size() << " elements; the root is " << ChartLanguage::root().name() << "\n\n  ";
  printWrapped(joined(names), 2);
  std::cout << "\n\"orbml describe ELEMENT\" tells what one of them holds.\n";
  return nothingToReport;
}

} // namespace

ExitCode describe(const std::string& element) {
  if (element.empty())
    return printOverview();
  const std::vector<Element> elements = ChartLanguage::elementsNamed(element);
  for (std::size_t i = 0; i < elements.size(); ++i) {
    std::cout << (i == 0 ? "" : "\n");
    printElement(elements[i]);
  }
  if (!elements.empty())
    return nothingToReport;
  complain("the language has no element \"" + printable(element) + "\"" +
           meant(ChartLanguage::nearest(element, allNames())));
  return cannotBeDone;
}
