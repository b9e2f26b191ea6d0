// What all wrappers share, and the life of a document.
#include "chartstring.h"
#include "dom.h"
#include "log.h"
#include "orbbaseelement.h"
#include "orbdocument.h"
#include "orbexception.h"
#include "orbgraph.h"
#include "orbsourcevariable.h"
#include "orbuni.h"
#include "orbutility.h"
#include "orbvisualization.h"

#include <gtest/gtest.h>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemoryManager.hpp>

#include <cstring>
#include <new>
#include <optional>
#include <utility>

using test::childrenOf;
using test::NewDocument;
using test::Parsed;
using test::utf8;
using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::XMLPlatformUtils;

namespace {

DOMElement* firstChild(const DOMElement* element) { return element->getFirstElementChild(); }

/// The element as it prints itself. One whose parent is the document begins with a line break.
std::string textOf(const OrbBaseElement& wrapper) {
  std::string text = wrapper.AsUTF8();
  if (text.front() == '\n')
    text.erase(0, 1);
  return text;
}

/// Counts what a document takes.
class CountingMemory : public xercesc::MemoryManager {
public:
  xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }
  void* allocate(XMLSize_t size) override {
    taken += size;
    return ::operator new(size);
  }
  void deallocate(void* memory) override { ::operator delete(memory); }

  XMLSize_t taken = 0;
};

} // namespace

TEST(Frame, WritesAttributesThatXmlAllows) {
  const NewDocument document(u"r");
  OrbBaseElement wrapper(document.root());
  EXPECT_EQ(utf8(wrapper.GetAttribute(u"a")), "");
  for (const XMLCh* value : {u"1", u"2"}) {
    const xercesc::DOMAttr* attribute = wrapper.SetAttribute(u"a", value);
    EXPECT_EQ(attribute, document.root()->getAttributeNode(u"a"));
  }

  const struct {
    const XMLCh* name;
    const XMLCh* value;
  } refused[] = {{u"a", u""}, {u"a", nullptr}, {u"", u"v"}, {nullptr, u"v"}, {u"1a", u"v"}, {u"a b", u"v"}};
  for (const auto& [name, value] : refused) {
    EXPECT_EQ(wrapper.AddAttribute(name, value), nullptr);
    EXPECT_EQ(wrapper.SetAttribute(name, value), nullptr);
  }
  EXPECT_EQ(textOf(wrapper), "<r a=\"2\"/>\n");
  EXPECT_EQ(utf8(wrapper.GetAttribute(nullptr)), "");

  wrapper.SetAttribute(u"p:b", wrapper.GetAttribute(u"a"));
  wrapper.SetAttribute(u"p:b", wrapper.GetAttribute(u"p:b"));
  EXPECT_EQ(textOf(wrapper), "<r a=\"2\" p:b=\"2\"/>\n");
}

