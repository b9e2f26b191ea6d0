// The root: the bands of its children, their removal, loading, and its own attributes.
#include "dom.h"
#include "orbcategoricaldomain.h"
#include "orbcategoricaldomainmodifier.h"
#include "orbdatabasesource.h"
#include "orbdelimitedfilesource.h"
#include "orbderivedvariable.h"
#include "orbembeddedsource.h"
#include "orbexpressionvariable.h"
#include "orbgraph.h"
#include "orbintervaldomain.h"
#include "orbintervaldomainmodifier.h"
#include "orbmultipleresponsevariable.h"
#include "orbsavfilesource.h"
#include "orbsourcevariable.h"
#include "orbstreamingsource.h"
#include "orbstyle.h"
#include "orbusersource.h"
#include "orbvisualization.h"
#include "raised.h"

#include <gtest/gtest.h>

using test::childrenOf;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::utf8;

namespace {

const std::string sources = "databaseSource#db delimitedFileSource#df embeddedSource#es streamingSource#ss "
                            "userSource#us ";
const std::string variables = "sourceVariable#sv derivedVariable#dv expressionVariable#ev multipleResponseVariable "
                              "categoricalDomain#cd categoricalDomainModifier intervalDomainModifier "
                              "intervalDomain#id ";

/// Adds a child of each family, band by band, from the first band on or from the last.
void addSources(OrbVisualization& root) {
  root.addDatabaseSource(u"db");
  root.addDelimitedFileSource(u"df");
  root.addEmbeddedSource(u"es");
  EXPECT_EQ(utf8(root.addStreamingSource(u"ss", u"url")->getUrl()), "url");
  root.addUserSource(u"us");
}
void addVariables(OrbVisualization& root) {
  root.addSourceVariable(u"sv");
  root.addDerivedVariable(u"dv");
  root.addExpressionVariable(u"ev");
  root.addMultipleResponseVariable();
  root.addCategoricalDomain(u"cd");
  root.addCategoricalDomainModifier();
  root.addIntervalDomainModifier();
  root.addIntervalDomain(u"id");
}

} // namespace

TEST(Root, KeepsItsChildrenInBands) {
  const NewDocument document(u"visualization");
  OrbVisualization root(document.root());
  root.addStyle();
  root.addGraph(u"g");
  addVariables(root);
  addSources(root);
  EXPECT_EQ(childrenOf(document.root()), sources + variables + "graph#g style");

  // Within a band the order is that of the adds, whatever the family.
  root.addSourceVariable(u"sv2");
  root.addDatabaseSource(u"db2");
  root.addStyle();
  root.addGraph(u"g2");
  EXPECT_EQ(childrenOf(document.root()),
            sources + "databaseSource#db2 " + variables + "sourceVariable#sv2 graph#g graph#g2 style style");
}

TEST(Root, PutsASavFileSourceAtTheVeryEnd) {
  const NewDocument document(u"visualization");
  OrbVisualization root(document.root());
  root.addGraph(u"g");
  root.addSavFileSource();
  root.addGraph(u"g2");
  EXPECT_EQ(childrenOf(document.root()), "graph#g savFileSource graph#g2") << "and no add looks at it";
  root.addSourceVariable(u"v");
  root.addStyle();
  EXPECT_EQ(childrenOf(document.root()), "sourceVariable#v graph#g savFileSource graph#g2 style");
}

TEST(Root, ForgetsTheIdsOfMostFamiliesThatItRemoves) {
  const Parsed parsed(
      "<visualization><intervalDomainModifier id='im'/><multipleResponseVariable id='mr'/><savFileSource id='sf'/>"
      "<categoricalDomainModifier id='cm'/><style id='st'/></visualization>");
  OrbVisualization root(parsed.root());
  addSources(root);
  addVariables(root);
  root.addGraph(u"g");
  const unsigned int stripped =
      root.removeDatabaseSources() + root.removeDelimitedFileSources() + root.removeEmbeddedSources() +
      root.removeStreamingSources() + root.removeUserSources() + root.removeSourceVariables() +
      root.removeDerivedVariables() + root.removeExpressionVariables() + root.removeCategoricalDomains() +
      root.removeIntervalDomains() + root.removeGraphs() + root.removeStyles();
  EXPECT_EQ(stripped, 12U);
  EXPECT_EQ(root.removeSavFileSources(), 1U);
  EXPECT_EQ(root.removeMultipleResponseVariables() + root.removeCategoricalDomainModifiers() +
                root.removeIntervalDomainModifiers(),
            6U);
  EXPECT_EQ(childrenOf(parsed.root()), "");
  for (const XMLCh* id : {u"db", u"df", u"es", u"ss", u"us", u"sv", u"dv", u"ev", u"cd", u"id", u"g", u"st"})
    EXPECT_FALSE(root.doesIdExist(id)) << utf8(id);
  for (const XMLCh* id : {u"im", u"cm", u"mr", u"sf"})
    EXPECT_TRUE(root.doesIdExist(id)) << utf8(id);
}

