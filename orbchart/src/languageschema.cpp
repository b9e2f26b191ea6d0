// The language as an XML schema: a type for each class of wrapper, with its attributes and children, and a type for
// each table of keywords. An element of one name may hold different things under different parents, so that elements
// are declared where they stand.
//
// Children may come in any order and number, as a load takes them. Where a load looks at no child, or passes over those
// that it does not know, a parser that validates lets them pass as well.
#include "languageschema.h"

#include "chartstring.h"
#include "orbuni.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string_view>

namespace orbchart {
namespace {

/// The name pool has the URI of the language behind this, as one text.
constexpr std::string_view declarationPrefix = "xmlns:";

constexpr std::string_view numberTypes = R"(
  <xs:simpleType name="boolean">
    <xs:restriction base="xs:string">
      <xs:enumeration value="true"/>
      <xs:enumeration value="false"/>
    </xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="integer">
    <xs:restriction base="xs:int">
      <xs:pattern value="-?[0-9]+"/>
    </xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="unsignedInteger">
    <xs:restriction base="xs:unsignedInt">
      <xs:pattern value="[0-9]+"/>
    </xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="number">
    <xs:restriction base="xs:double">
      <xs:pattern value="[+\-]?([0-9]+(\.[0-9]*)?|\.[0-9]+)([Ee][+\-]?[0-9]+)?"/>
    </xs:restriction>
  </xs:simpleType>
)";

std::string utf8(TextView text) { return ChartString(std::basic_string<XMLCh>(text).c_str()).toUTF8(); }

/// The class that has an attribute of its own, among an element's and its bases.
const ElementDescription& ownerOf(const ElementDescription& element, const AttributeDescription& attribute) {
  const ElementDescription* owner = &element;
  const auto isIt = [&](const AttributeDescription& own) { return &own == &attribute; };
  while (std::none_of(owner->attributes.begin(), owner->attributes.end(), isIt))
    owner = &owner->base();
  return *owner;
}

/// Writes the schema of a language. No name or word of it needs escaping.
class SchemaWriter {
public:
  explicit SchemaWriter(const Language& language) : language_(language) {}

  std::string write() {
    begin();
    for (const LanguageElement& element : language_.elements())
      nameKeywordTypes(element);
    for (const auto& [name, attribute] : keywordTypes_)
      writeKeywords(name, *attribute);
    for (const LanguageElement& element : language_.elements())
      writeElement(element);
    text_ += "</xs:schema>\n";
    return std::move(text_);
  }

private:
  void begin();
  void nameKeywordTypes(const LanguageElement& element);
  void writeKeywords(const std::string& name, const AttributeDescription& attribute);
  void writeElement(const LanguageElement& element);
  void writeChildren(const LanguageElement& element);
  void declare(std::string_view beginning, std::string_view name, std::string_view type);
  std::string typeOf(const AttributeDescription& attribute) const;

  const Language& language_;
  std::string text_;
  /// The types of keyword tables, by their names and by the attributes that have them.
  std::map<std::string, const AttributeDescription*> keywordTypes_;
  std::map<const AttributeDescription*, std::string> keywordTypeNames_;
};

/// The elements that may stand where unknown ones are passed over: those are checked as the others are, wherever they
/// stand. They need a declaration that all places share.
std::map<std::string, std::string> sharedElements(const Language& language) {
  std::map<std::string, std::string> shared = {
      {utf8(language.root().name), std::string(language.root().described->className)}};
  for (const LanguageElement& element : language.elements()) {
    if (!element.passesOverUnknownChildren)
      continue;
    for (const LanguageChild& child : element.children)
      shared.emplace(utf8(child.element->name), child.element->described->className);
  }
  return shared;
}

void SchemaWriter::begin() {
  const std::string uri = utf8NamespaceURI();
  text_ = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- The chart language orbml 2.9, as liborbchart holds it. Written by the library. -->
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema" xmlns=")" +
          uri + R"(" targetNamespace=")" + uri + R"(" elementFormDefault="qualified">
)";
  for (const auto& [name, type] : sharedElements(language_))
    declare("  <xs:element", name, type);
  text_ += numberTypes;
}

