// The writer: line layout, escapes, markup of every kind of node, encodings, and what a derived printer adds.
#include "chartprinter.h"
#include "domprinter.h"

#include "dom.h"
#include "log.h"

#include <gtest/gtest.h>
#include <xercesc/framework/XMLFormatter.hpp>
#include <xercesc/util/RuntimeException.hpp>
#include <xercesc/util/XMLException.hpp>

#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <vector>

using test::NewDocument;
using test::Parsed;
using test::utf8;
using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::XMLFormatter;

namespace {

const std::string declaration = R"(<?xml version="1.0" encoding="UTF-8"?>)";

template <typename Printer, typename... Arguments> std::string printed(bool printWhiteSpace, const Arguments&... what) {
  std::ostringstream stream;
  Printer printer;
  printer.setPrintWhiteSpace(printWhiteSpace);
  EXPECT_TRUE(printer.Print(what..., stream));
  return stream.str();
}

/// A node without line breaks, and without the line feed that ends every print.
std::string flat(const DOMNode* node, bool declarationOnly = false) {
  std::ostringstream stream;
  EXPECT_TRUE(ChartPrinter().Print(node, stream, declarationOnly));
  std::string text = stream.str();
  EXPECT_EQ(text.back(), '\n');
  text.pop_back();
  return text;
}

/// A document that declares an encoding.
class Declared {
public:
  explicit Declared(const std::string& encoding) {
    const std::string xml = "<?xml version='1.0' encoding='" + encoding + "'?><r/>";
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(), "test");
    source.setEncoding(u"UTF-8"); // whatever is declared
    parser_ = std::make_unique<xercesc::XercesDOMParser>();
    parser_->parse(source);
  }
  DOMDocument* document() const { return parser_->getDocument(); }
  DOMElement* root() const { return document()->getDocumentElement(); }

private:
  test::Platform platform_;
  std::unique_ptr<xercesc::XercesDOMParser> parser_;
};

TEST(Writer, LaysOutLines) {
  const Parsed parsed("<a><label><b/><c>t</c></label><descriptionGroup id='g'><d><x/></d></descriptionGroup>"
                      "<e><f/>text<h/><!--c--></e><i>only</i><j><k/>end</j></a>");
  EXPECT_EQ(printed<DOMPrinter>(true, parsed.document()), declaration + R"(
<a>
	<label>
		<b/>
		<c>t</c>
	</label>
	<descriptionGroup id="g">
		<d>
			<x/>
		</d>
	</descriptionGroup>
	<e>
		<f/>text<h/>
		<!--c-->
	</e>
	<i>only</i>
	<j>
		<k/>end</j>
</a>
)");
  EXPECT_EQ(printed<ChartPrinter>(true, parsed.document()), declaration + R"(
<a>
	<label><b/><c>t</c></label>
	<descriptionGroup id="g"><d>
			<x/>
		</d></descriptionGroup>
	<e>
		<f/>text<h/>
		<!--c-->
	</e>
	<i>only</i>
	<j>
		<k/>end</j>
</a>
)");
  const std::string onOneLine =
      declaration + "<a><label><b/><c>t</c></label><descriptionGroup id=\"g\"><d><x/></d></descriptionGroup>"
                    "<e><f/>text<h/><!--c--></e><i>only</i><j><k/>end</j></a>\n";
  EXPECT_EQ(printed<DOMPrinter>(false, parsed.document()), onOneLine);
  EXPECT_EQ(printed<ChartPrinter>(false, parsed.document()), onOneLine);
}

TEST(Writer, LaysOutPartsOfADocument) {
  const Parsed parsed("<!--top--><a><label><b/></label>text<c><d/></c></a>");
  const auto print = [](DOMPrinter&& printer, const DOMNode* node) {
    std::ostringstream stream;
    printer.setPrintWhiteSpace(true);
    printer.IncrementIndent();
    EXPECT_TRUE(printer.Print(node, stream, false));
    return stream.str();
  };
  const DOMNode* label = parsed.root()->getFirstChild();
  const DOMNode* afterText = parsed.root()->getLastChild();
  EXPECT_EQ(print(ChartPrinter(), label), "\n\t<label><b/></label>\n");
  EXPECT_EQ(print(ChartPrinter(), label->getFirstChild()), "<b/>\n");
  EXPECT_EQ(print(DOMPrinter(), label->getFirstChild()), "\n\t<b/>\n");
  EXPECT_EQ(print(ChartPrinter(), afterText), "<c>\n\t\t<d/>\n\t</c>\n");
  EXPECT_EQ(print(ChartPrinter(), parsed.document()->getFirstChild()), "\n\t<!--top-->\n");

  DOMElement* detached = parsed.document()->createElement(u"e");
  EXPECT_EQ(print(DOMPrinter(), detached), "\n\t<e/>\n");
  EXPECT_EQ(print(ChartPrinter(), detached), "<e/>\n");
}

