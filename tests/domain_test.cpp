// Domains, their references, domain modifiers, and the filters and relabels that stand near them.
#include "dom.h"
#include "keywords.h"
#include "orbcategoricaldomain.h"
#include "orbcategoricaldomainmodifier.h"
#include "orbcategories.h"
#include "orbcategories2.h"
#include "orbdomainexclude.h"
#include "orbdomainintersect.h"
#include "orbdomainreference.h"
#include "orbdomainreplace.h"
#include "orbdomainunion.h"
#include "orbexception.h"
#include "orbfilter.h"
#include "orbintervaldomain.h"
#include "orbintervaldomainmodifier.h"
#include "orbrange.h"
#include "orbrelabel.h"
#include "orbsourcevariable.h"
#include "orbvariablereference.h"
#include "orbvisualization.h"
#include "raised.h"

#include <gtest/gtest.h>

using test::childrenOf;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::Platform;
using test::refuses;
using test::utf8;

namespace {

template <class Modifier> void expectModifier() {
  const Platform platform;
  SCOPED_TRACE(utf8(Modifier::elementName));
  const NewDocument document(Modifier::elementName);
  Modifier modifier(document.root());
  EXPECT_EQ(document.root()->getUserData(Modifier::elementName), &modifier);
  test::expectKeywords<Modifier>(u"dateType", &Modifier::getDateType, &Modifier::setDateType, "date dateTime time");

  modifier.addDomainExclude();
  modifier.addDomainReplace();
  modifier.addDomainIntersect();
  modifier.addDomainUnion();
  modifier.addDomainReplace();
  EXPECT_EQ(childrenOf(document.root()), "domainExclude domainReplace domainIntersect domainUnion domainReplace");
  const Modifier again(document.root());
  EXPECT_EQ(again.getDomainReplaces().size(), 2U);
  EXPECT_EQ(again.getDomainExcludes().size() + again.getDomainIntersects().size() + again.getDomainUnions().size(), 3U);
  EXPECT_TRUE(refuses<Modifier>("<range/>"));
}

/// One operation of a modifier: its registration, its id, and its values in the order of the adds.
template <class Operation> void expectOperation() {
  const Platform platform;
  const std::string name = utf8(Operation::elementName);
  SCOPED_TRACE(name);
  const Parsed parsed("<" + name + " id='o'><range/><categories2/></" + name + ">");
  Operation operation(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(Operation::elementName), &operation);
  EXPECT_EQ(utf8(operation.getId()), "o");
  operation.addVariableReference();
  operation.addRange();
  operation.addCategories2();
  EXPECT_EQ(childrenOf(parsed.root()), "range categories2 variableReference range categories2");
  xercesc::DOMElement* removed = operation.getCategories2s().at(0)->getImplementation();
  EXPECT_NE(removed->getUserData(u"categories"), nullptr);
  EXPECT_EQ(operation.removeCategories2s(), 2U);
  EXPECT_EQ(removed->getUserData(u"categories"), nullptr);
  EXPECT_EQ(operation.removeRanges(), 2U);
  EXPECT_EQ(operation.getVariableReferences().size(), 1U);
  EXPECT_TRUE(refuses<Operation>("<categories/>"));
}

} // namespace

TEST(Domains, KeepReferencesBeforeTheirValues) {
  const NewDocument document(u"visualization");
  OrbVisualization root(document.root());
  const OrbSourceVariable& variable = *root.addSourceVariable(u"v");
  OrbCategoricalDomain& categories = *root.addCategoricalDomain(u"c");
  OrbIntervalDomain& ranges = *root.addIntervalDomain(u"i");

  categories.addCategories();
  categories.addDomainReference(ranges);
  categories.addVariableReference(variable);
  categories.addDomainReference(categories);
  categories.addCategories();
  EXPECT_EQ(childrenOf(categories.getImplementation()),
            "domainReference variableReference domainReference categories categories");
  EXPECT_EQ(categories.getVariableReferences().at(0)->getRef(), &variable);
  EXPECT_EQ(categories.getDomainReferences().at(0)->getRef(), &ranges);
  EXPECT_EQ(categories.getDomainReferences().at(1)->getRef(), &categories);
  EXPECT_EQ(categories.removeCategoriess(), 2U);

  ranges.addRange();
  ranges.addVariableReference(variable);
  ranges.addDomainReference(categories);
  ranges.addVariableReference(variable);
  ranges.addRange();
  EXPECT_EQ(childrenOf(ranges.getImplementation()), "variableReference domainReference variableReference range range");
  EXPECT_EQ(ranges.getDomainReferences().at(0)->getRef(), &categories);
  EXPECT_EQ(ranges.removeVariableReferences(), 2U);
  EXPECT_TRUE(refuses<OrbCategoricalDomain>("<range/>"));
  EXPECT_TRUE(refuses<OrbIntervalDomain>("<categories/>"));
}

