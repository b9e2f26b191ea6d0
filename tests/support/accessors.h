// How the accessors of a class are held to their names: `setX` writes the attribute whose name, in capitals, is X, and
// `getX`, `isXPresent` and `removeX` belong to the same. What differs is listed in accessordifferences.h.
#pragma once

#include "accessordifferences.h"
#include "chartstring.h"
#include "dom.h"
#include "orbbaseelement.h"
#include "orbexception.h"

#include <gtest/gtest.h>

#include <cctype>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace test {

/// The X of the accessors of a name: its first letter raised, every "-" an underscore.
inline std::string inCapitals(std::string name) {
  name[0] = static_cast<char>(std::toupper(name[0]));
  for (char& character : name)
    character = character == '-' ? '_' : character;
  return name;
}

/// The accessors that a class declares, tried on a wrapper that is of the class or derives from it.
template <class Wrapper, class Declaring> class Accessors {
public:
  using Set = void (*)(Accessors&, Declaring&);

  Accessors(const char* className, std::set<std::string> attributes) :
      className_(className), attributes_(std::move(attributes)) {
    if constexpr (requires { Wrapper::elementName; })
      expectRegistration(Place(*this).wrapper.get());
  }

  /// A setter writes one attribute, that of its name. For a boolean both values are tried, since an absent one may read
  /// as either.
  void sets(const std::string& x, Set set) { sets(x, set, set); }
  void sets(const std::string& x, Set set, Set unset) {
    if (isOdd(oddSetters, x))
      return;
    for (const Set& write : {set, unset}) {
      const Place place(*this);
      setting_ = x;
      write(*this, *place.wrapper);
      const std::map<std::string, std::string> written = place.attributes();
      ASSERT_EQ(written.size(), 1U) << where(x);
      EXPECT_EQ(xOf(x), inCapitals(written.begin()->first)) << where(x);
      values_[x].insert(written.begin()->second);
      names_[x] = written.begin()->first;
    }
  }

  /// A getter reads one attribute: its result changes with that one alone.
  template <class Result> void gets(const std::string& x, Result (*get)(const Declaring&)) {
    if (isOdd(oddGetters, x))
      return;
    bool changes = false;
    for (const std::string& value : valuesOf(x)) {
      const auto read = [&](bool own, bool others) {
        const Place place(*this);
        place.put(x, own, others, value);
        for (const auto& makeTarget : targets_[x])
          makeTarget();
        return resultOf(get, *place.wrapper);
      };
      const auto absent = read(false, false);
      changes = changes || read(true, false) != absent;
      EXPECT_EQ(read(false, true), absent) << where(x) << " " << value;
    }
    EXPECT_TRUE(changes) << where(x) << ": the getter reads another attribute";
    if constexpr (std::is_same_v<Result, bool>) {
      EXPECT_EQ(get(*Place(*this).wrapper), trueWhenAbsent.count(key(x)) != 0) << where(x);
    }
  }

  void isPresent(const std::string& x, bool (*isPresent)(const Declaring&)) {
    for (bool own : {true, false}) {
      const Place place(*this);
      place.put(x, own, !own, "1");
      EXPECT_EQ(isPresent(*place.wrapper), own) << where(x);
    }
  }

  void removes(const std::string& x, void (*remove)(Declaring&)) {
    const Place place(*this);
    place.put(x, true, true, "1");
    remove(*place.wrapper);
    const std::map<std::string, std::string> left = place.attributes();
    const Place expected(*this);
    expected.put(x, false, true, "1");
    EXPECT_EQ(left, expected.attributes()) << where(x);
  }

  /// An add makes an element of its name, the getter gives its wrapper, and the remove takes it away, in some families
  /// with its id.
  template <class Child, class Result>
  void family(const std::string& x, Child* (*add)(Accessors&, Declaring&), Result (*get)(const Declaring&),
              unsigned int (*remove)(Declaring&)) {
    const Place place(*this);
    const Child* child = add(*this, *place.wrapper);
    ASSERT_NE(child, nullptr) << where(x);
    expectRegistration(child);
    auto* element = child->getImplementation();
    EXPECT_EQ(element->getParentNode(), place.wrapper->getImplementation()) << where(x);
    EXPECT_EQ(inCapitals(utf8(element->getTagName())), xOf(x)) << where(x);
    EXPECT_TRUE(holds(get(*place.wrapper), child)) << where(x);
    if (isOdd(oddRemoves, x))
      return;
    element->setAttribute(u"id", u"child");
    EXPECT_EQ(remove(*place.wrapper), 1U) << where(x);
    EXPECT_EQ(element->getParentNode(), nullptr) << where(x);
    EXPECT_EQ(element->hasAttribute(u"id"), !isForgotten(x)) << where(x);
    EXPECT_FALSE(holds(get(*place.wrapper), child)) << where(x);
  }

  /// A wrapper with an id, in the document of the wrapper that stands.
  template <class Target> const Target& target() {
    targets_[setting_].emplace_back([this] { makeTarget<Target>(); });
    return makeTarget<Target>();
  }

private:
  /// References find a wrapper under the name of its element.
  template <class Class> void expectRegistration(const Class* wrapper) const {
    const auto* element = wrapper->getImplementation();
    const std::string name = utf8(element->getTagName());
    if (unregistered.count(name) != 0)
      return;
    const auto found = otherKeys.find(name);
    EXPECT_EQ(element->getUserData(found == otherKeys.end() ? element->getTagName() : found->second.c_str()), wrapper)
        << where(name);
  }

  template <class Target> const Target& makeTarget() {
    auto* element = document_->createElement(elementNameOf<Target>());
    document_->getDocumentElement()->appendChild(element);
    element->setAttribute(u"id", u"target");
    element->setIdAttribute(u"id", true);
    auto wrapper = std::make_shared<Target>(element);
    kept_.push_back(wrapper);
    return *wrapper;
  }

  /// A common base that a host may construct has no element of its own.
  template <class Class> static const XMLCh* elementNameOf() {
    if constexpr (requires { Class::elementName; })
      return Class::elementName;
    else
      return u"frame";
  }

  /// A fresh wrapper over an element of its own document, with a variable, a style and the like that have the id
  /// "target".
  struct Place {
    explicit Place(Accessors& accessors) : document(elementNameOf<Wrapper>()), accessors_(accessors) {
      auto* element = document.document()->createElement(elementNameOf<Wrapper>());
      document.root()->appendChild(element);
      wrapper = std::make_unique<Wrapper>(element);
      accessors_.document_ = document.document();
    }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;
    ~Place() {
      wrapper.reset();
      accessors_.kept_.clear();
    }

    std::map<std::string, std::string> attributes() const {
      std::map<std::string, std::string> result;
      const auto* map = wrapper->getImplementation()->getAttributes();
      for (XMLSize_t i = 0; i < map->getLength(); ++i)
        result[utf8(map->item(i)->getNodeName())] = utf8(map->item(i)->getNodeValue());
      return result;
    }

    /// Puts a value into the attribute of an accessor, and into those of all others.
    void put(const std::string& x, bool own, bool others, const std::string& value) const {
      for (const std::string& attribute : accessors_.attributes_) {
        if (accessors_.nameOf(attribute) == accessors_.nameOf(x) ? own : others)
          write(accessors_.nameOf(attribute), value);
      }
    }

    mutable NewDocument document;
    std::unique_ptr<Wrapper> wrapper;

  private:
    void write(const std::string& name, const std::string& value) const {
      wrapper->getImplementation()->setAttribute(std::u16string(name.begin(), name.end()).c_str(),
                                                 std::u16string(value.begin(), value.end()).c_str());
    }

    Accessors& accessors_;
  };

  std::string where(const std::string& x) const { return className_ + ": " + x; }
  std::string key(const std::string& x) const { return className_ + "::" + x; }
  bool isForgotten(const std::string& x) const {
    const auto found = forgottenFamilies.find(className_);
    return found != forgottenFamilies.end() && found->second.count(x) != 0;
  }
  bool isOdd(const std::set<std::string>& odd, const std::string& x) const { return odd.count(key(x)) != 0; }
  /// The X of the attribute or element that an accessor belongs to.
  std::string xOf(const std::string& x) const {
    const auto found = otherNames.find(key(x));
    return found == otherNames.end() ? x : inCapitals(found->second);
  }

  /// The attribute of an accessor, as its setter wrote it, else as its name says.
  std::string nameOf(const std::string& x) const {
    const auto found = names_.find(x);
    if (found != names_.end())
      return found->second;
    const auto other = otherNames.find(key(x));
    if (other != otherNames.end())
      return other->second;
    std::string name = x;
    name[0] = static_cast<char>(std::tolower(name[0]));
    for (char& character : name)
      character = character == '_' ? '-' : character;
    return name;
  }

  std::set<std::string> valuesOf(const std::string& x) const {
    const auto found = values_.find(x);
    return found == values_.end() ? std::set<std::string>{"7", "true", "false"} : found->second;
  }

  /// What a getter gives, in a form that can be compared after the document has gone.
  template <class Result> static std::string resultOf(Result (*get)(const Declaring&), const Declaring& wrapper) {
    try {
      return readable(get(wrapper));
    } catch (const OrbException&) {
      return "raises";
    }
  }
  static std::string readable(const XMLCh* text) { return utf8(text); }
  template <class Number>
  requires std::is_arithmetic_v<Number> || std::is_enum_v<Number>
  static std::string readable(Number number) { return std::to_string(static_cast<double>(number)); }
  template <class Pointer>
  requires std::is_class_v<Pointer>
  static std::string readable(const Pointer* pointer) { return pointer == nullptr ? "null" : "wrapper"; }

  template <class Child> static bool holds(const Child* first, const OrbBaseElement* child) {
    return static_cast<const OrbBaseElement*>(first) == child;
  }
  template <class Child> static bool holds(const std::vector<Child*>& children, const OrbBaseElement* child) {
    for (const Child* one : children) {
      if (static_cast<const OrbBaseElement*>(one) == child)
        return true;
    }
    return false;
  }

  std::string className_;
  std::set<std::string> attributes_;
  std::map<std::string, std::string> names_;
  std::map<std::string, std::set<std::string>> values_;
  /// Makes what the references of an accessor lead to.
  std::map<std::string, std::vector<std::function<void()>>> targets_;
  std::string setting_;
  xercesc::DOMDocument* document_ = nullptr;
  std::vector<std::shared_ptr<OrbBaseElement>> kept_;
};

} // namespace test
