// The idioms that all wrappers are made of, each on small classes of the test's own.
#include "attribute.h"
#include "chartstring.h"
#include "dom.h"
#include "elementtext.h"
#include "family.h"
#include "keyword.h"
#include "orbexception.h"
#include "orbuni.h"
#include "placement.h"
#include "raised.h"
#include "reference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <stdexcept>
#include <string_view>

using namespace orbchart;
using test::childrenOf;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using xercesc::DOMElement;

namespace {

int alive = 0;

/// What the small classes share: an id, a count of those that live.
class Counted : public OrbBaseElement {
public:
  explicit Counted(DOMElement* element) : OrbBaseElement(element) { ++alive; }
  Counted(const Counted&) = delete;
  ~Counted() override { --alive; }
  const XMLCh* getId() const { return GetAttribute(OrbUni::_id); }
  void setId(const XMLCh* id) { Id().set(*this, id); }
};

class Leaf : public Counted {
public:
  static constexpr const XMLCh* elementName = u"leaf";
  explicit Leaf(DOMElement* element) : Counted(element) { bindLeaf(*this); }
  Leaf(DOMElement* element, const XMLCh* id) : Leaf(element) {
    if (std::u16string_view(id) == u"refused")
      throw std::runtime_error("no such id");
    setId(id);
  }
};

class Mark : public Counted {
public:
  static constexpr const XMLCh* elementName = u"mark";
  explicit Mark(DOMElement* element) : Counted(element) { bindLeaf(*this); }
};

class Note : public Counted {
public:
  static constexpr const XMLCh* elementName = u"note";
  explicit Note(DOMElement* element) : Counted(element) { bindLeaf(*this); }
};

constexpr AtMost twoMarks{2, "Branch can have at most 2 mark children."};
constexpr OnlyOne oneNote{"Note", "Branch"};

/// Leaves, then at most two marks, then at most one note; branches anywhere.
class Branch : public Counted {
public:
  static constexpr const XMLCh* elementName = u"branch";
  explicit Branch(DOMElement* element) : Counted(element) {
    children.load(*this);
    bind(*this);
  }
  Leaf* addLeaf(const XMLCh* id) { return children.add<Leaf>(*this, FamilyList<Mark, Note>{}, id); }
  Mark* addMark() { return children.add<Mark>(*this, FamilyList<Note>{}); }
  Note* addNote() { return children.add<Note>(*this, atEnd); }
  Branch* addBranch() { return children.add<Branch>(*this, atEnd); }

  ChildFamilies<FamilyList<Leaf, Limited<Mark, twoMarks>, Limited<Note, oneNote>, Branch>> children;
};

constexpr UpTo threeLeaves{3, "Leaf", "Choice"};
constexpr OneAmong<Mark, Note> markAlone{"Mark", "Choice"};
constexpr OneAmong<Mark, Note> noteAlone{"Note", "Choice"};

/// Up to three leaves, and a mark or a note; takes the ids off the leaves that it removes.
class Choice : public Counted {
public:
  static constexpr const XMLCh* elementName = u"choice";
  explicit Choice(DOMElement* element) : Counted(element) {
    children.load(*this);
    bind(*this);
  }
  ChildFamilies<FamilyList<StripsIds<Limited<Leaf, threeLeaves>>, Limited<Mark, markAlone>, Limited<Note, noteAlone>>>
      children;
};

/// Knows leaves and passes over the rest.
class Tolerant : public Counted {
public:
  static constexpr const XMLCh* elementName = u"tolerant";
  explicit Tolerant(DOMElement* element) : Counted(element) {
    children.load(*this);
    bind(*this);
  }
  ChildFamilies<FamilyList<Leaf>, Unknown::passes> children;
};

/// Wraps its leaves twice, as a class does that has them in common with its base.
class Twice : public Counted {
public:
  static constexpr const XMLCh* elementName = u"twice";
  explicit Twice(DOMElement* element) : Counted(element) {
    JointLoad load(*this);
    first.load(*this);
    second.load(*this);
    load.run();
    bind(*this);
  }
  ChildFamilies<FamilyList<Leaf>, Unknown::passes> first;
  ChildFamilies<FamilyList<Leaf, Branch>> second;
};

} // namespace

