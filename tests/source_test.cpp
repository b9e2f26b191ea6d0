// Data sources: the shape that they share, what each has beside it, and the rows of an embedded source.
#include "chartstring.h"
#include "dom.h"
#include "orbaggregate.h"
#include "orbdatabasesource.h"
#include "orbdatareduction.h"
#include "orbdelimitedfilesource.h"
#include "orbembeddedsource.h"
#include "orbexception.h"
#include "orbfilter.h"
#include "orbnames.h"
#include "orbrow.h"
#include "orbsavfilesource.h"
#include "orbstreamingsource.h"
#include "orbtypes.h"
#include "orbusersource.h"
#include "raised.h"

#include <gtest/gtest.h>

using test::childrenOf;
using test::messageOf;
using test::NewDocument;
using test::Parsed;
using test::Platform;
using test::utf8;

namespace {

/// What all sources share; `added` is where their children stand after an add of each kind.
template <class Source> void expectSource(const std::string& added) {
  const Platform platform;
  const std::string name = utf8(Source::elementName);
  SCOPED_TRACE(name);
  const Parsed parsed("<" + name + " missing='casewise' filterToMissing='TRUE'><!-- c --><dataReduction id='d'/>" +
                      "<filter id='f'/></" + name + ">");
  Source source(parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(Source::elementName), &source);
  EXPECT_EQ(source.getMissing(), 0);
  EXPECT_FALSE(source.getFilterToMissing());
  EXPECT_TRUE(source.isMissingPresent() && source.isFilterToMissingPresent());
  source.setMissing(static_cast<typename Source::ENUM_missing>(1));
  EXPECT_EQ(utf8(parsed.root()->getAttribute(u"missing")), "pairwise");
  source.setMissing(static_cast<typename Source::ENUM_missing>(2));
  EXPECT_EQ(utf8(parsed.root()->getAttribute(u"missing")), "listwise");
  source.setMissing(Source::missing_unset);
  EXPECT_EQ(source.getMissing(), 2);

  source.addFilter();
  source.addAggregate();
  source.addAggregate();
  source.addDataReduction();
  EXPECT_EQ(childrenOf(parsed.root()), added);
  EXPECT_EQ(source.removeFilters(), 2U);
  EXPECT_EQ(source.getDataReductions().size(), 2U);
  if constexpr (requires { source.getAggregates(); }) {
    EXPECT_EQ(source.getAggregates().size(), 2U);
    EXPECT_EQ(source.removeAggregates(), 2U);
  } else {
    EXPECT_EQ(source.getAggregate()->getImplementation(), parsed.root()->getElementsByTagName(u"aggregate")->item(0));
    EXPECT_EQ(source.removeAggregate(), 2U);
    EXPECT_EQ(source.getAggregate(), nullptr);
  }
  EXPECT_TRUE(source.doesIdExist(u"f")) << "a remove leaves the id registered";

  const Parsed unknown("<" + name + "><bogus/></" + name + ">");
  EXPECT_EQ(messageOf([&] { const Source refused(unknown.root()); }),
            "Element " + name + " found unknown child bogus(<" + name + "><bogus/></" + name + ">\n)");
}

} // namespace

TEST(Sources, ShareOneShape) {
  const std::string aggregatesFirst = "! dataReduction#d aggregate aggregate filter#f filter dataReduction";
  expectSource<OrbDelimitedFileSource>(aggregatesFirst);
  expectSource<OrbDatabaseSource>(aggregatesFirst);
  expectSource<OrbStreamingSource>(aggregatesFirst);
  expectSource<OrbUserSource>(aggregatesFirst);
  expectSource<OrbEmbeddedSource>(aggregatesFirst);
  expectSource<OrbSavFileSource>("! dataReduction#d filter#f filter aggregate aggregate dataReduction");
}

TEST(Sources, WithArgumentsDifferInWhetherTheyReadTheirChildren) {
  const Parsed parsed("<source><aggregate/><filter/><dataReduction/></source>");
  const OrbUserSource blind(parsed.root(), u"u");
  EXPECT_EQ(blind.getAggregate(), nullptr);
  EXPECT_TRUE(blind.getFilters().empty() && blind.getDataReductions().empty());
  EXPECT_EQ(blind.getElementById(u"u"), parsed.root());
  EXPECT_EQ(parsed.root()->getUserData(u"userSource"), &blind);
  EXPECT_NE(OrbUserSource(parsed.root()).getAggregate(), nullptr);

  OrbStreamingSource streaming(parsed.root(), u"s", u"http://host/rows");
  EXPECT_EQ(streaming.getFilters().size(), 1U);
  EXPECT_EQ(streaming.getElementById(u"s"), parsed.root());
  streaming.setUrl(u"");
  EXPECT_EQ(utf8(streaming.getUrl()), "http://host/rows");

  const Parsed unknown("<streamingSource><bogus/></streamingSource>");
  EXPECT_THROW(OrbStreamingSource(unknown.root(), u"s", u"url"), OrbException);
  EXPECT_FALSE(unknown.root()->hasAttributes()) << "the children come before the arguments";
}