TEST(Domains, AReferenceThatDanglesRaises) {
  const Parsed parsed("<visualization><categoricalDomain><domainReference ref='i'/><domainReference ref='r'/>"
                      "<domainReference ref='gone'/><domainReference/></categoricalDomain>"
                      "<intervalDomain id='i'><range id='r'/></intervalDomain></visualization>");
  const OrbVisualization root(parsed.root());
  const auto references = root.getCategoricalDomains().at(0)->getDomainReferences();
  EXPECT_EQ(references.at(0)->getRef(), root.getIntervalDomains().at(0)) << "a target may stand later";
  EXPECT_EQ(references.at(1)->getRef(), nullptr) << "an element of another class";
  EXPECT_EQ(messageOf([&] { references.at(2)->getRef(); }),
            "Attribute Ref refers to gone, but that element does not exist.");
  EXPECT_EQ(messageOf([&] { references.at(3)->getRef(); }),
            "Attribute Ref refers to , but that element does not exist.");

  references.at(0)->setRef(*root.getCategoricalDomains().at(0));
  EXPECT_EQ(references.at(0)->getRef(), root.getIntervalDomains().at(0)) << "a target without an id writes nothing";
}

TEST(Domains, ModifiersOfBothKindsAreAlike) {
  expectModifier<OrbCategoricalDomainModifier>();
  expectModifier<OrbIntervalDomainModifier>();
  expectOperation<OrbDomainExclude>();
  expectOperation<OrbDomainIntersect>();
  expectOperation<OrbDomainReplace>();
  expectOperation<OrbDomainUnion>();
}

TEST(Filters, WriteADomainThatTheyDoNotGive) {
  const NewDocument document(u"visualization");
  OrbVisualization root(document.root());
  const OrbCategoricalDomain& categories = *root.addCategoricalDomain(u"c");
  const OrbIntervalDomain& ranges = *root.addIntervalDomain(u"i");
  xercesc::DOMElement* element = document.document()->createElement(u"filter");
  OrbFilter filter(element, u"age", categories);
  EXPECT_EQ(utf8(filter.getSourceName()), "age");
  EXPECT_EQ(utf8(element->getAttribute(u"domain")), "c");
  EXPECT_EQ(filter.getCategoricalDomain(), nullptr);
  filter.setIntervalDomain(ranges);
  EXPECT_EQ(utf8(element->getAttribute(u"domain")), "i");
  EXPECT_EQ(filter.getIntervalDomain(), nullptr);

  EXPECT_TRUE(refuses<OrbFilter>("<range/>"));
  EXPECT_FALSE(refuses<OrbFilter>("text<!-- and a comment -->"));
  const Parsed refused("<filter><any/></filter>");
  EXPECT_THROW(OrbFilter(refused.root(), u"age", ranges), OrbException);
  EXPECT_EQ(utf8(refused.root()->getAttribute(u"sourceName")), "age") << "written before the children are looked at";
  EXPECT_EQ(refused.root()->getUserData(u"filter"), nullptr);
}

TEST(Relabels, WriteAnEmptyToAndRegisterOnlyWhenAsked) {
  const NewDocument document(u"relabel");
  OrbRelabel relabel(document.root(), u"old", nullptr);
  EXPECT_EQ(document.root()->getUserData(u"relabel"), nullptr);
  relabel.init();
  EXPECT_EQ(document.root()->getUserData(u"relabel"), &relabel);
  EXPECT_TRUE(document.root()->hasAttribute(u"to"));

  relabel.setTo(u"a label that is long enough to lie in a buffer");
  relabel.setTo(relabel.getTo());
  EXPECT_EQ(utf8(relabel.getTo()), "a label that is long enough to lie in a buffer");
  relabel.setTo(u"");
  relabel.setFrom(u"");
  EXPECT_EQ(utf8(relabel.getTo()), "");
  EXPECT_EQ(utf8(relabel.getFrom()), "old");
}