TEST(Attributes, ReadWhatIsOfTheirKindAndNothingElse) {
  const NewDocument document(u"branch");
  OrbBaseElement wrapper(document.root());
  const auto text = [&](const XMLCh* value) {
    document.root()->setAttribute(u"a", value);
    return &wrapper;
  };
  constexpr Boolean boolean{u"a"};
  constexpr TrueUnlessFalse trueUnlessFalse{u"a"};
  EXPECT_TRUE(boolean.get(*text(u"true")));
  for (const XMLCh* other : {u"1", u"TRUE", u" true", u"", u"false"})
    EXPECT_FALSE(boolean.get(*text(other))) << test::utf8(other);
  for (const XMLCh* other : {u"FALSE", u"", u"0", u"true"})
    EXPECT_TRUE(trueUnlessFalse.get(*text(other))) << test::utf8(other);
  EXPECT_FALSE(trueUnlessFalse.get(*text(u"false")));

  constexpr Integer integer{u"a"};
  constexpr Unsigned unsignedInteger{u"a"};
  constexpr Double number{u"a"};
  EXPECT_EQ(integer.get(*text(u"12")), 12);
  for (const XMLCh* other : {u"-12", u"1.5", u"12 ", u"x", u""})
    EXPECT_EQ(integer.get(*text(other)), 0) << test::utf8(other);
  integer.set(wrapper, -12);
  EXPECT_EQ(test::utf8(wrapper.GetAttribute(u"a")), "-12");
  unsignedInteger.set(wrapper, 4294967295U);
  EXPECT_EQ(unsignedInteger.get(wrapper), 4294967295U);
  number.set(wrapper, 0.1);
  EXPECT_EQ(test::utf8(wrapper.GetAttribute(u"a")), "0.1");
  EXPECT_EQ(number.get(*text(u"2,5pt")), 2.5);

  constexpr Text plain{u"a"};
  EXPECT_FALSE(plain.isPresent(*text(u"")));
  EXPECT_TRUE(plain.isPresent(*text(u"x")));
  plain.remove(wrapper);
  plain.remove(wrapper);
  EXPECT_FALSE(document.root()->hasAttribute(u"a"));
}

TEST(Attributes, AnIdMayBeWrittenFromItsOwnTextAndCleared) {
  const NewDocument document(u"leaf");
  Leaf leaf(document.root());
  leaf.setId(u"an id that is long enough to lie in a buffer");
  leaf.setId(leaf.getId());
  EXPECT_EQ(leaf.getElementById(u"an id that is long enough to lie in a buffer"), document.root());
  leaf.setId(u"");
  EXPECT_FALSE(document.root()->hasAttribute(u"id"));
  EXPECT_EQ(leaf.getElementById(u"an id that is long enough to lie in a buffer"), nullptr);
  leaf.setId(nullptr);
  EXPECT_FALSE(document.root()->hasAttribute(u"id"));
}

TEST(Keywords, HaveEachKindOfFallback) {
  enum Repeat : int { never = 0, always = 1 };
  enum Method : int { methodUnset = 0, linear = 1 };
  enum Summary : int { mean = 0, sum = 1, summaryUnset = 2 };
  constexpr Keywords repeat{u"a", AbsentReadsAs(never), {{never, OrbUni::_never}, {always, OrbUni::_always}}};
  constexpr Keywords method{u"a", methodUnset, {{linear, OrbUni::_linear}}};
  constexpr Keywords summary{u"a", summaryUnset, {{mean, OrbUni::_mean}, {sum, OrbUni::_sum}}};
  const NewDocument document(u"leaf");
  OrbBaseElement wrapper(document.root());
  for (const XMLCh* text : {u"", u"Always", u"always "}) {
    document.root()->setAttribute(u"a", text);
    EXPECT_EQ(repeat.get(wrapper), never);
    EXPECT_EQ(method.get(wrapper), methodUnset);
    EXPECT_EQ(summary.get(wrapper), summaryUnset);
  }
  repeat.set(wrapper, always);
  EXPECT_EQ(repeat.get(wrapper), always);
  method.set(wrapper, methodUnset);
  summary.set(wrapper, static_cast<Summary>(77));
  EXPECT_EQ(test::utf8(wrapper.GetAttribute(u"a")), "always");
}