TEST(Sources, SpellTheirAttributesAsTheLanguageDoes) {
  const NewDocument document(u"source");
  OrbSavFileSource sav(document.root());
  sav.setOpenAccessDriver(true);
  OrbDelimitedFileSource delimited(document.root());
  delimited.setReplaceInvalidChar(u"?");
  OrbDataReduction reduction(document.root());
  reduction.setMaxRows(4'000'000'000U);
  reduction.setWeightVariableName(u"w");
  EXPECT_NE(sav.AsUTF8().find("<source OpenAccessDriver=\"true\" maxRows=\"4000000000\" replaceInvalidChar=\"?\" "
                              "weightVariableName=\"w\"/>"),
            std::string::npos);
  EXPECT_EQ(reduction.getMaxRows(), 4'000'000'000U);
  reduction.removeMaxRows();
  EXPECT_EQ(reduction.getMaxRows(), 0U);
}

TEST(EmbeddedSource, KeepsItsChildrenInOrder) {
  const NewDocument document(u"embeddedSource");
  OrbEmbeddedSource source(document.root(), u"e");
  source.addRow();
  source.addTypes();
  source.addNames();
  source.addFilter();
  source.addAggregate();
  source.addFilter();
  source.addDataReduction();
  EXPECT_EQ(childrenOf(document.root()), "aggregate filter filter names types row dataReduction");
  EXPECT_EQ(messageOf([&] { source.addNames(); }),
            "Can not add a Names to a EmbeddedSource because 1 Names(s) already exist(s).");
  EXPECT_EQ(messageOf([&] { source.addTypes(); }),
            "Can not add a Types to a EmbeddedSource because 1 Types(s) already exist(s).");
  EXPECT_EQ(source.removeRows() + source.removeNamess() + source.removeTypess() + source.removeFilters(), 5U);
  source.addRow();
  source.addFilter();
  EXPECT_EQ(childrenOf(document.root()), "aggregate dataReduction filter row") << "no add looks at a dataReduction";

  const Parsed parsed("<embeddedSource><types>a</types><types>b</types></embeddedSource>");
  OrbEmbeddedSource two(parsed.root());
  EXPECT_EQ(two.getTypes()->getText().toUTF8(), "a");
  EXPECT_EQ(messageOf([&] { two.addTypes(); }),
            "Can not add a Types to a EmbeddedSource because 2 Types(s) already exist(s).");
}

TEST(EmbeddedSource, PutsANewRowBeforeTheFirstWrapped) {
  const NewDocument document(u"embeddedSource");
  OrbEmbeddedSource source(document.root());
  const auto texts = [](const OrbEmbeddedSource& of) {
    std::string line;
    for (const OrbRow* row : of.getRows())
      line += row->getText().toUTF8();
    return line;
  };
  for (const XMLCh* text : {u"1", u"2", u"3", u"4"})
    source.addRow()->setText(text);
  EXPECT_EQ(texts(source), "1234");
  const OrbEmbeddedSource again(document.root());
  EXPECT_EQ(texts(again), "2341");
}

TEST(Rows, HaveFieldsBetweenSemicolonsAndNoEmptyOnes) {
  const Parsed parsed("<row>a;; b ;</row>");
  OrbRow row(parsed.root());
  EXPECT_EQ(row.getText(0U).toUTF8(), "a");
  EXPECT_EQ(row.getText(1U).toUTF8(), " b ");
  EXPECT_TRUE(row.getText(2U).empty());
  EXPECT_FALSE(row.setText(u"x", 2));
  EXPECT_EQ(row.getText().toUTF8(), "a;; b ;") << "untouched";
  EXPECT_TRUE(row.setText(u"x", 1));
  EXPECT_EQ(row.getText().toUTF8(), "a;x");
  EXPECT_TRUE(row.setText(u"", 0));
  EXPECT_EQ(row.getText().toUTF8(), "x");
  row.setText(u"a;b;c");
  EXPECT_TRUE(row.setText(nullptr, 1));
  EXPECT_EQ(row.getText().toUTF8(), "a;;c");
  EXPECT_EQ(row.getText(1U).toUTF8(), "c");
  row.removeText();
  EXPECT_FALSE(row.setText(u"x", 0));
  EXPECT_EQ(childrenOf(parsed.root()), "");
}
