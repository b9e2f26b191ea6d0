// What hosts may ask of the language.
#include "chartlanguage.h"

#include "chartstring.h"
#include "language.h"
#include "languageschema.h"
#include "nearword.h"
#include "orbuni.h"

#include <algorithm>
#include <cctype>
#include <string_view>

using namespace orbchart;

namespace {

constexpr std::string_view kindNames[] = {
    "id",
    "text",
    "boolean",
    "integer",
    "unsigned integer",
    "number",
    "keyword",
    "reference",
    "reference to any element",
};

ChartLanguage::Kind kindOf(AttributeKind kind) {
  switch (kind) {
  case AttributeKind::id:
    return ChartLanguage::kind_id;
  case AttributeKind::text:
    return ChartLanguage::kind_text;
  case AttributeKind::boolean:
  case AttributeKind::trueUnlessFalse:
    return ChartLanguage::kind_boolean;
  case AttributeKind::integer:
    return ChartLanguage::kind_integer;
  case AttributeKind::unsignedInteger:
    return ChartLanguage::kind_unsignedInteger;
  case AttributeKind::number:
    return ChartLanguage::kind_number;
  case AttributeKind::keyword:
    return ChartLanguage::kind_keyword;
  case AttributeKind::reference:
    return ChartLanguage::kind_reference;
  case AttributeKind::anyReference:
    return ChartLanguage::kind_anyReference;
  }
  return ChartLanguage::kind_text;
}

/// The word that an absent enumeration reads as; empty where its number has none.
std::string fallbackWord(const AttributeDescription& attribute) {
  for (const KeywordDescription& keyword : attribute.keywords) {
    if (attribute.fallbackIsKeyword && keyword.number == attribute.fallback)
      return ChartString(keyword.text).toUTF8();
  }
  return {};
}

/// Handles to some things of the language.
template <class Handle, class Things> std::vector<Handle> handlesOf(const Things& things) {
  std::vector<Handle> handles;
  handles.reserve(things.size());
  for (const auto& thing : things)
    handles.emplace_back(&thing);
  return handles;
}
std::vector<ChartLanguage::Element> handlesTo(std::span<const LanguageElement* const> elements) {
  std::vector<ChartLanguage::Element> handles;
  handles.reserve(elements.size());
  for (const LanguageElement* element : elements)
    handles.emplace_back(element);
  return handles;
}

} // namespace

std::string ChartLanguage::nameOf(Kind kind) {
  const auto index = static_cast<std::size_t>(kind);
  return index < std::size(kindNames) ? std::string(kindNames[index]) : std::string();
}

std::string ChartLanguage::version() { return "2.9"; }
std::string ChartLanguage::namespaceURI() { return utf8NamespaceURI(); }

ChartLanguage::Element ChartLanguage::root() { return Element(&Language::get().root()); }
std::vector<ChartLanguage::Element> ChartLanguage::elements() { return handlesOf<Element>(Language::get().elements()); }
std::vector<ChartLanguage::Element> ChartLanguage::elementsNamed(const std::string& name) {
  std::vector<Element> named = elements();
  named.erase(std::remove_if(named.begin(), named.end(), [&](const Element& one) { return one.name() != name; }),
              named.end());
  return named;
}

std::string ChartLanguage::schema() { return writeSchema(Language::get()); }

std::string ChartLanguage::nearest(const std::string& misspelt, const std::vector<std::string>& words) {
  return nearestWord(misspelt, words);
}

ChartLanguage::Keyword::Keyword(const KeywordDescription* described) : described_(described) {}

std::string ChartLanguage::Keyword::text() const { return ChartString(described_->text).toUTF8(); }
int ChartLanguage::Keyword::number() const { return described_->number; }

ChartLanguage::Attribute::Attribute(const LanguageAttribute* described) : described_(described) {}

std::string ChartLanguage::Attribute::name() const { return ChartString(described_->described->name).toUTF8(); }
ChartLanguage::Kind ChartLanguage::Attribute::kind() const { return kindOf(described_->described->kind); }
std::vector<ChartLanguage::Keyword> ChartLanguage::Attribute::keywords() const {
  return handlesOf<Keyword>(described_->described->keywords);
}
std::string ChartLanguage::Attribute::fallback() const {
  switch (described_->described->kind) {
  case AttributeKind::boolean:
    return "false";
  case AttributeKind::trueUnlessFalse:
    return "true";
  case AttributeKind::integer:
  case AttributeKind::unsignedInteger:
  case AttributeKind::number:
    return "0";
  default:
    return fallbackWord(*described_->described);
  }
}
int ChartLanguage::Attribute::fallbackNumber() const { return described_->described->fallback; }
std::vector<ChartLanguage::Element> ChartLanguage::Attribute::targets() const { return handlesTo(described_->targets); }
std::vector<ChartLanguage::Element> ChartLanguage::Attribute::foundTargets() const {
  return handlesTo(std::span(described_->targets).first(described_->foundTargets));
}

ChartLanguage::Child::Child(const LanguageChild* described) : described_(described) {}

ChartLanguage::Element ChartLanguage::Child::element() const { return Element(described_->element); }
std::size_t ChartLanguage::Child::most() const { return described_->described->most; }
std::vector<ChartLanguage::Element> ChartLanguage::Child::alternatives() const {
  return handlesTo(described_->alternatives);
}
bool ChartLanguage::Child::isLoaded() const { return described_->isLoaded; }

ChartLanguage::Element::Element(const LanguageElement* described) : described_(described) {}

std::string ChartLanguage::Element::name() const { return ChartString(described_->described->name).toUTF8(); }
std::string ChartLanguage::Element::className() const { return std::string(described_->described->className); }
std::string ChartLanguage::Element::headerName() const {
  std::string header = className();
  std::transform(header.begin(), header.end(), header.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return header + ".h";
}
std::vector<ChartLanguage::Attribute> ChartLanguage::Element::attributes() const {
  return handlesOf<Attribute>(described_->attributes);
}
std::vector<ChartLanguage::Child> ChartLanguage::Element::children() const {
  return handlesOf<Child>(described_->children);
}
std::vector<ChartLanguage::Element> ChartLanguage::Element::parents() const { return handlesTo(described_->parents); }
bool ChartLanguage::Element::bearsText() const { return described_->bearsText; }
bool ChartLanguage::Element::isFree() const { return described_->isFree; }
bool ChartLanguage::Element::passesOverUnknownChildren() const { return described_->passesOverUnknownChildren; }
