// The sources that a report gives and that reshape another: how they load, where their children go, what is not found.
#include "dom.h"
#include "keywords.h"
#include "orbaggregate.h"
#include "orbdatareduction.h"
#include "orbexception.h"
#include "orbfilter.h"
#include "orbreportsource.h"
#include "orbreportvalue.h"
#include "orbreportvariable.h"
#include "orbreshapesource.h"
#include "orbusersource.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <string>

using test::childrenOf;
using test::expectKeywords;
using test::NewDocument;
using test::Parsed;
using test::refuses;
using test::utf8;

TEST(ReportSource, HoldsEverythingInTheOrderOfTheAdds) {
  using Report = OrbReportSource;
  expectKeywords<Report>(u"missing", &Report::getMissing, &Report::setMissing, "pairwise listwise");

  const Parsed parsed("<reportSource><dataReduction/><reportVariable/><filter/><aggregate/></reportSource>");
  Report source(parsed.root(), u"http://host/report", u"sales");
  EXPECT_EQ(parsed.root()->getUserData(u"reportSource"), &source);
  EXPECT_EQ(utf8(source.getUrl()), "http://host/report");
  EXPECT_EQ(utf8(source.getDatasetName()), "sales");
  source.addReportVariable();
  source.addDataReduction();
  source.addAggregate();
  source.addFilter();
  EXPECT_EQ(childrenOf(parsed.root()), "dataReduction reportVariable filter aggregate reportVariable dataReduction "
                                       "aggregate filter");
  EXPECT_EQ(source.removeFilters(), 2U);
  EXPECT_EQ(source.getReportVariables().size(), 2U);
  EXPECT_EQ(source.removeAggregates(), 2U);
  EXPECT_EQ(childrenOf(parsed.root()), "dataReduction reportVariable reportVariable dataReduction");
}

TEST(ReportSource, WritesItsArgumentsBeforeItReadsItsChildren) {
  EXPECT_TRUE(refuses<OrbReportSource>("<reportValue/>"));
  const Parsed refused("<reportSource><reportValue/></reportSource>");
  EXPECT_THROW(OrbReportSource(refused.root(), u"url", u"sales"), OrbException);
  EXPECT_EQ(utf8(refused.root()->getAttribute(u"url")), "url");
  EXPECT_EQ(utf8(refused.root()->getAttribute(u"datasetName")), "sales");
  EXPECT_EQ(refused.root()->getUserData(u"reportSource"), nullptr);
}

TEST(ReportVariable, HoldsValues) {
  const Parsed parsed("<reportVariable><reportValue value='1'><bogus/></reportValue></reportVariable>");
  OrbReportVariable variable(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(u"reportVariable"), &variable);
  ASSERT_EQ(variable.getReportValues().size(), 1U);
  const OrbReportValue* value = variable.getReportValues().front();
  EXPECT_EQ(utf8(value->getValue()), "1");
  EXPECT_EQ(value->getImplementation()->getUserData(u"reportValue"), value);
  variable.addReportValue()->setId(u"second");
  EXPECT_EQ(childrenOf(parsed.root()), "reportValue reportValue#second");
  EXPECT_EQ(variable.removeReportValues(), 2U);
  EXPECT_TRUE(variable.doesIdExist(u"second")) << "a remove leaves the id registered";
  EXPECT_TRUE(refuses<OrbReportVariable>("<reportVariable/>"));
}

TEST(ReshapeSource, NeitherWritesNorFindsItsBase) {
  const Parsed parsed("<r><reshapeSource id='r'/><reshapeSource id='based' base='u'/><userSource id='u'/></r>");
  const OrbUserSource user(parsed.document()->getElementById(u"u"));
  OrbReshapeSource fresh(parsed.document()->getElementById(u"r"), user, u"long", u"wide");
  EXPECT_EQ(utf8(fresh.getInput()), "long");
  EXPECT_EQ(utf8(fresh.getOutput()), "wide");
  EXPECT_FALSE(fresh.isBasePresent());
  fresh.setBase(user);
  EXPECT_FALSE(fresh.getImplementation()->hasAttribute(u"base"));

  OrbReshapeSource based(parsed.document()->getElementById(u"based"));
  EXPECT_TRUE(based.isBasePresent());
  EXPECT_EQ(based.getBase(), nullptr);
  based.removeBase();
  EXPECT_FALSE(based.isBasePresent());
}

TEST(ReshapeSource, LoadsAnAggregateOnlyWithAllItsArguments) {
  using Reshape = OrbReshapeSource;
  expectKeywords<Reshape>(u"missing", &Reshape::getMissing, &Reshape::setMissing, "pairwise listwise");
  EXPECT_TRUE(refuses<Reshape>("<aggregate/>"));
  EXPECT_TRUE(refuses<Reshape>("<filter/><aggregate/>"));
  EXPECT_FALSE(refuses<Reshape>("<filter/><dataReduction/>"));

  const NewDocument document(u"reshapeSource");
  {
    Reshape source(document.root());
    EXPECT_EQ(document.root()->getUserData(u"reshapeSource"), &source);
    EXPECT_EQ(source.getAggregate(), nullptr);
    source.addDataReduction();
    source.addFilter();
    source.addAggregate()->setId(u"first");
    source.addAggregate()->setId(u"second");
    source.addFilter();
    EXPECT_EQ(childrenOf(document.root()), "dataReduction aggregate#first aggregate#second filter filter");
  }
  EXPECT_THROW(Reshape(document.root()), OrbException);
  Reshape source(document.root(), OrbBaseElement(nullptr), u"long", u"wide");
  EXPECT_EQ(source.getFilters().size(), 2U);
  EXPECT_EQ(source.getDataReductions().size(), 1U);
  ASSERT_NE(source.getAggregate(), nullptr);
  EXPECT_EQ(utf8(source.getAggregate()->getId()), "first");
  EXPECT_EQ(source.removeAggregate(), 2U);
  EXPECT_EQ(source.getAggregate(), nullptr);
  source.addAggregate();
  EXPECT_EQ(childrenOf(document.root()), "dataReduction aggregate filter filter");

  const Parsed refused("<reshapeSource><bogus/></reshapeSource>");
  EXPECT_THROW(Reshape(refused.root(), source, u"long", u"wide"), OrbException);
  EXPECT_EQ(utf8(refused.root()->getAttribute(u"output")), "wide") << "written before the children are looked at";
}