TEST(Root, RemovesASingleVariableByItsElement) {
  const NewDocument document(u"visualization");
  const NewDocument elsewhere(u"visualization");
  OrbVisualization root(document.root());
  OrbVisualization other(elsewhere.root());
  OrbSourceVariable& first = *root.addSourceVariable(u"1");
  root.addSourceVariable(u"2");
  OrbDerivedVariable& derived = *root.addDerivedVariable(u"3");
  EXPECT_FALSE(other.removeSourceVariable(first)) << "an empty family";
  other.addSourceVariable(u"1");
  EXPECT_FALSE(other.removeSourceVariable(first));
  EXPECT_TRUE(root.removeSourceVariable(first));
  EXPECT_TRUE(root.removeDerivedVariable(derived));
  EXPECT_EQ(childrenOf(document.root()), "sourceVariable#2");
  EXPECT_TRUE(root.doesIdExist(u"1") && root.doesIdExist(u"3")) << "the id stays registered";

  OrbSourceVariable second(root.getSourceVariables().at(0)->getImplementation());
  EXPECT_TRUE(root.removeSourceVariable(second)) << "another wrapper over the same element";
  EXPECT_TRUE(root.getSourceVariables().empty());
}

TEST(Root, LoadsAnyOrderAndRefusesWhatItDoesNotKnow) {
  const std::string xml = "<visualization style=\"s\"><!-- c --><style id=\"s\"/><savFileSource/>text<graph/>"
                          "<intervalDomain/><graph/></visualization>";
  const Parsed parsed(xml);
  OrbVisualization root(parsed.root());
  EXPECT_EQ(childrenOf(parsed.root()), "! style#s savFileSource \" graph intervalDomain graph");
  EXPECT_EQ(root.getGraphs().size(), 2U);
  EXPECT_EQ(root.getStyle(), root.getStyles().at(0));
  EXPECT_EQ(root.getStyleById(u"s"), root.getStyle());
  EXPECT_NE(root.AsUTF8().find("<!-- c -->"), std::string::npos);
  root.initWithChildren(nullptr);
  root.initWithChildren(parsed.root()->getFirstChild());
  root.initWithChildren(parsed.root()->appendChild(parsed.document()->createElement(u"userSource")));
  EXPECT_EQ(root.getUserSources().size(), 1U);
  root.setStyle(*root.addStyle());
  EXPECT_EQ(utf8(parsed.root()->getAttribute(u"style")), "s") << "a style without an id writes nothing";

  const Parsed unknown("<visualization><graph/><bogus a='1'/></visualization>");
  EXPECT_EQ(messageOf([&] { const OrbVisualization refused(unknown.root()); }),
            "Element visualization found unknown child bogus(<visualization><graph/>"
            "<bogus a=\"1\"/></visualization>\n)");
  EXPECT_EQ(unknown.root()->getUserData(u"visualization"), nullptr);
}

TEST(Root, WritesItsVersionAsShortText) {
  const NewDocument document(u"visualization");
  OrbVisualization root(document.root());
  EXPECT_EQ(root.getVersion(), 0.0);
  root.setVersion(2.9);
  EXPECT_EQ(utf8(document.root()->getAttribute(u"version")), "2.9");
  const OrbVisualization made(document.root(), 3.0, u"chart");
  EXPECT_EQ(utf8(document.root()->getAttribute(u"version")), "3");
  EXPECT_EQ(made.getElementById(u"chart"), document.root());
}
