// The child families of a wrapper: what a class's private record is made of.
#pragma once

#include "description.h"
#include "loading.h"
#include "orbbaseelement.h"

#include <xercesc/dom/DOMElement.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <type_traits>
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

/// The English name of the class of an element: `majorTicks` gives "MajorTicks".
std::string wordFor(const XMLCh* elementName);

/// The limit of a single child: raises the text of OrbBaseElement::throwIfChildExists when there is one already. The
/// words are the English names of the two classes. The place in the source is that of the limit.
struct OnlyOne {
  constexpr OnlyOne(const char* childName, const char* parentName, const char* sourceFile = __builtin_FILE(),
                    unsigned int sourceLine = __builtin_LINE()) :
      child(childName), parent(parentName), file(sourceFile), line(sourceLine) {}
  template <class Child, class Families> void check(const OrbBaseElement& wrapper, const Families& families) const {
    refuse(wrapper, families.template count<Child>());
  }
  void refuse(const OrbBaseElement& wrapper, std::size_t count) const;
  constexpr void describe(FamilyDescription& family) const { family.most = 1; }

  const char* child;
  const char* parent;
  const char* file;
  unsigned int line;
};

/// The limit of several children, with the same text.
struct UpTo : OnlyOne {
  constexpr UpTo(std::size_t limitCount, const char* childName, const char* parentName,
                 const char* sourceFile = __builtin_FILE(), unsigned int sourceLine = __builtin_LINE()) :
      OnlyOne(childName, parentName, sourceFile, sourceLine), limit(limitCount) {}
  template <class Child, class Families> void check(const OrbBaseElement& wrapper, const Families& families) const {
    if (families.template count<Child>() >= limit)
      refuse(wrapper, families.template count<Child>());
  }
  constexpr void describe(FamilyDescription& family) const { family.most = limit; }

  std::size_t limit;
};

/// The limit of several children, with a message of its own.
struct AtMost {
  constexpr AtMost(std::size_t limitCount, const char* text, const char* sourceFile = __builtin_FILE(),
                   unsigned int sourceLine = __builtin_LINE()) :
      limit(limitCount), message(text), file(sourceFile), line(sourceLine) {}
  template <class Child, class Families> void check(const OrbBaseElement& /*wrapper*/, const Families& families) const {
    refuse(families.template count<Child>());
  }
  void refuse(std::size_t count) const;
  constexpr void describe(FamilyDescription& family) const { family.most = limit; }

  std::size_t limit;
  const char* message;
  const char* file;
  unsigned int line;
};

/// One child in all of some families: each of them is asked in order, and the text of OnlyOne names the one that has a
/// child.
template <class... Alternatives> struct OneAmong : OnlyOne {
  using OnlyOne::OnlyOne;
  template <class Child, class Families> void check(const OrbBaseElement& wrapper, const Families& families) const {
    (refuseBeside(wrapper, families.template count<Alternatives>(), Alternatives::elementName), ...);
  }
  constexpr void describe(FamilyDescription& family) const {
    family.most = 1;
    family.alternatives = alternatives;
  }

private:
  void refuseBeside(const OrbBaseElement& wrapper, std::size_t count, const XMLCh* existing) const {
    if (count != 0)
      wrapper.throwIfChildExists(count, 0, wordFor(existing), child, parent, file, line);
  }

  static constexpr Described alternatives[] = {&descriptionOf<Alternatives>...};
};

/// An entry of a list of families: a family with a limit.
template <class Entry, const auto& familyLimit> struct Limited {};
/// An entry of a list of families: the removal of a child takes its id off its element, so that the document forgets
/// it.
template <class Entry> struct StripsIds {};

/// What an entry of a list says of its family.
template <class Entry> struct FamilyEntry {
  using Child = Entry;
  static constexpr bool stripsIds = false;
  template <class Families> static void checkLimit(const OrbBaseElement& /*parent*/, const Families& /*families*/) {}
  static constexpr FamilyDescription describe() { return {.child = &descriptionOf<Child>}; }
};
template <class Entry, const auto& familyLimit> struct FamilyEntry<Limited<Entry, familyLimit>> : FamilyEntry<Entry> {
  template <class Families> static void checkLimit(const OrbBaseElement& parent, const Families& families) {
    familyLimit.template check<typename FamilyEntry<Entry>::Child>(parent, families);
  }
  static constexpr FamilyDescription describe() {
    FamilyDescription family = FamilyEntry<Entry>::describe();
    familyLimit.describe(family);
    return family;
  }
};
template <class Entry> struct FamilyEntry<StripsIds<Entry>> : FamilyEntry<Entry> {
  static constexpr bool stripsIds = true;
};
template <class Entry> using ChildOf = typename FamilyEntry<Entry>::Child;

