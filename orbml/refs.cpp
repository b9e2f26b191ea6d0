// orbml refs: who refers to whom.
#include "commands.h"
#include "files.h"
#include "text.h"

#include <chartlanguage.h>
#include <chartreferences.h>

#include <iostream>
#include <vector>

namespace {

using Bearer = ChartReferences::Bearer;
using Referrer = ChartReferences::Referrer;

ChartReferences referencesOf(const std::string& file) {
  if (isStandardInput(file))
    return ChartReferences::ofText(contentOf(file), nameOf(file));
  return readInPieces(file, [&] { return ChartReferences::ofFile(file); });
}

/// A place in the document, so that names of one width stand under each other.
std::string lineOf(std::size_t line) {
  constexpr std::size_t width = 6;
  const std::string number = std::to_string(line);
  return std::string(number.size() < width ? width - number.size() : 0, ' ') + number + ": ";
}

std::string nameOfReferrer(const Referrer& referrer) {
  return printable(referrer.element()) + (referrer.elementId().empty() ? "" : " #" + printable(referrer.elementId())) +
         ", " + printable(referrer.attribute());
}

void print(const Bearer& bearer) {
  std::cout << lineOf(bearer.line()) << coloured("#" + printable(bearer.id()), Colour::bold) << ", "
            << printable(bearer.element()) << (bearer.size() == 0 ? ": nothing refers to it" : "") << "\n";
  for (std::size_t i = 0; i < bearer.size(); ++i)
    std::cout << "  " << lineOf(bearer[i].line()) << nameOfReferrer(bearer[i]) << "\n";
}

void printDangling(const Referrer& referrer) {
  std::cout << lineOf(referrer.line()) << nameOfReferrer(referrer) << ": nothing has the id \""
            << printable(referrer.id()) << "\"\n";
}

ExitCode printAll(const ChartReferences& references) {
  for (std::size_t i = 0; i < references.size(); ++i)
    print(references[i]);
  for (std::size_t i = 0; i < references.dangling(); ++i)
    printDangling(references.danglingAt(i));
  return references.dangling() == 0 ? nothingToReport : somethingFound;
}

/// The position of an id; the number of ids for one that nothing has.
std::size_t indexOf(const std::string& id, const ChartReferences& references) {
  std::size_t index = 0;
  while (index < references.size() && references[index].id() != id)
    ++index;
  return index;
}

/// What can be said of an id that nothing has: who refers to it all the same, or else which one was meant.
ExitCode printUnborne(const std::string& id, const ChartReferences& references, const std::string& file) {
  bool isReferredTo = false;
  for (std::size_t i = 0; i < references.dangling(); ++i) {
    if (references.danglingAt(i).id() != id)
      continue;
    printDangling(references.danglingAt(i));
    isReferredTo = true;
  }
  if (isReferredTo)
    return somethingFound;
  std::vector<std::string> ids;
  for (std::size_t i = 0; i < references.size(); ++i)
    ids.push_back(references[i].id());
  complain(printable(nameOf(file)) + ": nothing has the id \"" + printable(id) + "\"" +
           meant(ChartLanguage::nearest(id, ids)));
  return somethingFound;
}

std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char letter : printable(text)) {
    if (letter == '"' || letter == '\\')
      result += '\\';
    result += letter;
  }
  return result + "\"";
}

/// The node of an element that refers: by its id, or else by its place.
std::string nodeOf(const Referrer& referrer) {
  if (!referrer.elementId().empty())
    return quoted("#" + referrer.elementId());
  return quoted(referrer.element() + ", " + std::to_string(referrer.line()) + ":" + std::to_string(referrer.column()));
}

void printEdge(const Referrer& referrer) {
  std::cout << "  " << nodeOf(referrer) << " -> " << quoted("#" + referrer.id())
            << " [label=" << quoted(referrer.attribute()) << "];\n";
}

bool isWanted(const std::string& id, const ReferencesOptions& options) {
  return options.id.empty() || id == options.id;
}

/// The graph of all references, or of those to one id.
void printGraph(const ChartReferences& references, const ReferencesOptions& options) {
  std::cout << "digraph references {\n  rankdir=LR;\n  node [shape=box];\n";
  for (std::size_t i = 0; i < references.size(); ++i) {
    const Bearer bearer = references[i];
    if (!isWanted(bearer.id(), options))
      continue;
    std::cout << "  " << quoted("#" + bearer.id()) << " [label=" << quoted(bearer.element() + " #" + bearer.id())
              << "];\n";
    for (std::size_t j = 0; j < bearer.size(); ++j)
      printEdge(bearer[j]);
  }
  for (std::size_t i = 0; i < references.dangling(); ++i) {
    if (isWanted(references.danglingAt(i).id(), options))
      printEdge(references.danglingAt(i));
  }
  std::cout << "}\n";
}

} // namespace

ExitCode showReferences(const ReferencesOptions& options) {
  return onFile([&] {
    const ChartReferences references = referencesOf(options.file);
    const std::size_t index = options.id.empty() ? 0 : indexOf(options.id, references);
    if (!options.id.empty() && index == references.size())
      return printUnborne(options.id, references, options.file);
    if (options.asGraph) {
      printGraph(references, options);
      return references.dangling() == 0 ? nothingToReport : somethingFound;
    }
    if (options.id.empty())
      return printAll(references);
    print(references[index]);
    return nothingToReport;
  });
}