TEST(References, TryTheirClassesInOrder) {
  const Parsed parsed(R"(<branch to="l"><leaf id="l"/><mark id="m"/><note id="n"/></branch>)");
  Branch branch(parsed.root());
  const auto pointAt = [&](const XMLCh* id) {
    parsed.root()->setAttribute(u"to", id);
    return ReferenceTo<Counted, Leaf, Mark>(u"to").get(branch);
  };
  EXPECT_EQ(pointAt(u"l"), branch.children.first<Leaf>());
  EXPECT_EQ(pointAt(u"m"), branch.children.first<Mark>());
  EXPECT_EQ(pointAt(u"n"), nullptr);
  EXPECT_EQ(pointAt(u"nobody"), nullptr);
  EXPECT_EQ(pointAt(u""), nullptr);

  // An element may have several wrappers: the first class in the order is the answer.
  const Mark second(branch.children.first<Leaf>()->getImplementation());
  EXPECT_EQ(pointAt(u"l"), branch.children.first<Leaf>());
  EXPECT_EQ((ReferenceTo<Counted, Mark, Leaf>(u"to").get(branch)), &second);
  EXPECT_EQ((ReferenceTo<Counted>(u"to").get(branch)), nullptr);
  EXPECT_EQ(AnyReference(u"to").get(branch), second.getImplementation());

  const Counted& target = *branch.children.first<Leaf>();
  ReferenceTo<Counted, Mark, Note>(u"other").setAmong(branch, target);
  EXPECT_FALSE(parsed.root()->hasAttribute(u"other"));
  ReferenceTo<Counted, Mark, Leaf>(u"other").setAmong(branch, target);
  EXPECT_EQ(test::utf8(branch.GetAttribute(u"other")), "l");
  branch.children.first<Mark>()->setId(nullptr);
  AnyReference(u"other").set(branch, *branch.children.first<Mark>());
  EXPECT_EQ(test::utf8(branch.GetAttribute(u"other")), "l");
}

TEST(Families, PlaceNewChildrenBeforeTheirFollowers) {
  const Parsed parsed("<branch><!-- c --><note/>text</branch>");
  Branch branch(parsed.root());
  branch.addMark();
  const Leaf* one = branch.addLeaf(u"1");
  const Leaf* two = branch.addLeaf(u"2");
  branch.addBranch();
  EXPECT_EQ(childrenOf(parsed.root()), "! leaf#1 leaf#2 mark note \" branch");
  EXPECT_EQ(branch.children.all<Leaf>(), (std::vector<Leaf*>{const_cast<Leaf*>(one), const_cast<Leaf*>(two)}));
  EXPECT_EQ(branch.children.at<Leaf>(1), two);
  EXPECT_EQ(branch.children.at<Leaf>(2), nullptr);
  const std::vector<Leaf*>& live = branch.children.live<Leaf>();
  const Leaf* three = branch.addLeaf(u"3");
  EXPECT_EQ(live.back(), three);
}

TEST(Families, KeepTheirLimitsBeforeAnythingIsMade) {
  const Parsed parsed("<branch><note/><note/></branch>");
  Branch branch(parsed.root());
  EXPECT_EQ(messageOf([&] { branch.addNote(); }), "Can not add a Note to a Branch because 2 Note(s) already exist(s).");
  branch.addMark();
  branch.addMark();
  EXPECT_EQ(messageOf([&] { branch.addMark(); }), "Branch can have at most 2 mark children.");
  EXPECT_EQ(childrenOf(parsed.root()), "mark mark note note");
  EXPECT_EQ(branch.children.count<Mark>(), 2U);
  EXPECT_EQ(branch.children.removeAll<Note>(branch), 2U);
  EXPECT_NE(branch.addNote(), nullptr);
}

TEST(Families, RemoveAllOneOrTheOneOverAnElement) {
  const Parsed parsed(R"(<branch><leaf id="a"/><leaf id="b"/><leaf id="c"/><mark id="m"/></branch>)");
  Branch branch(parsed.root());
  DOMElement* a = branch.getElementById(u"a");
  EXPECT_FALSE(branch.children.removeAt<Leaf>(branch, 3));
  EXPECT_TRUE(branch.children.removeAt<Leaf>(branch, 0));
  EXPECT_EQ(branch.getElementById(u"a"), a) << "the id stays registered";
  EXPECT_EQ(wrapperOn<Leaf>(*a), nullptr) << "and nothing points at the wrapper that is gone";
  EXPECT_FALSE(branch.children.removeOver<Leaf>(branch, branch.getElementById(u"m")));
  EXPECT_TRUE(branch.children.removeOver<Leaf>(branch, branch.getElementById(u"c")));
  EXPECT_EQ(childrenOf(parsed.root()), "leaf#b mark#m");

  // A child that the host took out itself is no hindrance.
  branch.removeChildElement(branch.children.first<Leaf>());
  EXPECT_EQ(branch.children.removeAll<Leaf>(branch), 1U);
  EXPECT_EQ(branch.children.removeAll<Leaf>(branch), 0U);
  branch.addLeaf(u"d");
  EXPECT_EQ(childrenOf(parsed.root()), "leaf#d mark#m");
  branch.children.forget<Leaf>();
  EXPECT_EQ(childrenOf(parsed.root()), "leaf#d mark#m");
  EXPECT_EQ(branch.children.count<Leaf>(), 0U);
  EXPECT_EQ(wrapperOn<Leaf>(*branch.getElementById(u"d")), nullptr);
}

