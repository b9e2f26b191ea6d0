// Writes the reference pages that nobody writes by hand: one for each element of the language, from its description,
// and one for each example, from its source and from what it prints. In the text that Doxygen reads.
#include <chartlanguage.h>

#include <algorithm>
#include <cctype>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Attribute = ChartLanguage::Attribute;
using Child = ChartLanguage::Child;
using Element = ChartLanguage::Element;

std::ofstream openPage(const std::filesystem::path& path) {
  std::ofstream page(path);
  page.exceptions(std::ios::failbit | std::ios::badbit);
  return page;
}

std::string pageId(const Element& element) { return "element_" + element.className(); }

/// The name of an element, with its class where several elements have the name.
std::string titleOf(const Element& element) {
  const bool isUnique = ChartLanguage::elementsNamed(element.name()).size() == 1;
  return isUnique ? element.name() : element.name() + " (" + element.className() + ")";
}

std::string linkTo(const Element& element) { return "\\ref " + pageId(element) + " \"" + titleOf(element) + "\""; }

/// A word of the language as it stands in a document; the sign in front keeps it from being linked to a class.
std::string word(const std::string& text) {
  const bool isName = !text.empty() && std::isalpha(static_cast<unsigned char>(text.front())) != 0;
  return "<code>" + (isName ? '%' + text : text) + "</code>";
}

template <class Things, class TextOf> std::string listOf(const Things& things, TextOf textOf) {
  std::string list;
  for (const auto& thing : things)
    list += (list.empty() ? "" : ", ") + textOf(thing);
  return list;
}

/// A row of a table, with blanks around the cells, at which a command ends.
std::string row(const std::vector<std::string>& cells, const std::string& tag = "td") {
  const std::string opening = "<" + tag + "> ";
  const std::string closing = " </" + tag + ">";
  std::string row = "<tr>";
  for (const std::string& cell : cells)
    row.append(opening).append(cell).append(closing);
  return row + "</tr>\n";
}

/// A table under a heading; nothing where there are no rows.
void printTable(std::ostream& page, const std::string& heading, const std::vector<std::string>& head,
                const std::string& rows) {
  if (!rows.empty())
    page << "<h2>" << heading << "</h2>\n<table class=\"language\">\n" << row(head, "th") << rows << "</table>\n";
}

/// The words of an attribute, or the elements to which it may lead.
std::string valuesOf(const Attribute& attribute) {
  const std::vector<Element> found = attribute.foundTargets();
  std::string values =
      listOf(attribute.keywords(), [](const ChartLanguage::Keyword& keyword) { return word(keyword.text()); });
  values += listOf(attribute.targets(), [&](const Element& target) {
    const bool isFound = std::find(found.begin(), found.end(), target) != found.end();
    return linkTo(target) + (isFound ? "" : " (reads as null)");
  });
  return values;
}

void printAttributes(std::ostream& page, const Element& element) {
  std::string rows;
  for (const Attribute& attribute : element.attributes()) {
    const std::string fallback = attribute.fallback();
    rows += row({word(attribute.name()), ChartLanguage::nameOf(attribute.kind()), valuesOf(attribute),
                 fallback.empty() ? "" : word(fallback)});
  }
  printTable(page, "Attributes", {"Attribute", "Kind", "Words, or where it leads", "Absent reads as"}, rows);
}

/// How many of a child there may be, and what else limits it.
std::string limitOf(const Child& child) {
  std::string limit = child.most() == 0 ? "any number" : std::to_string(child.most());
  if (const std::vector<Element> alternatives = child.alternatives(); !alternatives.empty())
    limit += "; one alone of " + listOf(alternatives, linkTo);
  if (!child.isLoaded())
    limit += "; the operation that adds it makes what a load refuses";
  return limit;
}

void printChildren(std::ostream& page, const Element& element) {
  std::string rows;
  for (const Child& child : element.children())
    rows += row({linkTo(child.element()), child.element().className(), limitOf(child)});
  printTable(page, "Children", {"Element", "Class", "At most"}, rows);
}

void printContent(std::ostream& page, const Element& element) {
  const bool hasChildren = !element.children().empty();
  page << '\n';
  if (element.isFree())
    page << "It takes attributes and children of any name. ";
  if (element.bearsText())
    page << "It holds a text. ";
  if (!element.passesOverUnknownChildren())
    page << "A load refuses children that it does not know.";
  else if (hasChildren)
    page << "A load passes over children that it does not know.";
  else
    page << "A load does not look at its children.";
  page << '\n';
}

void printElement(std::ostream& page, const Element& element) {
  page << "/** \\page " << pageId(element) << ' ' << titleOf(element) << "\n\\copybrief " << element.className()
       << "\n\n<dl>\n<dt>Class<dd>" << element.className() << ", header " << element.headerName() << '\n';
  if (const std::vector<Element> parents = element.parents(); !parents.empty())
    page << "<dt>Parents<dd>" << listOf(parents, linkTo) << '\n';
  page << "</dl>\n";
  printContent(page, element);
  printAttributes(page, element);
  printChildren(page, element);
  // What is said of a class in a second place is added to what its header says.
  page << "*/\n\n/** \\class " << element.className() << "\n\\par Element\n"
       << linkTo(element) << ": its attributes, children and parents\n*/\n\n";
}

void printElements(const std::filesystem::path& directory) {
  std::vector<Element> elements = ChartLanguage::elements();
  std::ofstream page = openPage(directory / "elements.dox");
  for (const Element& element : elements)
    printElement(page, element);

  const auto letters = [](const Element& element) {
    std::string text = titleOf(element);
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return text;
  };
  std::sort(elements.begin(), elements.end(),
            [&](const Element& one, const Element& other) { return letters(one) < letters(other); });
  page << "/** \\page elements_of_the_language Elements of the language\nA document begins at "
       << linkTo(ChartLanguage::root()) << ".\n\n<table class=\"language\">\n"
       << row({"Element", "Class", ""}, "th");
  for (const Element& element : elements)
    page << row({"\\subpage " + pageId(element) + " \"" + titleOf(element) + "\"", element.className(),
                 "\\copybrief " + element.className()});
  page << "</table>\n*/\n";
}

/// The comment at the head of a source, without its slashes.
std::string headComment(const std::filesystem::path& source) {
  std::ifstream file(source);
  std::string comment;
  for (std::string line; std::getline(file, line) && line.starts_with("// ");)
    comment += line.substr(3) + '\n';
  if (comment.empty())
    throw std::runtime_error(source.string() + " does not begin with a comment");
  return comment;
}

void printExamples(const std::filesystem::path& examples, const std::filesystem::path& directory) {
  std::set<std::filesystem::path> sources;
  for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator(examples)) {
    if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
      sources.insert(entry.path());
  }
  std::ofstream page = openPage(directory / "examples.dox");
  for (const std::filesystem::path& source : sources) {
    page << "/** \\example " << source.filename().string() << "\n\\details " << headComment(source) << '\n';
    for (const std::string kind : {".xml", ".txt"}) {
      const std::string printed = "expected/" + source.stem().string() + kind;
      if (std::filesystem::exists(examples / printed))
        page << "It prints:\n\\include " << printed << '\n';
    }
    page << "The source:\n*/\n\n";
  }
}

} // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::cerr << "usage: " << arguments[0] << " EXAMPLES DIRECTORY\n";
    return 2;
  }
  try {
    std::filesystem::create_directories(arguments[2]);
    printElements(arguments[2]);
    printExamples(arguments[1], arguments[2]);
  } catch (const std::exception& exception) {
    std::cerr << exception.what() << '\n';
    return 1;
  }
  return 0;
}
