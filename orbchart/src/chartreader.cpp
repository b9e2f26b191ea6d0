// From a file or a text to a chart.
#include "chartreader.h"

#include "domparser.h"
#include "language.h"
#include "loading.h"
#include "messagetext.h"
#include "orbdocument.h"
#include "orbexception.h"

#include <string>
#include <vector>

using namespace orbchart;
using xercesc::RefVectorOf;
using xercesc::XMLAttr;
using xercesc::XMLElementDecl;

namespace {

/// Builds the DOM of a chart and ends at the first element that a load would refuse, while its place is known.
class ChartParser : public DomParser {
private:
  void startElement(const XMLElementDecl& declaration, unsigned int uri, const XMLCh* prefix,
                    const RefVectorOf<XMLAttr>& attributes, XMLSize_t count, bool isEmpty, bool isRoot) override {
    open_.push_back(open_.empty() ? &Language::get().root() : childOf(open_.back(), declaration.getFullName()));
    if (open_.size() > maximumNesting + 1)
      refuseDepth();
    DomParser::startElement(declaration, uri, prefix, attributes, count, isEmpty, isRoot);
  }
  void endElement(const XMLElementDecl& declaration, unsigned int uri, bool isRoot, const XMLCh* prefix) override {
    open_.pop_back();
    DomParser::endElement(declaration, uri, isRoot, prefix);
  }
  void docCharacters(const XMLCh* text, XMLSize_t length, bool isCData) override {
    passContent();
    DomParser::docCharacters(text, length, isCData);
  }
  void docComment(const XMLCh* text) override {
    passContent();
    DomParser::docComment(text);
  }
  void docPI(const XMLCh* target, const XMLCh* data) override {
    passContent();
    DomParser::docPI(target, data);
  }

  /// What the language has under an element; null for what a load does not look at.
  const LanguageElement* childOf(const LanguageElement* parent, TextView name) const {
    if (parent == nullptr || parent->isFree)
      return nullptr;
    const LanguageChild* child = parent->child(name);
    if (child != nullptr && child->isLoaded)
      return child->element;
    if (!parent->passesOverUnknownChildren)
      refuseElement(*parent, name);
    return nullptr;
  }

  [[noreturn]] void refuseElement(const LanguageElement& parent, TextView name) const {
    throw Fault{begin(), unknownElement(name, fCurrentParent->getNodeName(), parent)}; // the root may have any name
  }
  [[noreturn]] void refuseDepth() const { throw Fault{begin(), nestedTooDeep()}; }

  /// A load counts the content of an element as one more level, save where it looks at none.
  void passContent() const {
    if (open_.size() > maximumNesting && (open_.back() == nullptr || !open_.back()->children.empty()))
      refuseDepth();
  }

  /// The elements from the root on; null for those at which a load does not look.
  std::vector<const LanguageElement*> open_;
};

OwnedDocument built(const ChartInput& input) {
  try {
    return ChartParser().parse(input);
  } catch (const Fault& fault) {
    raiseFault(input.name(), fault);
  }
}

} // namespace

std::unique_ptr<OrbDocument> ChartReader::read(const ChartInput& input) {
  OwnedDocument document = built(input);
  try {
    std::unique_ptr<OrbDocument> chart(new OrbDocument(document.get(), OrbDocument::Ownership::own));
    static_cast<void>(document.release());
    return chart;
  } catch (const OrbException& exception) {
    raiseFault(input.name(), {{}, exception.what()});
  }
}

std::unique_ptr<OrbDocument> ChartReader::readFile(const std::string& path) {
  const PlatformHold platform;
  return read(FileInput(path));
}

std::unique_ptr<OrbDocument> ChartReader::readText(const std::string& xml, const std::string& name) {
  const PlatformHold platform;
  return read(TextInput(xml, name));
}