TEST(Writer, EscapesValuesAndTexts) {
  const struct {
    const XMLCh* value;
    const char* inAttribute;
    const char* inText;
  } cases[] = {
      {u"&<>\"'", "&amp;&lt;&gt;&quot;&apos;", "&amp;&lt;&gt;\"'"},
      {u"\na\n\nb\n", "&#10;a&#10;&#10;b&#10;", "\na\n\nb\n"},
      {u"\t\r", "\t\r", "\t&#xD;"},
      {u"&amp;&#10;", "&amp;amp;&amp;#10;", "&amp;amp;&amp;#10;"},
      {u"\u00e9\u20ac\uff01\U0001F600 ]]>", "\u00e9\u20ac\uff01\U0001F600 ]]&gt;",
       "\u00e9\u20ac\uff01\U0001F600 ]]&gt;"},
      {u"", "", ""},
  };
  const NewDocument holder(u"r");
  DOMElement* element = holder.root();
  DOMNode* text = element->appendChild(holder.document()->createTextNode(u""));
  for (const auto& [value, inAttribute, inText] : cases) {
    element->setAttribute(u"v", value);
    text->setNodeValue(value);
    EXPECT_EQ(flat(element), std::string("<r v=\"") + inAttribute + "\">" + inText + "</r>");
  }
}

TEST(Writer, EscapesControlCharactersOfVersion11) {
  const XMLCh value[] = u"\x01\t\x1f\x7f\u0080\u0085\u009f\u00a0";
  const NewDocument holder(u"r");
  holder.document()->setXmlVersion(u"1.1");
  holder.root()->setAttribute(u"v", value);
  holder.root()->appendChild(holder.document()->createTextNode(value));
  const std::string escaped = "&#x1;\t&#x1F;&#x7F;&#x80;\u0085&#x9F;\u00a0";
  EXPECT_EQ(flat(holder.document()),
            R"(<?xml version="1.1" encoding="UTF-8"?><r v=")" + escaped + "\">" + escaped + "</r>");
}

TEST(Writer, JoinsTheTextsOfAnAttribute) {
  const Parsed parsed("<!DOCTYPE r [<!ENTITY e 'two'>]><r v='one &e; three'/>");
  DOMNode* attribute = parsed.root()->getAttributes()->item(0);
  attribute->appendChild(parsed.document()->createTextNode(u"!"));
  parsed.root()->setAttributeNode(parsed.document()->createAttribute(u"w"));
  EXPECT_EQ(flat(parsed.root()), R"(<r v="one two three!" w=""/>)");
}

TEST(Writer, WritesEveryKindOfNode) {
  const std::string body = "<!DOCTYPE r[<!ENTITY e \"x\">]><!--top--><?empty?><?target some data?>"
                           "<r>&e;<![CDATA[<&>'\"]]><!--<&>--><?in <&>?></r>";
  EXPECT_EQ(flat(Parsed(body).document()), declaration + body);
  EXPECT_EQ(printed<DOMPrinter>(true, Parsed(body).document()),
            declaration + "\n<!DOCTYPE r[<!ENTITY e \"x\">]>\n<!--top--><?empty?><?target some data?>\n"
                          "<r>&e;\n\t<![CDATA[<&>'\"]]>\n\t<!--<&>--><?in <&>?>\n</r>\n");
}