/// The entry of a child class in a list.
template <class Child, class... Entries> struct FindEntry;
template <class Child, class First, class... Rest>
struct FindEntry<Child, First, Rest...>
    : std::conditional_t<std::is_same_v<Child, ChildOf<First>>, std::type_identity<FamilyEntry<First>>,
                         FindEntry<Child, Rest...>> {};

/// What becomes of the registrations of wrappers that end. A removal takes them away, so that no reference leads to a
/// wrapper that has gone. A destructor leaves them: the DOM may have gone before it.
enum class Registrations { stay, go };

/// Ends a wrapper and all that it owns. What it owns is ended after it and not inside it, so that deep documents need
/// no deep stack.
void discard(OrbBaseElement* wrapper, Registrations registrations);

/// Whether the element of a child stands in its parent.
bool isChild(const OrbBaseElement& parent, const OrbBaseElement& child);

/// Takes the element of a child out of its parent, and before that its id off it if asked.
void takeOut(const OrbBaseElement& parent, const OrbBaseElement& child, bool stripId);

/// A new child element in its place. Unless it is kept, it leaves the document again: an add that fails half way
/// leaves nothing behind.
class NewChild {
public:
  NewChild(const OrbBaseElement& parent, const XMLCh* name, std::span<xercesc::DOMNode* const> followers);
  /// The same for an element that the caller has made.
  NewChild(const OrbBaseElement& parent, xercesc::DOMElement* element, std::span<xercesc::DOMNode* const> followers);
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
    struct EndUnlessKept {
      void operator()(Child* lost) const { discard(lost, Registrations::go); }
    };
    std::unique_ptr<Child, EndUnlessKept> kept(wrapper);
    live();
    vector()->push_back(wrapper);
    static_cast<void>(kept.release());
  }

  /// Lets go of a wrapper and hands it over.
  Child* release(std::size_t index) {
    Child* wrapper = wrappers()[index];
    if (isVector())
      vector()->erase(vector()->begin() + static_cast<std::ptrdiff_t>(index));
    else
      only_ = nullptr;
    return wrapper;
  }
  /// Lets go of all wrappers and hands them over.
  std::vector<Child*> releaseAll() {
    std::vector<Child*> released(wrappers().begin(), wrappers().end());
    if (isVector())
      delete vector();
    only_ = nullptr;
    return released;
  }
  void remove(std::size_t index) { discard(release(index), Registrations::go); }

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