TEST(Families, OfAChoiceHaveOneChildInAll) {
  const Parsed parsed(R"(<choice><leaf id="a"/><leaf id="b"/></choice>)");
  Choice choice(parsed.root());
  choice.children.add<Leaf>(choice, atEnd);
  EXPECT_EQ(messageOf([&] { choice.children.add<Leaf>(choice, atEnd); }),
            "Can not add a Leaf to a Choice because 3 Leaf(s) already exist(s).");
  choice.children.add<Note>(choice, atEnd);
  EXPECT_EQ(messageOf([&] { choice.children.add<Note>(choice, atEnd); }),
            "Can not add a Note to a Choice because 1 Note(s) already exist(s).");
  EXPECT_EQ(messageOf([&] { choice.children.add<Mark>(choice, atEnd); }),
            "Can not add a Mark to a Choice because 1 Note(s) already exist(s).");
  EXPECT_EQ(choice.children.removeAll<Leaf>(choice), 3U);
  EXPECT_EQ(choice.getElementById(u"a"), nullptr) << "the document has forgotten the id";
  EXPECT_EQ(childrenOf(parsed.root()), "note");
}

TEST(Families, LeaveNothingBehindWhenAnAddFails) {
  const Parsed parsed("<branch><mark/></branch>");
  Branch branch(parsed.root());
  const int before = alive;
  EXPECT_THROW(branch.addLeaf(u"refused"), std::runtime_error);
  EXPECT_EQ(alive, before);
  EXPECT_EQ(childrenOf(parsed.root()), "mark");
  EXPECT_EQ(branch.children.count<Leaf>(), 0U);
}

TEST(Placement, IsThatOfAWalkFromTheFirstChild) {
  std::mt19937 random(7);
  for (int round = 0; round < 300; ++round) {
    const NewDocument document(u"branch");
    std::vector<xercesc::DOMNode*> nodes;
    for (unsigned int count = random() % 40; count != 0; --count)
      nodes.push_back(document.root()->appendChild(document.document()->createElement(u"leaf")));
    std::vector<xercesc::DOMNode*> followers = {nullptr, document.document()->createElement(u"stray")};
    for (xercesc::DOMNode* node : nodes) {
      for (unsigned int times = random() % 12; times < 2; ++times)
        followers.push_back(node);
    }
    std::shuffle(followers.begin(), followers.end(), random);
    const auto place = std::find_if(nodes.begin(), nodes.end(), [&](const xercesc::DOMNode* node) {
      return std::find(followers.begin(), followers.end(), node) != followers.end();
    });
    DOMElement* child = document.document()->createElement(u"child");
    insertBeforeFirst(*document.root(), *child, followers.data(), followers.size());
    EXPECT_EQ(child->getNextSibling(), place == nodes.end() ? nullptr : *place);
  }
}

TEST(Loading, WrapsChildrenAndPassesOverWhatIsNoElement) {
  const Parsed parsed("<branch>text<!-- c --><?p i?><note/><leaf/><branch><leaf/></branch><leaf/></branch>");
  const Branch branch(parsed.root());
  EXPECT_EQ(branch.children.count<Leaf>(), 2U);
  EXPECT_EQ(branch.children.first<Branch>()->children.count<Leaf>(), 1U);
  EXPECT_EQ(wrapperOn<Branch>(*parsed.root()), &branch);
  EXPECT_EQ(wrapperOn<Leaf>(*branch.children.at<Leaf>(1)->getImplementation()), branch.children.at<Leaf>(1));
}

