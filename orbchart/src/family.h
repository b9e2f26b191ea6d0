// The child families of a wrapper: what a class's private record is made of.
#pragma once

#include "loading.h"
#include "orbbaseelement.h"

#include <xercesc/dom/DOMElement.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace orbchart {

/// A list of child classes: the families of a class, a band of them, the followers of an add.
template <class... Children> struct FamilyList {};

template <class... Lists> struct JoinLists;
template <class... Children> struct JoinLists<FamilyList<Children...>> { using Type = FamilyList<Children...>; };
template <class... First, class... Second, class... Rest>
struct JoinLists<FamilyList<First...>, FamilyList<Second...>, Rest...> {
  using Type = typename JoinLists<FamilyList<First..., Second...>, Rest...>::Type;
};
/// Several lists as one.
template <class... Lists> using Joined = typename JoinLists<Lists...>::Type;

/// The followers of a child that goes last.
inline constexpr FamilyList<> atEnd;

/// Whether a removed child's id is taken off its element, so that the document forgets it.
enum class Ids { stay, strip };

/// The limit of a single child: raises the text of OrbBaseElement::throwIfChildExists when there is one already. The
/// words are the English names of the two classes.
struct OnlyOne {
  constexpr OnlyOne(const char* childName, const char* parentName, const char* callerFile = __builtin_FILE(),
                    unsigned int callerLine = __builtin_LINE()) :
      child(childName), parent(parentName), file(callerFile), line(callerLine) {}
  void check(const OrbBaseElement& wrapper, std::size_t count) const;

  const char* child;
  const char* parent;
  const char* file;
  unsigned int line;
};

/// Any other limit, with the message that it raises.
struct AtMost {
  constexpr AtMost(std::size_t limitCount, const char* text, const char* callerFile = __builtin_FILE(),
                   unsigned int callerLine = __builtin_LINE()) :
      limit(limitCount), message(text), file(callerFile), line(callerLine) {}
  void check(const OrbBaseElement& wrapper, std::size_t count) const;

  std::size_t limit;
  const char* message;
  const char* file;
  unsigned int line;
};

template <class Type>
concept ChildLimit = requires(const Type limit, const OrbBaseElement& wrapper) {
  limit.check(wrapper, std::size_t{});
};

/// What becomes of the registrations of wrappers that end. A removal takes them away, so that no reference leads to a
/// wrapper that has gone. A destructor leaves them: the DOM may have gone before it.
enum class Registrations { stay, go };

/// Ends a wrapper and all that it owns. What it owns is ended after it and not inside it, so that deep documents need
/// no deep stack.
void discard(OrbBaseElement* wrapper, Registrations registrations);

/// Takes the element of a child out of its parent.
void takeOut(const OrbBaseElement& parent, const OrbBaseElement& child, Ids ids);

/// A new child element in its place. Unless it is kept, it leaves the document again: an add that fails half way
/// leaves nothing behind.
class NewChild {
public:
  NewChild(const OrbBaseElement& parent, const XMLCh* name, std::span<xercesc::DOMNode* const> followers);
  NewChild(const NewChild&) = delete;
  NewChild& operator=(const NewChild&) = delete;
  ~NewChild();

  xercesc::DOMElement* element() const { return element_; }
  void keep() { parent_ = nullptr; }

private:
  xercesc::DOMElement* parent_;
  xercesc::DOMElement* element_;
};

/// The wrappers of one child family, in document order when loaded, then in order of addition. It owns them.
///
/// A family is one pointer wide and takes memory of its own only from the second wrapper on: a class may have dozens
/// of families, of which a document uses a few.
template <class Child> class Family {
public:
  Family() = default;
  Family(const Family&) = delete;
  Family& operator=(const Family&) = delete;
  ~Family() { clear(Registrations::stay); }

  std::span<Child* const> wrappers() const {
    if (isVector())
      return *vector();
    return {&only_, only_ == nullptr ? std::size_t{0} : std::size_t{1}};
  }

  /// The family as a vector that stays the family's own.
  const std::vector<Child*>& live() {
    if (!isVector()) {
      auto several = std::make_unique<std::vector<Child*>>();
      several->reserve(4); // most have few
      if (only_ != nullptr)
        several->push_back(only_);
      setVector(several.release());
    }
    return *vector();
  }

  /// Takes a wrapper over.
  void append(Child* wrapper) {
    if (only_ == nullptr) {
      only_ = wrapper;
      return;
    }
    std::unique_ptr<Child> kept(wrapper);
    live();
    vector()->push_back(wrapper);
    static_cast<void>(kept.release());
  }

  void remove(std::size_t index) {
    OrbBaseElement* wrapper = wrappers()[index];
    if (isVector())
      vector()->erase(vector()->begin() + static_cast<std::ptrdiff_t>(index));
    else
      only_ = nullptr;
    discard(wrapper, Registrations::go);
  }

  void clear(Registrations registrations) {
    for (Child* wrapper : wrappers())
      discard(wrapper, registrations);
    if (isVector())
      delete vector();
    only_ = nullptr;
  }

private:
  static constexpr std::uintptr_t vectorMark = 1;

  std::uintptr_t bits() const { return reinterpret_cast<std::uintptr_t>(only_); }
  bool isVector() const { return (bits() & vectorMark) != 0; }
  std::vector<Child*>* vector() const { return reinterpret_cast<std::vector<Child*>*>(bits() & ~vectorMark); }
  void setVector(std::vector<Child*>* several) {
    only_ = reinterpret_cast<Child*>(reinterpret_cast<std::uintptr_t>(several) | vectorMark);
  }

  /// Null, the only wrapper, or the address of the vector of several with the lowest bit set.
  Child* only_ = nullptr;
};