/// All child families of a class; its private record derives from this. The list says all that is to say of a family:
/// its place in the language, its limit, what a removal does to ids.
template <class List, Unknown unknown = Unknown::raises> class ChildFamilies;
template <class... Entries, Unknown unknown>
class ChildFamilies<FamilyList<Entries...>, unknown> : private Family<ChildOf<Entries>>... {
public:
  /// Wraps the children that the parent's element has.
  void load(const OrbBaseElement& parent) { loadChildren(parent, this, loaded); }
  /// The same where one of the families is refused.
  template <class Refused> void loadWithout(const OrbBaseElement& parent) {
    loadChildren(parent, this, loadedWithout<Refused>);
  }
  /// Wraps one node among the parent's children.
  void loadOne(const OrbBaseElement& parent, xercesc::DOMNode* node) { loadChild(parent, node, this, loaded); }

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
    return {elementOf(first<ChildOf<Followers>>())...};
  }

  /// Adds a child before the first wrapper of each of the followers' families, and hands the arguments to its
  /// constructor. The limit is tested before anything is made.
  template <class Child, class... Followers, class... Arguments>
  Child* add(const OrbBaseElement& parent, FamilyList<Followers...> followers, Arguments&&... arguments) {
    return addBefore<Child>(parent, firstElements(followers), std::forward<Arguments>(arguments)...);
  }
  /// Adds a child before the first of some elements.
  template <class Child, class... Arguments>
  Child* addBefore(const OrbBaseElement& parent, std::span<xercesc::DOMNode* const> followers,
                   Arguments&&... arguments) {
    EntryOf<Child>::checkLimit(parent, *this);
    NewChild place(parent, Child::elementName, followers);
    return keep<Child>(place, std::forward<Arguments>(arguments)...);
  }
  /// Wraps an element that the caller has made, and puts it before the first wrapper of each of the followers'
  /// families. No limit is tested.
  template <class Child, class... Followers>
  Child* adopt(const OrbBaseElement& parent, xercesc::DOMElement* element, FamilyList<Followers...> followers) {
    NewChild place(parent, element, firstElements(followers));
    return keep<Child>(place);
  }
  /// Takes over a wrapper whose element the caller has placed.
  template <class Child> void append(Child* wrapper) { family<Child>().append(wrapper); }

  /// Removes the whole family and returns how many children that were.
  template <class Child> unsigned int removeAll(const OrbBaseElement& parent) {
    const std::span<Child* const> wrappers = family<Child>().wrappers();
    const auto count = static_cast<unsigned int>(wrappers.size());
    for (const Child* wrapper : wrappers)
      takeOut(parent, *wrapper, EntryOf<Child>::stripsIds);
    family<Child>().clear(Registrations::go);
    return count;
  }
  /// Removes one child; false for an index past the end. Its id stays unless asked for.
  template <class Child> bool removeAt(const OrbBaseElement& parent, std::size_t index, bool stripId = false) {
    if (index >= count<Child>())
      return false;
    takeOut(parent, *at<Child>(index), stripId);
    family<Child>().remove(index);
    return true;
  }
  /// Removes the child whose wrapper stands over an element; false when no wrapper of the family does.
  template <class Child> bool removeOver(const OrbBaseElement& parent, const xercesc::DOMElement* element) {
    const std::span<Child* const> wrappers = family<Child>().wrappers();
    for (std::size_t index = 0; index < wrappers.size(); ++index) {
      if (wrappers[index]->getImplementation() == element)
        return removeAt<Child>(parent, index);
    }
    return false;
  }
  /// Ends the wrappers of a family and leaves their elements in the document.
  template <class Child> void forget() { family<Child>().clear(Registrations::go); }
  /// Lets go of the wrappers of a family, which the caller then owns, and leaves their elements in the document.
  template <class Child> std::vector<Child*> releaseAll() { return family<Child>().releaseAll(); }

  /// Ends the wrappers whose elements stand no more in the parent.
  void dropMoved(const OrbBaseElement& parent) { (dropMovedOf<ChildOf<Entries>>(parent), ...); }

  static constexpr void describe(ElementDescription& element) {
    element.families = described;
    element.loadsChildren = true;
    element.unknownChildren = unknown;
  }

private:
  template <class Child> using EntryOf = typename FindEntry<Child, Entries...>::type;

  template <class Child> Family<Child>& family() { return *this; }
  template <class Child> const Family<Child>& family() const { return *this; }

  /// Wraps a new child's element; the child stays when that has worked.
  template <class Child, class... Arguments> Child* keep(NewChild& place, Arguments&&... arguments) {
    auto* wrapper = new Child(place.element(), std::forward<Arguments>(arguments)...);
    family<Child>().append(wrapper);
    place.keep();
    return wrapper;
  }
  template <class Child> void dropMovedOf(const OrbBaseElement& parent) {
    for (Child* wrapper : releaseAll<Child>()) {
      if (isChild(parent, *wrapper))
        append(wrapper);
      else
        discard(wrapper, Registrations::go);
    }
  }
  template <class Child> static void wrap(void* families, xercesc::DOMElement& child) {
    static_cast<ChildFamilies*>(families)->family<Child>().append(new Child(&child));
  }
  template <class Child> static void unwrap(void* families) {
    auto& family = static_cast<ChildFamilies*>(families)->family<Child>();
    family.remove(family.wrappers().size() - 1);
  }
  static xercesc::DOMNode* elementOf(const OrbBaseElement* wrapper) {
    return wrapper == nullptr ? nullptr : wrapper->getImplementation();
  }

  // An array has room for one family more, as a class may have none.
  static constexpr LoadedFamily known[sizeof...(Entries) + 1] = {
      {ChildOf<Entries>::elementName, &wrap<ChildOf<Entries>>, &unwrap<ChildOf<Entries>>}...};
  static constexpr LoadedFamilies loaded = {known, sizeof...(Entries), unknown};
  template <class Refused>
  static constexpr LoadedFamilies loadedWithout = {known, sizeof...(Entries), unknown, Refused::elementName};
  static constexpr std::array<FamilyDescription, sizeof...(Entries)> described = {FamilyEntry<Entries>::describe()...};
};

} // namespace orbchart