TEST(Frame, DoesNotGrowByWritingAnAttributeAgain) {
  const test::Platform platform;
  CountingMemory memory;
  auto* implementation = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS");
  DOMDocument* document = implementation->createDocument(nullptr, u"r", nullptr, &memory);
  OrbSourceVariable variable(document->getDocumentElement());
  const XMLSize_t before = memory.taken;
  for (int i = 0; i < 10'000; ++i)
    variable.setLabel(i % 2 == 0 ? u"one" : u"two");
  EXPECT_LT(memory.taken - before, 10'000U * 50) << "Xerces itself takes some bytes for each value";
  document->release();
}

TEST(Frame, ImportsAttributes) {
  const Parsed parsed(R"(<r a="own"><from a="1" b="" c="&#10;" id="i"/>text</r>)");
  OrbBaseElement wrapper(parsed.root());
  EXPECT_EQ(wrapper.importAttributes(nullptr), 0U);
  EXPECT_EQ(wrapper.importAttributes(parsed.root()->getLastChild()), 0U);
  EXPECT_EQ(wrapper.importAttributes(firstChild(parsed.root())), 4U);
  const std::string imported = R"(<r a="1" c="&#10;" id="i")";
  EXPECT_EQ(textOf(wrapper).substr(0, imported.size()), imported);
  EXPECT_EQ(wrapper.getElementById(u"i"), firstChild(parsed.root())) << "an id is copied and not registered";
  EXPECT_EQ(wrapper.importAttributes(parsed.root()), 3U) << "from the element itself";
  EXPECT_EQ(textOf(wrapper).substr(0, imported.size()), imported);

  const NewDocument other(u"r");
  EXPECT_EQ(OrbBaseElement(other.root()).importAttributes(parsed.root()), 3U);
  EXPECT_EQ(textOf(OrbBaseElement(other.root())), R"(<r a="1" c="&#10;" id="i"/>)"
                                                  "\n");
}

TEST(Frame, LogsAnIdThatIsInUseElsewhere) {
  const Parsed parsed(R"(<r id="root"><a id="x"><b/></a><a id="y"><b/></a><c id="z"><b/></c></r>)");
  DOMElement* a = firstChild(parsed.root());
  DOMElement* otherA = a->getNextElementSibling();
  DOMElement* c = otherA->getNextElementSibling();
  OrbBaseElement inA(firstChild(a));
  OrbBaseElement inOtherA(firstChild(otherA));
  OrbBaseElement inC(firstChild(c));
  OrbBaseElement outside(parsed.document()->createElement(u"d"));
  const std::string begin = "Error -- Orb: Attempting to add an existing ID to an element (";

  const test::Log log;
  inA.addID(u"new");
  inA.addID(u"new");
  inOtherA.addID(u"new");
  EXPECT_EQ(log.messages(), std::vector<std::string>{}) << "its own id, and parents of one name, are no matter";
  inC.addID(u"x");
  outside.addID(u"y");
  inOtherA.addID(u"root");
  EXPECT_EQ(log.messages(),
            (std::vector<std::string>{begin + "x) existing: r--root attempted: c--z", begin + "y) existing: r--root",
                                      begin + "root) existing: #document-- attempted: a--y"}));
  EXPECT_EQ(utf8(inC.GetAttribute(u"id")), "x") << "it is accepted all the same";

  c->removeChild(inC.getImplementation());
  inC.addID(u"of an element without a parent");
  inA.addID(u"of an element without a parent");
  EXPECT_EQ(log.messages().size(), 3U);
}

TEST(Frame, FindsElementsAndWrappersById) {
  const Parsed parsed(R"(<visualization><sourceVariable id="s"/><graph id="g"/></visualization>)");
  OrbDocument document(parsed.document());
  const OrbGraph* graph = document.GetVisualization()->getGraphs().front();
  EXPECT_EQ(graph->getElementById(u"g"), graph->getImplementation());
  EXPECT_TRUE(graph->doesIdExist(u"s"));
  EXPECT_FALSE(graph->doesIdExist(u"S"));
  EXPECT_EQ(graph->getStyleById(u"g"), nullptr) << "it is no style";
  int style = 0;
  graph->getImplementation()->setUserData(OrbUni::_style, &style, nullptr);
  EXPECT_EQ(static_cast<void*>(graph->getStyleById(u"g")), &style);
  EXPECT_EQ(graph->getVisualization(), document.GetVisualization());
  EXPECT_EQ(OrbBaseElement(parsed.document()->createElement(u"a")).getVisualization(), document.GetVisualization());
  const NewDocument other(u"visualization");
  EXPECT_EQ(OrbBaseElement(other.root()).getVisualization(), nullptr);
}

TEST(Frame, ForgetsTheIdThatWasWrittenOver) {
  const Parsed parsed(R"(<r><a id="first"/><b/></r>)");
  OrbBaseElement a(firstChild(parsed.root()));
  OrbBaseElement b(a.getImplementation()->getNextElementSibling());
  a.addID(u"second");
  a.addID(u"third");
  EXPECT_EQ(a.getElementById(u"third"), a.getImplementation());
  // The attributes that are made now may lie where the old ones did.
  b.SetAttribute(u"x", u"first");
  b.SetAttribute(u"y", u"second");
  EXPECT_EQ(a.getElementById(u"first"), nullptr);
  EXPECT_EQ(a.getElementById(u"second"), nullptr);
  a.SetAttribute(u"id", u"plain");
  b.SetAttribute(u"z", u"third");
  EXPECT_EQ(a.getElementById(u"third"), nullptr);
}

TEST(Frame, InsertsBeforeTheFirstFollower) {
  const Parsed parsed("<r>text<!--1--><x/><!--2--><y/><?p?></r>");
  OrbBaseElement wrapper(parsed.root());
  OrbBaseElement x(firstChild(parsed.root()));
  OrbBaseElement y(x.getImplementation()->getNextElementSibling());
  OrbBaseElement elsewhere(parsed.document()->createElement(u"e"));
  OrbBaseElement onNothing(nullptr);
  const auto insert = [&](const XMLCh* name, std::vector<OrbBaseElement*> followers) {
    wrapper.InsertBefore(name == nullptr ? nullptr : parsed.document()->createElement(name), followers);
  };
  insert(u"a", {&y});
  insert(u"b", {nullptr, &y, &elsewhere, &onNothing, &x});
  insert(u"c", {});
  insert(u"d", {&elsewhere});
  insert(nullptr, {&y});
  EXPECT_EQ(childrenOf(parsed.root()), "\" ! b x ! a y \" c d");
}

TEST(Frame, RemovesItsOwnChildElementsOnly) {
  const Parsed parsed("<r><a><b/></a></r>");
  OrbBaseElement root(parsed.root());
  OrbBaseElement a(firstChild(parsed.root()));
  OrbBaseElement b(firstChild(a.getImplementation()));
  OrbBaseElement onNothing(nullptr);
  for (OrbBaseElement* stranger : {static_cast<OrbBaseElement*>(nullptr), &b, &root, &onNothing})
    EXPECT_FALSE(root.removeChildElement(stranger));
  EXPECT_TRUE(root.removeChildElement(&a));
  EXPECT_FALSE(root.removeChildElement(&a));
  EXPECT_EQ(textOf(root), "<r/>\n");
  EXPECT_EQ(textOf(a), "<a>\n\t<b/>\n</a>\n");
}

TEST(Frame, PutsCommentsAheadOfAllChildren) {
  const Parsed parsed("<r>text<a/></r>");
  OrbBaseElement root(parsed.root());
  for (const XMLCh* refused : {static_cast<const XMLCh*>(nullptr), u"", u"--", u"a--b"})
    root.setComment(refused);
  root.setComment(u"one-half");
  root.setComment(u" ");
  EXPECT_EQ(textOf(root), "<r>\n\t<!-- -->\n\t<!--one-half-->text<a/>\n</r>\n");
  OrbBaseElement(nullptr).setComment(u"nowhere");
}

TEST(Frame, RaisesWhatALimitForbids) {
  const NewDocument document(u"r");
  const OrbBaseElement wrapper(document.root());
  wrapper.throwIfChildExists(2, 2, "Axis", "Axis", "Dimension", "file", 1);
  const test::Log log;
  try {
    wrapper.throwIfChildExists(3, 2, "Axis", "Label", "Dimension", "file", 7);
    ADD_FAILURE() << "nothing raised";
  } catch (const OrbException& exception) {
    EXPECT_STREQ(exception.what(), "Can not add a Label to a Dimension because 3 Axis(s) already exist(s).");
    EXPECT_STREQ(exception.file(), "file");
    EXPECT_EQ(exception.line(), 7U);
    EXPECT_EQ(log.messages(), std::vector<std::string>{std::string("Error -- Orb: ") + exception.what()});
  }
}

TEST(Frame, ShowsTheElementInTheMessageWhateverTheEncoding) {
  for (const char* encoding : {"UTF-8", "ISO-8859-1", "UTF-16", "UCS-4", "ISO-10646-UCS-4", "IBM1140"}) {
    const Parsed parsed("<r a='\u00e9'><b>\u00e4</b></r>");
    auto* serializer = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS")->createLSSerializer();
    auto* output = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS")->createLSOutput();
    xercesc::MemBufFormatTarget bytes;
    output->setByteStream(&bytes);
    output->setEncoding(std::u16string(encoding, encoding + std::strlen(encoding)).c_str());
    serializer->write(parsed.document(), output);
    output->release();
    serializer->release();

    const Parsed encoded(std::string(reinterpret_cast<const char*>(bytes.getRawBuffer()), bytes.getLen()));
    EXPECT_EQ(OrbBaseElement(encoded.root()).ChildNotFoundError(u"\u00fc").toUTF8(),
              "Element r found unknown child \u00fc(<r a=\"\u00e9\"><b>\u00e4</b></r>\n)")
        << encoding;
  }
}

TEST(Document, BeginsEmptyWithTheNamespaceOfTheLanguage) {
  OrbDocument document;
  const std::string language = utf8(OrbUni::_namespaceURI).substr(std::strlen("xmlns:"));
  const std::string expected = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<visualization xmlns=\"" + language +
                               "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:schemaLocation=\"" +
                               language + " " + language + "/orbml-2.9.xsd\"/>\n";
  EXPECT_EQ(document.AsUTF8(), expected);
  EXPECT_EQ(document.GetVisualization()->AsUTF8(), expected);
  EXPECT_EQ(language.substr(language.rfind('/')), "/visualization");
  EXPECT_EQ(utf8(document.getImplementation()->getDocumentElement()->getNamespaceURI()), "xmlns:" + language);
  EXPECT_EQ(document.GetVisualization()->getImplementation(), document.getImplementation()->getDocumentElement());
}

TEST(Document, OwnsOnlyWhatItMade) {
  const Parsed parsed(R"(<visualization><graph id="g"/></visualization>)");
  {
    OrbDocument document(parsed.document());
    document.GetVisualization()->addSourceVariable(u"v");
  }
  EXPECT_EQ(childrenOf(parsed.root()), "sourceVariable#v graph#g");
  // The next one binds its own wrappers to the same elements.
  OrbDocument again(parsed.document());
  EXPECT_EQ(again.GetVisualization()->getVisualization(), again.GetVisualization());
  OrbSourceVariable* variable = again.GetVisualization()->getSourceVariables().front();
  variable->setDependsOn(*variable);
  EXPECT_EQ(variable->getDependsOn(), variable);
}

TEST(Document, KeepsThePlatformUpForItselfAlone) {
  ASSERT_EQ(XMLPlatformUtils::fgMemoryManager, nullptr) << "some other test left the platform up";
  {
    std::optional<OrbDocument> first(std::in_place);
    OrbDocument second;
    first->GetVisualization()->addGraph(u"one");
    first.reset();
    second.GetVisualization()->addGraph(u"two");
    EXPECT_NE(second.AsUTF8().find("two"), std::string::npos);
  }
  EXPECT_EQ(XMLPlatformUtils::fgMemoryManager, nullptr);
  EXPECT_THROW(OrbDocument(static_cast<DOMDocument*>(nullptr)), OrbException);
  EXPECT_EQ(XMLPlatformUtils::fgMemoryManager, nullptr) << "a document that failed takes back what it started";

  OrbUtility::Initialize();
  DOMDocument* document = OrbUtility::CreateDocument();
  EXPECT_EQ(utf8(document->getXmlVersion()), "1.0");
  EXPECT_FALSE(document->getXmlStandalone());
  EXPECT_TRUE(document->getStrictErrorChecking());
  document->release();
  OrbUtility::Terminate();
  EXPECT_EQ(XMLPlatformUtils::fgMemoryManager, nullptr);
}
