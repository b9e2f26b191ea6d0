// orbml outline: the tree of a document.
#include "commands.h"
#include "files.h"
#include "text.h"

#include <chartstring.h>
#include <orbdocument.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/XMLString.hpp>

#include <algorithm>
#include <iostream>
#include <memory>
#include <vector>

using xercesc::DOMElement;

namespace {

/// Deeper elements are not indented further, but have their level before them.
constexpr std::size_t deepestIndent = 32;

std::string attributeOf(const DOMElement& element, const XMLCh* name) {
  return ChartString(element.getAttribute(name)).toUTF8();
}

/// Whether there is nothing to tell of an element but its name.
bool isPlain(const DOMElement& element) {
  return !element.hasAttribute(u"id") && !element.hasAttribute(u"label") && element.getFirstElementChild() == nullptr;
}

/// How many siblings from one on are alike, in that all are plain and of one name, and the first that is not.
struct Run {
  std::size_t length;
  const DOMElement* behind;
};
Run runFrom(const DOMElement& first) {
  Run run{1, first.getNextElementSibling()};
  while (isPlain(first) && run.behind != nullptr && isPlain(*run.behind) &&
         xercesc::XMLString::equals(run.behind->getTagName(), first.getTagName()))
    run = {run.length + 1, run.behind->getNextElementSibling()};
  return run;
}

void printLine(const DOMElement& element, std::size_t level, std::size_t count) {
  std::cout << std::string(2 * std::min(level, deepestIndent), ' ');
  if (level > deepestIndent)
    std::cout << "(level " << level << ") ";
  std::cout << coloured(printable(ChartString(element.getTagName()).toUTF8()), Colour::bold);
  if (element.hasAttribute(u"id"))
    std::cout << " #" << printable(attributeOf(element, u"id"));
  if (element.hasAttribute(u"label"))
    std::cout << " \"" << printable(attributeOf(element, u"label")) << "\"";
  if (count > 1)
    std::cout << " × " << count;
  std::cout << "\n";
}

/// Walks without recursion: documents may be deep.
void printTree(const DOMElement& root) {
  std::vector<const DOMElement*> rests = {&root}; // the next element of each level that is begun
  while (!rests.empty()) {
    const DOMElement* element = rests.back();
    if (element == nullptr) {
      rests.pop_back();
      continue;
    }
    const Run run = runFrom(*element);
    printLine(*element, rests.size() - 1, run.length);
    rests.back() = rests.size() == 1 ? nullptr : run.behind;
    rests.push_back(element->getFirstElementChild());
  }
}

} // namespace

ExitCode outline(const std::string& file) {
  return onFile([&] {
    const std::unique_ptr<OrbDocument> chart = readChart(file);
    printTree(*chart->getImplementation()->getDocumentElement());
    return nothingToReport;
  });
}
