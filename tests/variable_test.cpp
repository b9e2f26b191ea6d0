// Variables: what they refer to, what they hold, and how they load.
#include "chartstring.h"
#include "dom.h"
#include "keywords.h"
#include "orbaggregation.h"
#include "orbcategoricaldomain.h"
#include "orbdatabasesource.h"
#include "orbderivedvariable.h"
#include "orbdomainexclude.h"
#include "orbdomainintersect.h"
#include "orbdomainreplace.h"
#include "orbdomainunion.h"
#include "orbexception.h"
#include "orbexpressionvariable.h"
#include "orbintervaldomain.h"
#include "orbintervaldomainmodifier.h"
#include "orbmultipleresponsevariable.h"
#include "orbname.h"
#include "orbscope.h"
#include "orbsourcevariable.h"
#include "orbvariablename.h"
#include "orbvariablereference.h"
#include "orbvisualization.h"
#include "raised.h"

#include <gtest/gtest.h>

using test::childrenOf;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::Platform;
using test::utf8;

namespace {

template <class Variable> void expectTolerant() {
  const Platform platform;
  const std::string name = utf8(Variable::elementName);
  const Parsed parsed("<" + name + "><bogus/><aggregation/><aggregation/></" + name + ">");
  EXPECT_EQ(Variable(parsed.root()).getAggregations().size(), 2U) << name;
}

} // namespace

TEST(Variables, DependOnThreeOfTheFourKinds) {
  const NewDocument document(u"visualization");
  OrbVisualization root(document.root());
  OrbSourceVariable& variable = *root.addSourceVariable(u"s");
  OrbMultipleResponseVariable& multiple = *root.addMultipleResponseVariable();
  multiple.setId(u"m");
  for (CTVariableType* target : std::initializer_list<CTVariableType*>{&variable, root.addDerivedVariable(u"d"),
                                                                       root.addExpressionVariable(u"e")}) {
    variable.setDependsOn(*target);
    EXPECT_EQ(variable.getDependsOn(), target);
  }
  variable.setDependsOn(multiple);
  EXPECT_EQ(utf8(variable.GetAttribute(u"dependsOn")), "m");
  EXPECT_TRUE(variable.isDependsOnPresent());
  EXPECT_EQ(variable.getDependsOn(), nullptr);

  variable.setLabelVariable(variable);
  EXPECT_EQ(utf8(variable.GetAttribute(u"labelVariable")), "s");
  EXPECT_EQ(variable.getLabelVariable(), nullptr);

  variable.setSource(*root.addDatabaseSource(u"rows"));
  EXPECT_EQ(utf8(variable.getSource()), "rows") << "the text, and of a source of any class";
}

TEST(Variables, ReachTheirDomainByItsKindAndItsModifierByItsClass) {
  const Parsed parsed("<visualization><sourceVariable/><categoricalDomain id='c'/><intervalDomain id='i'/>"
                      "<intervalDomainModifier id='m'><domainUnion id='u'/><domainReplace id='r'/><domainIntersect "
                      "id='n'/><domainExclude id='x'/><domainUnion/></intervalDomainModifier></visualization>");
  const OrbVisualization root(parsed.root());
  OrbSourceVariable& variable = *root.getSourceVariables().at(0);
  const OrbIntervalDomain* ranges = root.getIntervalDomains().at(0);
  const OrbCategoricalDomain* categories = root.getCategoricalDomains().at(0);
  variable.setDomain(*ranges);
  EXPECT_EQ(variable.getIntervalDomain(), ranges);
  EXPECT_EQ(variable.getCategoricalDomain(), nullptr);
  variable.setDomain(*categories);
  EXPECT_EQ(variable.getIntervalDomain(), nullptr);
  EXPECT_EQ(variable.getCategoricalDomain(), categories);

  const OrbIntervalDomainModifier& modifier = *root.getIntervalDomainModifiers().at(0);
  for (const CTModifier* operation :
       std::initializer_list<CTModifier*>{modifier.getDomainUnions().at(0), modifier.getDomainReplaces().at(0),
                                          modifier.getDomainIntersects().at(0), modifier.getDomainExcludes().at(0)}) {
    variable.setDomainModifier(*operation);
    EXPECT_EQ(variable.getDomainModifier(), operation);
  }
  variable.setDomainModifier(*modifier.getDomainUnions().at(1));
  EXPECT_EQ(utf8(variable.GetAttribute(u"domainModifier")), "x") << "an operation without an id writes nothing";
  variable.getImplementation()->setAttribute(u"domainModifier", u"m");
  EXPECT_EQ(variable.getDomainModifier(), nullptr) << "the whole modifier is no operation";
}