TEST(Loading, OfAnUnknownChildRaisesAndLeavesTheDocumentAsItWas) {
  const Parsed parsed("<branch><leaf/><branch><leaf/><other a='1'>t</other></branch></branch>");
  EXPECT_EQ(messageOf([&] { const Branch branch(parsed.root()); }),
            "Element branch found unknown child other(<branch><leaf/><other a=\"1\">t</other></branch>\n)");
  EXPECT_EQ(alive, 0);
  EXPECT_EQ(wrapperOn<Leaf>(static_cast<DOMElement&>(*parsed.root()->getFirstChild())), nullptr);

  // What a failed load has stood in the place of comes back.
  auto& leafElement = static_cast<DOMElement&>(*parsed.root()->getFirstChild());
  const Leaf earlier(&leafElement);
  EXPECT_THROW(Branch(parsed.root()), OrbException);
  EXPECT_EQ(wrapperOn<Leaf>(leafElement), &earlier);

  const Parsed passed("<tolerant><other/><leaf/></tolerant>");
  const Tolerant tolerant(passed.root());
  EXPECT_EQ(tolerant.children.count<Leaf>(), 1U);
  EXPECT_EQ(childrenOf(passed.root()), "other leaf");
}

TEST(Loading, OfTheSameChildrenTwiceIsOneLoad) {
  const Parsed parsed("<twice><leaf/><branch><leaf/></branch></twice>");
  auto& leafElement = static_cast<DOMElement&>(*parsed.root()->getFirstChild());
  {
    const Twice twice(parsed.root());
    EXPECT_NE(twice.first.first<Leaf>(), twice.second.first<Leaf>());
    EXPECT_EQ(wrapperOn<Leaf>(leafElement), twice.second.first<Leaf>()) << "the later wrapper is the one that is found";
    EXPECT_EQ(alive, 5);
  }
  EXPECT_EQ(alive, 0);
  leafElement.setUserData(u"leaf", nullptr, nullptr);
  parsed.root()->appendChild(parsed.document()->createElement(u"note"));
  EXPECT_THROW(Twice(parsed.root()), OrbException);
  EXPECT_EQ(alive, 0);
  EXPECT_EQ(wrapperOn<Leaf>(leafElement), nullptr);
}

TEST(Loading, HoldsTenThousandLevelsAndRefusesWhatIsTooDeep) {
  const NewDocument document(u"branch");
  DOMElement* innermost = document.nest(document.root(), u"branch", 10'000);
  { const Branch branch(document.root()); }
  EXPECT_EQ(alive, 0);
  const std::string tooDeep = "Elements are nested more than 10240 levels deep below branch.";
  document.nest(innermost, u"branch", 300);
  EXPECT_EQ(messageOf([&] { const Branch branch(document.root()); }), tooDeep);
  EXPECT_EQ(alive, 0);
}

TEST(Loading, RefusesWhatIsTooDeepWhereNoWrapperLooks) {
  for (const XMLCh* parent : {u"branch", u"tolerant"}) {
    const NewDocument document(parent);
    DOMElement* top = document.nest(document.root(), parent[0] == u'b' ? u"leaf" : u"unknown", 1);
    document.nest(top, u"deep", 1'000'000);
    EXPECT_EQ(messageOf([&] {
                if (parent[0] == u'b')
                  const Branch branch(document.root());
                else
                  const Tolerant tolerant(document.root());
              }),
              "Elements are nested more than 10240 levels deep below " + test::utf8(parent) + ".");
  }
}

TEST(Ending, OfDeepWrappersNeedsNoDeepStack) {
  const NewDocument document(u"branch");
  document.document()->setStrictErrorChecking(false);
  {
    Branch top(document.root());
    Branch* branch = &top;
    for (int level = 0; level < 200'000; ++level)
      branch = branch->addBranch();
    document.document()->removeChild(document.root());
  }
  EXPECT_EQ(alive, 0);
}

TEST(Text, IsTheFirstTextNodeAndGoesBehindOtherChildren) {
  const Parsed parsed("<row>first<!-- c -->second<b/></row>");
  OrbBaseElement row(parsed.root());
  EXPECT_EQ(readText(row).toUTF8(), "first");
  writeText(row, u"new");
  EXPECT_EQ(childrenOf(parsed.root()), "! b \"");
  EXPECT_EQ(readText(row).toUTF8(), "new");
  writeText(row, nullptr);
  EXPECT_TRUE(readText(row).empty());

  for (const XMLCh* text : {u"1", u"2", u"3"})
    parsed.root()->appendChild(parsed.document()->createTextNode(text));
  clearText(row);
  EXPECT_EQ(childrenOf(parsed.root()), "! b \" \"") << "of two neighbours the second stays";
}