TEST(Writer, WritesDocumentTypesAndEntities) {
  const struct {
    const XMLCh* publicId;
    const XMLCh* systemId;
    const char* printed;
  } cases[] = {
      {nullptr, nullptr, "<!DOCTYPE r>"},
      {nullptr, u"s", "<!DOCTYPE r SYSTEM \"s\">"},
      {u"p", nullptr, "<!DOCTYPE r PUBLIC \"p\">"},
      {u"p", u"s", "<!DOCTYPE r PUBLIC \"p\" \"s\">"},
  };
  const test::Platform platform;
  auto* implementation = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS");
  for (const auto& [publicId, systemId, expected] : cases) {
    auto* type = implementation->createDocumentType(u"r", publicId, systemId);
    DOMDocument* document = implementation->createDocument(nullptr, u"r", type);
    EXPECT_EQ(flat(document), declaration + expected + "<r/>");
    document->release();
  }

  const Parsed parsed("<!DOCTYPE r [<!NOTATION n SYSTEM 'x'><!ENTITY a PUBLIC 'p' 's' NDATA n><!ENTITY b 'in'>]><r/>");
  const auto* entities = parsed.document()->getDoctype()->getEntities();
  EXPECT_EQ(flat(entities->getNamedItem(u"a")), "<!ENTITY aPUBLIC \"p\"SYSTEM \"s\"NDATA \"n\">");
  EXPECT_EQ(flat(entities->getNamedItem(u"b")), "<!ENTITY b>");
}

TEST(Writer, WritesDeclarations) {
  const Parsed parsed("<r><c/></r>");
  DOMDocument* document = parsed.document();
  EXPECT_EQ(document->getXmlVersion(), nullptr) << "then 1.0 is written";
  EXPECT_EQ(flat(document, true), declaration);
  EXPECT_EQ(flat(document, false), declaration + "<r><c/></r>");
  EXPECT_EQ(flat(parsed.root(), true), "<r><c/></r>");
  document->setXmlStandalone(true);
  EXPECT_EQ(flat(document, true), R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)");
}