/// All child families of a class; its private record derives from this.
template <class List> class ChildFamilies;
template <class... Children> class ChildFamilies<FamilyList<Children...>> : private Family<Children>... {
public:
  /// Wraps the children that the parent's element has.
  void load(const OrbBaseElement& parent, Unknown unknown = Unknown::raises) {
    loadChildren(parent, this, known.data(), known.size(), unknown);
  }
  /// Wraps one node among the parent's children.
  void loadOne(const OrbBaseElement& parent, xercesc::DOMNode* node) {
    loadChild(parent, node, this, known.data(), known.size());
  }

  template <class Child> std::vector<Child*> all() const {
    const std::span<Child* const> wrappers = family<Child>().wrappers();
    return {wrappers.begin(), wrappers.end()};
  }
  template <class Child> const std::vector<Child*>& live() { return family<Child>().live(); }
  template <class Child> std::size_t count() const { return family<Child>().wrappers().size(); }
  /// The wrapper at a position; null past the end.
  template <class Child> Child* at(std::size_t index) const {
    return index < count<Child>() ? family<Child>().wrappers()[index] : nullptr;
  }
  template <class Child> Child* first() const { return at<Child>(0); }

  /// The elements of the first wrapper of each of the families, null for an empty one.
  template <class... Followers>
  std::array<xercesc::DOMNode*, sizeof...(Followers)> firstElements(FamilyList<Followers...>) const {
    return {elementOf(first<Followers>())...};
  }

  /// Adds a child before the first wrapper of each of the followers' families, and hands the arguments to its
  /// constructor.
  template <class Child, class... Followers, class... Arguments>
  Child* add(const OrbBaseElement& parent, FamilyList<Followers...> followers, Arguments&&... arguments) {
    return addBefore<Child>(parent, firstElements(followers), std::forward<Arguments>(arguments)...);
  }
  /// The same with a limit, which is tested before anything is made.
  template <class Child, ChildLimit Limit, class... Followers, class... Arguments>
  Child* add(const OrbBaseElement& parent, const Limit& limit, FamilyList<Followers...> followers,
             Arguments&&... arguments) {
    limit.check(parent, count<Child>());
    return add<Child>(parent, followers, std::forward<Arguments>(arguments)...);
  }
  /// Adds a child before the first of some elements.
  template <class Child, class... Arguments>
  Child* addBefore(const OrbBaseElement& parent, std::span<xercesc::DOMNode* const> followers,
                   Arguments&&... arguments) {
    NewChild place(parent, Child::elementName, followers);
    auto* wrapper = new Child(place.element(), std::forward<Arguments>(arguments)...);
    family<Child>().append(wrapper);
    place.keep();
    return wrapper;
  }

  /// Removes the whole family and returns how many children that were.
  template <class Child> unsigned int removeAll(const OrbBaseElement& parent, Ids ids = Ids::stay) {
    const std::span<Child* const> wrappers = family<Child>().wrappers();
    const auto count = static_cast<unsigned int>(wrappers.size());
    for (const Child* wrapper : wrappers)
      takeOut(parent, *wrapper, ids);
    family<Child>().clear(Registrations::go);
    return count;
  }
  /// Removes one child; false for an index past the end.
  template <class Child> bool removeAt(const OrbBaseElement& parent, std::size_t index, Ids ids = Ids::stay) {
    if (index >= count<Child>())
      return false;
    takeOut(parent, *at<Child>(index), ids);
    family<Child>().remove(index);
    return true;
  }
  /// Removes the child whose wrapper stands over an element; false when no wrapper of the family does.
  template <class Child>
  bool removeOver(const OrbBaseElement& parent, const xercesc::DOMElement* element, Ids ids = Ids::stay) {
    const std::span<Child* const> wrappers = family<Child>().wrappers();
    for (std::size_t index = 0; index < wrappers.size(); ++index) {
      if (wrappers[index]->getImplementation() == element)
        return removeAt<Child>(parent, index, ids);
    }
    return false;
  }
  /// Ends the wrappers of a family and leaves their elements in the document.
  template <class Child> void forget() { family<Child>().clear(Registrations::go); }

private:
  template <class Child> Family<Child>& family() { return *this; }
  template <class Child> const Family<Child>& family() const { return *this; }

  static const std::array<LoadedFamily, sizeof...(Children)> known;

  template <class Child> static void wrap(void* families, xercesc::DOMElement& child) {
    static_cast<ChildFamilies*>(families)->family<Child>().append(new Child(&child));
  }
  static xercesc::DOMNode* elementOf(const OrbBaseElement* wrapper) {
    return wrapper == nullptr ? nullptr : wrapper->getImplementation();
  }
};

template <class... Children>
constexpr std::array<LoadedFamily, sizeof...(Children)> ChildFamilies<FamilyList<Children...>>::known = {
    LoadedFamily{Children::elementName, &ChildFamilies::template wrap<Children>}...};

} // namespace orbchart