/// A table that a base class has is one type for all of its classes, named for that base and the attribute.
void SchemaWriter::nameKeywordTypes(const LanguageElement& element) {
  for (const LanguageAttribute& attribute : element.attributes) {
    const AttributeDescription* described = attribute.described;
    if (described->keywords.empty() || keywordTypeNames_.count(described) != 0)
      continue;
    const std::string name =
        std::string(ownerOf(*element.described, *described).className) + "." + utf8(attribute.name);
    keywordTypeNames_.emplace(described, name);
    keywordTypes_.emplace(name, described);
  }
}

void SchemaWriter::writeKeywords(const std::string& name, const AttributeDescription& attribute) {
  const bool isOpen = attribute.kind == AttributeKind::text;
  text_ += "  <xs:simpleType name=\"" + name + "\">\n";
  if (isOpen)
    text_ += "    <xs:union memberTypes=\"xs:string\">\n    <xs:simpleType>\n";
  text_ += "    <xs:restriction base=\"xs:string\">\n";
  for (const KeywordDescription& keyword : attribute.keywords)
    text_ += "      <xs:enumeration value=\"" + utf8(keyword.text) + "\"/>\n";
  text_ += "    </xs:restriction>\n";
  if (isOpen)
    text_ += "    </xs:simpleType>\n    </xs:union>\n";
  text_ += "  </xs:simpleType>\n";
}

void SchemaWriter::writeElement(const LanguageElement& element) {
  text_ += "  <xs:complexType name=\"" + std::string(element.described->className) + "\"" +
           (element.bearsText || element.isFree ? " mixed=\"true\"" : "") + ">\n";
  writeChildren(element);
  for (const LanguageAttribute& attribute : element.attributes)
    declare("    <xs:attribute", utf8(attribute.name), typeOf(*attribute.described));
  if (element.isFree)
    text_ += "    <xs:anyAttribute processContents=\"skip\"/>\n";
  text_ += "  </xs:complexType>\n";
}

void SchemaWriter::writeChildren(const LanguageElement& element) {
  text_ += "    <xs:choice minOccurs=\"0\" maxOccurs=\"unbounded\">\n";
  if (element.children.empty())
    text_ += "      <xs:any processContents=\"skip\"/>\n";
  else if (element.passesOverUnknownChildren)
    text_ += "      <xs:any processContents=\"lax\"/>\n";
  else
    for (const LanguageChild& child : element.children)
      declare("      <xs:element", utf8(child.element->name), child.element->described->className);
  text_ += "    </xs:choice>\n";
}

/// An element or an attribute, with its type.
void SchemaWriter::declare(std::string_view beginning, std::string_view name, std::string_view type) {
  text_.append(beginning).append(" name=\"").append(name).append("\" type=\"").append(type).append("\"/>\n");
}

std::string SchemaWriter::typeOf(const AttributeDescription& attribute) const {
  if (!attribute.keywords.empty())
    return keywordTypeNames_.at(&attribute);
  switch (attribute.kind) {
  case AttributeKind::id:
    return "xs:ID";
  case AttributeKind::boolean:
  case AttributeKind::trueUnlessFalse:
    return "boolean";
  case AttributeKind::integer:
    return "integer";
  case AttributeKind::unsignedInteger:
    return "unsignedInteger";
  case AttributeKind::number:
    return "number";
  case AttributeKind::reference:
  case AttributeKind::anyReference:
    return "xs:IDREF";
  default:
    return "xs:string";
  }
}

} // namespace

std::string utf8NamespaceURI() { return ChartString(OrbUni::_namespaceURI).toUTF8().substr(declarationPrefix.size()); }

std::string writeSchema(const Language& language) { return SchemaWriter(language).write(); }

} // namespace orbchart