TEST(Writer, RefusesWhatHasNoText) {
  const Parsed parsed("<r a='1'/>");
  std::ostringstream stream;
  ChartPrinter printer;
  EXPECT_FALSE(printer.Print(static_cast<DOMDocument*>(nullptr), stream));
  EXPECT_FALSE(printer.Print(static_cast<DOMNode*>(nullptr), stream, false));
  auto* type =
      xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS")->createDocumentType(u"r", nullptr, nullptr);
  EXPECT_FALSE(printer.Print(type, stream, false)) << "it has no owner document";
  type->release();
  EXPECT_EQ(&printer.outputNode(stream, parsed.root(), false), &stream);
  EXPECT_EQ(stream.str(), "") << "outside of a Print there is no walk";

  testing::internal::CaptureStderr();
  EXPECT_EQ(flat(parsed.root()->getAttributeNode(u"a")), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Unrecognized node type = 2\n");
}

TEST(Writer, PrintsWhatItPrintedAgain) {
  const std::string body = "<r a=\"&lt;&#10;&apos;\"><label>a &amp; b<b/> </label><c><!--x--><d>\u00e9</d></c></r>";
  const Parsed parsed(body);
  const std::string once = printed<ChartPrinter>(false, parsed.document());
  EXPECT_EQ(once, declaration + body + "\n");
  EXPECT_EQ(printed<ChartPrinter>(false, Parsed(once).document()), once);
  // Printed over many lines, a document has the lines as texts, which a further print leaves alone.
  const std::string inLines = printed<ChartPrinter>(true, parsed.document());
  EXPECT_EQ(printed<ChartPrinter>(true, Parsed(inLines).document()), inLines);
}

TEST(Writer, LeavesOutWhatTheEncodingCannotHold) {
  const struct {
    const char* encoding;
    const XMLCh* text;
    const XMLCh* kept;
    const char* lost; // the first that is
  } cases[] = {
      {"UTF-8",
       u"a\xd800"
       u"b\xdc00"
       u"c\U0001F600\xd800",
       u"abc\U0001F600", "D800"},
      {"UTF-16",
       u"\xdc00\xd800"
       u"a",
       u"a", "DC00"},
      {"ISO-8859-1", u"\u00e9\u20ac\U0001F600x\xd800", u"\u00e9x", "20AC"},
      {"US-ASCII", u"\u00e9\u20ac", u"", "E9"},
      {"windows-1252", u"\u20ac\u3042\U00010041\uff02\uff1cx", u"\u20acx", "3042"},
      {"Shift_JIS", u"\u3042\uff1c\u00e9x\U000D0000", u"\u3042\uff1cx", "E9"},
      {"ISO-2022-JP", u"a\x1b\u3042\x0e\u00e9x", u"a\u3042x", "1B"},
      {"GB18030", u"\u00e9\u3042\U0010FFFD\xd800", u"\u00e9\u3042\U0010FFFD", "D800"},
      {"ISO-8859-2", u"\U0001F600\u0111", u"\u0111", "1F600"},
  };
  for (const auto& [encoding, text, kept, lost] : cases) {
    SCOPED_TRACE(encoding);
    const Declared encoded(encoding);
    DOMElement* element = encoded.document()->createElement(u"e");
    encoded.root()->appendChild(element);
    element->setAttribute(u"v", text);
    element->appendChild(encoded.document()->createTextNode(text));
    element->appendChild(encoded.document()->createComment(text));
    element->appendChild(encoded.document()->createElement(u"after"));

    const test::Log log;
    std::string bytes = flat(encoded.document());
    const std::vector<std::string> messages = log.messages();
    ASSERT_EQ(messages.size(), 3u) << "one for each piece";
    EXPECT_NE(messages[0].find(std::string("char 0x") + lost + " is"), std::string::npos) << messages[0];
    const Parsed again(bytes);
    const auto* read = static_cast<DOMElement*>(again.root()->getFirstChild());
    EXPECT_EQ(utf8(read->getAttribute(u"v")), utf8(kept));
    EXPECT_EQ(utf8(read->getTextContent()), utf8(kept));
    EXPECT_EQ(utf8(read->getLastChild()->getNodeName()), "after");
  }
}

TEST(Writer, KeepsPairsTogetherWhereItsBufferEnds) {
  std::u16string pairs;
  for (unsigned int i = 0; i < 30000; ++i)
    pairs += u"\U0001F600";
  const NewDocument holder(u"r");
  for (const std::u16string& value : {u"<" + pairs, u"\u00e9x" + pairs, std::u16string(50000, u'&')}) {
    holder.root()->setAttribute(u"v", value.c_str());
    const Parsed again(flat(holder.document()));
    EXPECT_TRUE(again.root()->getAttribute(u"v") == value);
  }
}

TEST(Writer, LetsTheExceptionOfAnUnknownEncodingPass) {
  const Declared unknown("nonsense");
  const test::Log log;
  std::ostringstream stream;
  ChartPrinter printer;
  EXPECT_THROW(printer.Print(unknown.document(), stream), xercesc::XMLException);
  EXPECT_EQ(stream.str(), "");
  EXPECT_EQ(log.messages().size(), 0u);
  EXPECT_TRUE(printer.Print(Parsed("<r/>").document(), stream)) << "and the printer is none the worse";
}

TEST(Writer, PrintsAMillionNestedElements) {
  constexpr unsigned int levels = 1000000;
  const NewDocument holder(u"r");
  holder.nest(holder.root(), u"e", levels);
  const std::string text = flat(holder.document());
  EXPECT_EQ(text.size(), declaration.size() + std::string("<r></r>").size() +
                             (levels - 1) * std::string("<e></e>").size() + std::string("<e/>").size());
  EXPECT_EQ(text.substr(text.size() - 12), "</e></e></r>");
}

/// Marks where each of its calls falls.
class Marking : public ChartPrinter {
public:
  void beginNode(XMLFormatter& formatter, const DOMNode* node) override {
    outputString(formatter, u"{");
    ChartPrinter::beginNode(formatter, node);
    outputString(formatter, node->getNodeName(), 1);
    // The setting must not last.
    formatter << XMLFormatter::StdEscapes << u"<";
  }
  void endNode(XMLFormatter& formatter, const DOMNode* node) override {
    ChartPrinter::endNode(formatter, node);
    outputString(formatter, u"<}");
  }
  void beginLine(XMLFormatter& formatter) override {
    outputString(formatter, u"|");
    ChartPrinter::beginLine(formatter);
  }
};

TEST(Writer, WritesWhatADerivedPrinterAddsInItsPlace) {
  const Parsed parsed("<!DOCTYPE r><r a='1'>t<b/><c><d/><!--x--></c></r>");
  EXPECT_EQ(printed<Marking>(true, parsed.document()), declaration + R"(|
<!DOCTYPE r>{|
r&lt;<r a="1">t{b&lt;<b/>{|
	c&lt;<c>{|
		d&lt;<d/>{|
		#&lt;<!--x-->|
	<}</c>|
<}</r>
)");
}

/// Walks a node of its own before each end.
class Repeating : public DOMPrinter {
public:
  explicit Repeating(const DOMNode* node) : node_(node) {}
  void endNode(XMLFormatter& formatter, const DOMNode*) override {
    outputString(formatter, u"[");
    outputNode(std::cout, node_, false);
    outputString(formatter, u"]");
  }

private:
  const DOMNode* node_;
};

TEST(Writer, WalksWithinAWalk) {
  const Parsed parsed("<r>t<a>x</a></r>");
  std::ostringstream stream;
  Repeating printer(parsed.document()->createTextNode(u"<"));
  EXPECT_TRUE(printer.Print(parsed.root(), stream, false));
  EXPECT_EQ(stream.str(), "<r>t<a>x[&lt;]</a>[&lt;]</r>\n");
}

/// Fails at every element named b.
template <typename Exception> class Failing : public ChartPrinter {
public:
  void beginNode(XMLFormatter& formatter, const DOMNode* node) override {
    ChartPrinter::beginNode(formatter, node);
    if (isFailing && utf8(node->getNodeName()) == "b")
      fail();
  }
  bool isFailing = true;

private:
  [[noreturn]] static void fail();
};

template <> void Failing<xercesc::XMLException>::fail() {
  throw xercesc::RuntimeException(__FILE__, __LINE__, xercesc::XMLExcepts::Trans_Unrepresentable);
}
template <> void Failing<std::runtime_error>::fail() { throw std::runtime_error("b"); }

TEST(Writer, GoesOnAfterAnXmlExceptionOfADerivedPrinter) {
  const Parsed parsed("<r><b/><c/></r>");
  const test::Log log;
  EXPECT_EQ(printed<Failing<xercesc::XMLException>>(false, parsed.document()), declaration + "<r><b/><c/></r>\n");
  EXPECT_EQ(log.messages().size(), 1u);
}

/// Where nothing can be written.
class FullBuffer : public std::streambuf {
  int_type overflow(int_type) override {
    throw xercesc::RuntimeException(__FILE__, __LINE__, xercesc::XMLExcepts::File_CouldNotWriteToFile);
  }
};

TEST(Writer, ReportsAnXmlExceptionOfTheStream) {
  const Parsed parsed("<r><c/></r>");
  FullBuffer buffer;
  std::ostream stream(&buffer);
  stream.exceptions(std::ios::badbit);
  const test::Log log;
  EXPECT_FALSE(ChartPrinter().Print(parsed.document(), stream));
  EXPECT_EQ(log.messages().size(), 1u);
}

TEST(Writer, StartsAfreshAfterAnyOtherException) {
  const Parsed parsed("<r><a><b/></a></r>");
  Failing<std::runtime_error> printer;
  printer.setPrintWhiteSpace(true);
  std::ostringstream stream;
  EXPECT_THROW(printer.Print(parsed.document(), stream), std::runtime_error);
  stream.str("");
  printer.outputNode(stream, parsed.root(), false);
  EXPECT_EQ(stream.str(), "");
  printer.isFailing = false;
  EXPECT_TRUE(printer.Print(parsed.document(), stream));
  EXPECT_EQ(stream.str(), declaration + "\n<r>\n\t<a>\n\t\t<b/>\n\t</a>\n</r>\n");
}

/// Writes texts to the formatter ahead of every node.
class Texts : public DOMPrinter {
public:
  void beginNode(XMLFormatter& formatter, const DOMNode*) override {
    outputString(formatter, nullptr);
    outputString(formatter, nullptr, 3);
    outputString(formatter, u"abc", 0);
    outputString(formatter, u"abc", 2);
    outputString(formatter, u"\U0001F600", 1);
    outputString(formatter, u"<\U0001F600\xdc00\xd800");
    formatter << XMLFormatter::CharEscapes;
    outputString(formatter, u"<");
  }
};

TEST(Writer, WritesStringsByTheSettingsOfTheFormatter) {
  const Parsed parsed("<r/>");
  const test::Log log;
  EXPECT_EQ(printed<Texts>(false, parsed.document()), declaration + "ab<\U0001F600&lt;<r/>\n");
  EXPECT_EQ(log.messages().size(), 2u);

  std::ostringstream stream;
  DOMPrinter printer;
  printer.outputString(stream, nullptr);
  printer.outputString(stream, u"<\u00e9>");
  EXPECT_EQ(stream.str(), "<\u00e9>");
}

TEST(Writer, NeverIndentsBelowZero) {
  const Parsed parsed("<r><a/></r>");
  std::ostringstream stream;
  DOMPrinter printer;
  printer.setPrintWhiteSpace(true);
  printer.DecrementIndent();
  EXPECT_TRUE(printer.Print(parsed.root(), stream, false));
  EXPECT_EQ(stream.str(), "\n<r>\n\t<a/>\n</r>\n");
}

} // namespace
