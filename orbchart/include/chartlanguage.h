// What the library knows of the chart language: its elements, their attributes, words, children and text.
#pragma once

#include "orbchartexport.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orbchart {
struct LanguageElement;
struct LanguageAttribute;
struct LanguageChild;
struct KeywordDescription;
} // namespace orbchart

/// The chart language, from its root element down, as the wrappers have it: what their accessors read and write, what
/// their adds allow and what a load takes. It can be asked at any time, also before any document stands and without the
/// XML platform; nothing changes it, so that threads may share it.
///
/// Elements, attributes, keywords and children are small handles, to be copied at will. They stay good for as long as
/// the library is loaded.
/// \ingroup tools
class ORBCHART_EXPORT ChartLanguage {
public:
  class Attribute;
  class Child;
  class Element;
  class Keyword;

  /// What kind of text an attribute holds.
  enum Kind : int {
    kind_id,              ///< the name by which references find the element
    kind_text,            ///< any text; an attribute may know keywords all the same
    kind_boolean,         ///< `true` or `false`
    kind_integer,         ///< a whole number that an int holds
    kind_unsignedInteger, ///< a whole number that an unsigned int holds
    kind_number,          ///< a number, with or without decimals and exponent
    kind_keyword,         ///< one of the keywords of the attribute
    kind_reference,       ///< the id of one of the elements that the attribute may lead to
    kind_anyReference,    ///< the id of any element
  };

  /// The kind in words, such as "boolean" or "reference".
  static std::string nameOf(Kind kind);

  /// The version of the language: "2.9".
  static std::string version();
  /// The namespace that the documents of this build declare.
  static std::string namespaceURI();

  /// The element `visualization`.
  static Element root();
  /// Every element that is reached from the root, each once: the root first, and children in the order of their first
  /// parent. Elements of one name that differ in what they hold stand there each for itself.
  static std::vector<Element> elements();
  /// The elements of one name; none for a name that the language does not have.
  static std::vector<Element> elementsNamed(const std::string& name);

  /// The schema (XML Schema 1.0) of the language, as text in UTF-8. Ids are `xs:ID` and references `xs:IDREF`, so that
  /// a parser that validates registers the ids; children may come in any order and number, as a load takes them.
  static std::string schema();

  /// The word among some that a misspelt one was most likely meant to be: one that differs by case, by two letters
  /// exchanged, or by few letters for its length. Empty when none is near.
  static std::string nearest(const std::string& misspelt, const std::vector<std::string>& words);
};

/// A word of an attribute, with the number of its enumerator.
/// \ingroup tools
class ORBCHART_EXPORT ChartLanguage::Keyword {
public:
  explicit Keyword(const orbchart::KeywordDescription* described);

  std::string text() const;
  int number() const;

private:
  const orbchart::KeywordDescription* described_;
};

/// An attribute of an element.
/// \ingroup tools
class ORBCHART_EXPORT ChartLanguage::Attribute {
public:
  explicit Attribute(const orbchart::LanguageAttribute* described);

  std::string name() const;
  Kind kind() const;

  /// The words of the enumeration, in its order; none for an attribute of another kind, save a text that knows some.
  std::vector<Keyword> keywords() const;
  /// What the getter gives for an absent attribute, as text: "true" or "false", "0", or a keyword. Empty where absence
  /// reads as nothing: an empty text, no target, or an enumerator that has no keyword.
  std::string fallback() const;
  /// The number that the getter of an enumeration gives for an absent attribute; 0 for other kinds.
  int fallbackNumber() const;

  /// The elements to which a reference may lead: those that the getter finds, and those that the setter takes beside.
  /// None for other kinds, and none for a reference to any element.
  std::vector<Element> targets() const;
  /// Those of them that the getter finds, in the order in which it tries them. The others read as null.
  std::vector<Element> foundTargets() const;

private:
  const orbchart::LanguageAttribute* described_;
};

/// An element that may stand under another one.
/// \ingroup tools
class ORBCHART_EXPORT ChartLanguage::Child {
public:
  explicit Child(const orbchart::LanguageChild* described);

  Element element() const;
  /// The most of them that the add operation allows under one parent; 0 for no limit.
  std::size_t most() const;
  /// The elements, this one included, of which one alone may stand there. None where there is no such choice.
  std::vector<Element> alternatives() const;
  /// Whether a load takes the child. A few adds make children that a load of the printed document refuses.
  bool isLoaded() const;

private:
  const orbchart::LanguageChild* described_;
};

/// An element of the language.
/// \ingroup tools
class ORBCHART_EXPORT ChartLanguage::Element {
public:
  explicit Element(const orbchart::LanguageElement* described);

  std::string name() const;
  /// The class of its wrapper, and the header that declares it.
  std::string className() const;
  std::string headerName() const;

  /// Its attributes, those that it has in common with others first.
  std::vector<Attribute> attributes() const;
  /// Its children, in the order of the language.
  std::vector<Child> children() const;
  /// The elements under which it may stand; none for the root.
  std::vector<Element> parents() const;

  /// Whether it holds a text.
  bool bearsText() const;
  /// Whether it takes attributes and children of any name.
  bool isFree() const;
  /// Whether a load passes over children that it does not know. An element that knows no children looks at none, and so
  /// passes over all.
  bool passesOverUnknownChildren() const;

  friend bool operator==(const Element& one, const Element& other) { return one.described_ == other.described_; }
  friend bool operator!=(const Element& one, const Element& other) { return !(one == other); }

private:
  const orbchart::LanguageElement* described_;
};