TEST(Variables, NumberTheirMeasurementLevels) {
  test::expectKeywords<OrbSourceVariable>(u"measurementLevel", &OrbSourceVariable::getMeasurementLevel,
                                          &OrbSourceVariable::setMeasurementLevel, "nominal ordinal interval ratio");
}

TEST(Variables, GatherSmallCategoriesOnce) {
  const NewDocument document(u"visualization");
  OrbVisualization root(document.root());
  OrbDerivedVariable& variable = *root.addDerivedVariable(u"d");
  const OrbAggregation& aggregation = *variable.addAggregation(u"other", *root.addSourceVariable(u"s"), 0.05);
  EXPECT_EQ(utf8(aggregation.getNewCategory()), "other");
  EXPECT_EQ(aggregation.getSumVariable(), root.getSourceVariables().at(0));
  EXPECT_EQ(aggregation.getMinFraction(), 0.05);
  EXPECT_EQ(messageOf([&] { variable.addAggregation(u"rest", variable, 0.1); }),
            "Can not add a Aggregation to a VariableType because 1 Aggregation(s) already exist(s).");
  EXPECT_EQ(childrenOf(variable.getImplementation()), "aggregation");
  EXPECT_EQ(variable.removeAggregations(), 1U);
  EXPECT_NE(variable.addAggregation(u"rest", variable, 0.1), nullptr);
}

TEST(Variables, PassOverUnknownChildrenSaveTheMultipleResponse) {
  expectTolerant<OrbSourceVariable>();
  expectTolerant<OrbDerivedVariable>();
  expectTolerant<OrbExpressionVariable>();
  for (const std::string child : {"bogus", "aggregation", "format"}) {
    const Parsed parsed("<multipleResponseVariable><variableReference/><" + child + "/></multipleResponseVariable>");
    EXPECT_THROW(OrbMultipleResponseVariable variable(parsed.root()), OrbException) << child;
    xercesc::DOMElement* refused = parsed.root()->getLastElementChild();
    EXPECT_EQ(refused->getUserData(refused->getTagName()), nullptr) << "a wrapper that has ended";
  }

  // What the base's operations build, the loader refuses.
  const NewDocument document(u"visualization");
  OrbVisualization root(document.root());
  OrbMultipleResponseVariable& multiple = *root.addMultipleResponseVariable();
  multiple.addVariableReference()->setRef(*root.addSourceVariable(u"s"));
  EXPECT_EQ(multiple.getVariableReferences().at(0)->getRef(), root.getSourceVariables().at(0));
  multiple.addAggregation(u"other", multiple, 0.5);
  EXPECT_THROW(OrbVisualization again(document.root()), OrbException);
}

TEST(Variables, NameHasScopes) {
  const Parsed parsed("<variableName><scope>all</scope><name>n</name></variableName>");
  OrbVariableName name(parsed.root());
  name.addName();
  name.addScope()->setText(u"some");
  EXPECT_EQ(childrenOf(parsed.root()), "scope name name scope");
  EXPECT_EQ(name.getScopes().at(1)->getText().toUTF8(), "some");
  EXPECT_EQ(name.removeScopes(), 2U);
}
