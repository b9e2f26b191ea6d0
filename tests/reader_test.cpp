// From a file or a text to a chart: what comes out, and what is said of one that cannot be read.
#include "chartlanguage.h"
#include "chartprinter.h"
#include "chartreader.h"
#include "dom.h"
#include "log.h"
#include "orbdocument.h"
#include "orbsourcevariable.h"
#include "orbvisualization.h"
#include "raised.h"
#include "smallstack.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

using test::messageOf;
using test::utf8;
using xercesc::DOMDocument;
using xercesc::DOMNode;

namespace {

std::string readingOf(const std::string& xml) {
  return messageOf([&] { ChartReader::readText(xml, "t"); });
}
std::string readingOfFile(const std::string& path) {
  return messageOf([&] { ChartReader::readFile(path); });
}

/// A folder that goes with what the test put into it.
class Folder {
public:
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "orbchartXXXXXX").string();
    path_ = mkdtemp(name.data());
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { std::filesystem::remove_all(path_); }

  std::string path() const { return path_; }
  std::string file(const std::string& name, const std::string& content) const {
    std::ofstream(path_ / name, std::ios::binary) << content;
    return path_ / name;
  }

private:
  std::filesystem::path path_;
};

std::string contentOf(const std::filesystem::path& file) {
  std::stringstream content;
  content << std::ifstream(file, std::ios::binary).rdbuf();
  return content.str();
}

std::string repeated(const std::string& text, unsigned int count) {
  std::string whole;
  whole.reserve(text.size() * count);
  for (; count != 0; --count)
    whole += text;
  return whole;
}

std::string joined(std::initializer_list<std::string_view> parts) {
  std::string whole;
  for (const std::string_view part : parts)
    whole += part;
  return whole;
}

/// The text as UTF-16, with a mark of its byte order.
std::string utf16(const std::u16string& text, bool littleEndian) {
  std::string bytes;
  for (const char16_t unit : u'\xFEFF' + text) {
    const char high = static_cast<char>(unit >> 8U);
    const char low = static_cast<char>(unit & 0xFFU);
    bytes += littleEndian ? low : high;
    bytes += littleEndian ? high : low;
  }
  return bytes;
}

std::string printed(const DOMDocument* document) {
  std::ostringstream stream;
  ChartPrinter().Print(document, stream);
  return stream.str();
}

/// The first node at which the links of a tree are not those of a tree, or an `id` is not marked; empty for none.
std::string wrongLinkIn(const DOMNode* parent) {
  const DOMNode* before = nullptr;
  for (const DOMNode* child = parent->getFirstChild(); child != nullptr; child = child->getNextSibling()) {
    if (child->getParentNode() != parent || child->getPreviousSibling() != before)
      return utf8(child->getNodeName());
    const auto* attributes = child->getAttributes();
    for (XMLSize_t i = 0; attributes != nullptr && i < attributes->getLength(); ++i) {
      const auto* attribute = static_cast<xercesc::DOMAttr*>(attributes->item(i));
      if (attribute->getOwnerElement() != child || attribute->getFirstChild()->getParentNode() != attribute ||
          attribute->isId() != (utf8(attribute->getName()) == "id"))
        return utf8(attribute->getName());
    }
    if (std::string below = wrongLinkIn(child); !below.empty())
      return below;
    before = child;
  }
  return parent->getLastChild() == before ? "" : utf8(parent->getNodeName());
}

/// What a host with a parser of its own gets of a text: whether it is loaded.
bool isLoadedByHand(const std::string& xml) {
  const test::Parsed parsed(xml);
  return messageOf([&] { const OrbDocument document(parsed.document()); }) == "nothing raised";
}

} // namespace

TEST(Reader, GivesADocumentThatOwnsItsDomAndFindsAnyId) {
  std::unique_ptr<OrbDocument> document;
  {
    const Folder folder;
    document = ChartReader::readFile(folder.file(
        "odd \xff name", "<?xml version='1.0' encoding='ISO-8859-1'?><visualization id='root'>"
                         "<sourceVariable dependsOn='x:y' id='1 odd  \xe9&#9;&lt;' xml:id='no'/>"
                         "<sourceVariable x='no' dependsOn='1 odd  \xe9&#9;&lt;' id='x:y'/></visualization>"));
  }
  const auto variables = document->GetVisualization()->getSourceVariables();
  ASSERT_EQ(variables.size(), 2U);
  EXPECT_EQ(variables[0]->getDependsOn(), variables[1]);
  EXPECT_EQ(variables[1]->getDependsOn(), variables[0]);
  const DOMDocument* dom = document->getImplementation();
  EXPECT_EQ(dom->getElementById(u"root"), dom->getDocumentElement());
  EXPECT_EQ(dom->getElementById(u"no"), nullptr);
  variables[0]->setId(u"new");
  EXPECT_EQ(dom->getElementById(u"new"), variables[0]->getImplementation());
  EXPECT_EQ(variables[1]->getDependsOn(), nullptr);
  EXPECT_NE(document->AsUTF8().find("encoding=\"ISO-8859-1\""), std::string::npos);
}

TEST(Reader, BuildsWhatAPlainParserBuilds) {
  std::map<std::string, std::string> texts{
      {"nodes", "<?p q?>\n<!--a--><visualization a:b='1' xmlns:a='u' xmlns='v'>t<!--c-->&amp;<?c d?><![CDATA[<e>]]>f"
                "<embeddedSource id='s' missing=''>\r\n<row/>\r<row>1;&#65;&lt;<![CDATA[]]>2</row><row><!--g--></row>"
                "<row><![CDATA[x]]></row></embeddedSource>"
                "<extension id='e' x='a&#10;\n\t&quot;b'><y:z id='z'/>\xf0\x9f\x98\x80</extension></visualization>"
                "<!--h--><?i?>\n"},
      {"long", "<visualization><embeddedSource><row>" + repeated("long;\xc3\xa9&amp;", 300'000) +
                   "</row></embeddedSource></visualization>"},
      {"utf-16",
       utf16(u"<?xml version='1.0' encoding='UTF-16' standalone='yes'?><visualization>\u20ac</visualization>", true)},
      {"1.1", "<?xml version='1.1'?><visualization name='\xc2\x85'>&#1;</visualization>"},
      {"another root", "\xef\xbb\xbf<chart><graph/></chart>"}};
  for (const auto& entry : std::filesystem::directory_iterator(ORBCHART_SOURCE_DIR "/examples/expected")) {
    if (entry.path().extension() == ".xml")
      texts[entry.path().filename()] = contentOf(entry.path());
  }
  EXPECT_GT(texts.size(), 5U);
  for (const auto& [name, text] : texts) {
    const std::unique_ptr<OrbDocument> document = ChartReader::readText(text, name);
    const test::Parsed parsed(text);
    EXPECT_TRUE(document->getImplementation()->isEqualNode(parsed.document())) << name;
    EXPECT_EQ(printed(document->getImplementation()), printed(parsed.document())) << name;
    EXPECT_EQ(wrongLinkIn(document->getImplementation()), "") << name;
    const OrbDocument byHand(parsed.document());
    EXPECT_EQ(document->AsUTF8(), byHand.AsUTF8()) << name;
  }
}

TEST(Reader, NamesThePlaceOfWhatIsNotWellFormed) {
  const std::string malformed = "not well formed: ";
  const std::map<std::string, std::string> messages{
      {"", "1:1: the document is empty"},
      {"\n ", "2:2: " + malformed + "the root element should stand here"},
      {"hello", "1:1: " + malformed + "the root element should stand here"},
      {"<visualization>\n<graph>\n</visualization>", "3:3: " + malformed + "expected end of tag 'graph'"},
      {"<visualization/>\n<graph/>", "2:1: " + malformed + "comment or processing instruction expected"},
      {"<visualization>\n \n<graph>",
       "3:8: " + malformed + "input ended before all started tags were ended; last tag started is 'graph'"},
      {"<visualization>\r\n<graph id='a' id='b'/></visualization>",
       "2:18: " + malformed + "attribute 'id' is already specified for element 'graph'"},
      {"<visualization>\r&none;</visualization>", "2:7: " + malformed + "entity 'none' not found"},
      {"<?xml version='2.0'?><visualization/>", "1:20: " + malformed + "unsupported XML version '2.0'"},
      {std::string("<visualization>\n a\0</visualization>", 34), "2:4: " + malformed + "invalid character 0x0"},
      {std::string(1000, '\0'), "1:1: " + malformed + "the root element should stand here"},
      {"<visualization>" + repeated("x", 200'000) + "<</visualization>",
       "1:200017: " + malformed + "element name expected"},
  };
  for (const auto& [xml, message] : messages) {
    const test::Log log;
    EXPECT_EQ(readingOf(xml), "t:" + message);
    EXPECT_EQ(log.messages(), std::vector<std::string>{"Error -- Orb: t:" + message});
  }
}

TEST(Reader, NamesThePlaceOfWhatIsNotInItsEncoding) {
  const std::string other = "not in the encoding that it declares";
  const std::string noUtf8 = other + ": the bytes here are not UTF-8";
  const std::string lines = repeated("\xc3\xa9\r\n\xf0\x9f\x98\x80\r", 30'000);
  const std::map<std::string, std::string> messages{
      {"<visualization>\n\xe9</visualization>", "2:1: " + noUtf8},
      {"<visualization>" + lines + "\xf0\x9f\x98\x80 \xc0\xaf</visualization>", "60001:4: " + noUtf8},
      {"<visualization>" + lines + "\xed\xa0\x80</visualization>", "60001:1: " + noUtf8},
      {"<visualization>\n<graph/>\xe2\x82", "2:9: " + noUtf8},
      {"<visualization/>\n\xe2\x82", "2:1: " + noUtf8},
      {"<visualization/>\xff", "1:17: " + noUtf8},
      {"\xef\xbb\xbf<visualization/>\xff", "1:17: " + noUtf8},
      {"\x89PNG\r\n\x1a\n", "1:1: " + noUtf8},
      {"<?xml version='1.0' encoding='UTF-16'?>\n<visualization/>", "1:40: " + other},
      {utf16(u"<?xml version='1.0' encoding='UTF-8'?><visualization/>", true),
       "1:1: " + other + ": its characters are of two bytes"},
      {"<?xml version='1.0' encoding='US-ASCII'?>\n<visualization name='\xc3\xa9'/>",
       "2:22: " + other + ": char 0xC3 is not representable in 'US-ASCII' encoding"},
      {"<?xml version='1.0' encoding='nonsense'?><visualization/>",
       "1:42: the encoding that it declares is not known: unable to create converter for 'NONSENSE' encoding"},
      {utf16(u"<visualization>\n\xd800</visualization>", false),
       "2:2: not well formed: leading surrogate character is not followed by a legal second character"},
  };
  for (const auto& [xml, message] : messages)
    EXPECT_EQ(readingOf(xml), "t:" + message) << xml.substr(0, 60);
  EXPECT_EQ(readingOf(utf16(u"<visualization/>", false)), "nothing raised");
  EXPECT_EQ(readingOf("<?xml version='1.5'?><visualization/>"), "nothing raised");
  EXPECT_EQ(readingOf("<?xml version='1.0' encoding='UTF-7'?><visualization/>"), "nothing raised");
}

TEST(Reader, NamesThePlaceOfAnUnknownElement) {
  const std::map<std::string, std::string> messages{
      {"<?xml version='1.0'?>\n<!--c-->\n<?p?>\n<visualization>\n\t<graph\n id='g'>&lt;\n  <poin\n a='b'\n/></graph>",
       R"(7:3: unknown element "poin" under graph; did you mean "point"?)"},
      {"<visualization>\xf0\x9f\x98\x80<![CDATA[\n]]><graph/><grpah/></visualization>",
       R"(2:12: unknown element "grpah" under visualization; did you mean "graph"?)"},
      {"<chart><graph/>\n<nonsense/></chart>", R"(2:1: unknown element "nonsense" under chart)"},
      {"<visualization><embeddedSource><row/><row><a/></row></embeddedSource>\n<row/></visualization>",
       R"(2:1: unknown element "row" under visualization)"},
  };
  for (const auto& [xml, message] : messages)
    EXPECT_EQ(readingOf(xml), "t:" + message);
}

TEST(Reader, RefusesTheChildrenThatALoadRefuses) {
  const test::Platform platform; // starting it takes longer than all else
  std::vector<ChartLanguage::Element> elements{ChartLanguage::root()};
  // The tags before and after the content of each element, from the root on.
  std::vector<std::pair<std::string, std::string>> tags{{"<visualization>", "</visualization>"}};
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const auto [before, after] = tags[i];
    std::vector<std::string> names{"bad", "graph", "style"};
    for (const ChartLanguage::Child& child : elements[i].children()) {
      const std::string name = child.element().name();
      names.push_back(name);
      if (!child.isLoaded() || std::find(elements.begin(), elements.end(), child.element()) != elements.end())
        continue;
      elements.push_back(child.element());
      tags.emplace_back(joined({before, "<", name, ">"}), joined({"</", name, ">", after}));
    }
    for (const std::string& name : names) {
      const std::string xml = joined({before, "<", name, "/>", after});
      EXPECT_EQ(readingOf(xml) == "nothing raised", isLoadedByHand(xml)) << xml;
    }
  }
  EXPECT_GT(elements.size(), 150U);
}

TEST(Reader, RefusesADocumentTypeBeforeAnythingOfItIsRead) {
  const Folder folder;
  const std::string outside = folder.file("outside", "<!ENTITY e 'outside'>");
  const int watch = inotify_init1(IN_NONBLOCK);
  ASSERT_NE(inotify_add_watch(watch, outside.c_str(), IN_OPEN), -1);
  const std::string bomb = "<!ENTITY a0 'ha'>" + [] {
    std::string levels;
    for (int level = 1; level < 40; ++level)
      levels +=
          "<!ENTITY a" + std::to_string(level) + " '" + repeated("&a" + std::to_string(level - 1) + ";", 10) + "'>";
    return levels;
  }();
  const std::string subsets[] = {"[" + bomb + "]",
                                 "SYSTEM '" + outside + "'",
                                 "PUBLIC 'p' '" + outside + "' []",
                                 "[<!ENTITY % p SYSTEM '" + outside + "'>%p;]",
                                 "[<!ENTITY a39 SYSTEM 'file://" + outside + "'>]",
                                 ""};
  for (const std::string& subset : subsets) {
    EXPECT_EQ(readingOf("<!--c-->\n <!DOCTYPE\nvisualization " + subset + "><visualization name='&a39;'>&a39;"),
              "t:2:2: a document type declaration (DOCTYPE) is not allowed in a chart");
  }
  EXPECT_EQ(readingOf("<visualization xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                      "xsi:noNamespaceSchemaLocation='" +
                      outside + "' xsi:schemaLocation='u " + outside +
                      "'><extension><xi:include xmlns:xi='http://www.w3.org/2001/XInclude' href='" + outside +
                      "'/></extension></visualization>"),
            "nothing raised");
  char event = 0;
  EXPECT_EQ(read(watch, &event, 1), -1) << "nothing outside was opened";
  close(watch);
}

TEST(Reader, SaysOfAFileThatCannotBeReadWhatIsWrong) {
  const Folder folder;
  const std::string path = folder.path();
  EXPECT_EQ(readingOfFile(path), path + ":1:1: this is a folder and no file");
  EXPECT_EQ(readingOfFile(path + "/none"), path + "/none:1:1: there is no such file");
  EXPECT_EQ(readingOfFile(""), ":1:1: there is no such file");
  EXPECT_EQ(readingOfFile("file:///dev/null"), "file:///dev/null:1:1: there is no such file");
  EXPECT_EQ(readingOfFile("/dev/null"), "/dev/null:1:1: the document is empty");
  EXPECT_EQ(readingOfFile("/dev/zero"), "/dev/zero:1:1: not well formed: the root element should stand here");
  EXPECT_EQ(readingOfFile("/proc/self/mem"), "/proc/self/mem:1:1: the file cannot be read: Input/output error");
  const std::string loop = path + "/loop";
  ASSERT_EQ(symlink(loop.c_str(), loop.c_str()), 0);
  EXPECT_EQ(readingOfFile(loop).find(loop + ":1:1: the file cannot be opened: "), 0U);

  const std::string secret = folder.file("secret", "<visualization/>");
  ASSERT_EQ(chmod(secret.c_str(), 0), 0);
  const uid_t user = geteuid();
  ASSERT_EQ(chmod(path.c_str(), 0755), 0);
  ASSERT_EQ(seteuid(user == 0 ? 65534 : user), 0) << "root may read all";
  EXPECT_EQ(readingOfFile(secret), secret + ":1:1: there is no permission to read the file");
  ASSERT_EQ(seteuid(user), 0);
}

TEST(Reader, TakesAPipeThatGivesItsBytesOneByOne) {
  const Folder folder;
  const std::string path = folder.path() + "/pipe";
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  std::thread writer([&] {
    const int pipe = open(path.c_str(), O_WRONLY);
    for (const char byte : utf16(u"<visualization name='\u00e9'/>", false)) {
      EXPECT_EQ(write(pipe, &byte, 1), 1);
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    close(pipe);
  });
  const std::unique_ptr<OrbDocument> document = ChartReader::readFile(path);
  EXPECT_EQ(utf8(document->GetVisualization()->getName()), "\xc3\xa9");
  writer.join();
}

TEST(Reader, EndsDeepDocumentsOnASmallStack) {
  const std::string open = repeated("<container>", 10'240);
  const std::string close = repeated("</container>", 10'240);
  test::onSmallStack([&] {
    EXPECT_EQ(readingOf("<visualization>" + open + close + "</visualization>"), "nothing raised");
    EXPECT_EQ(readingOf("<visualization><sourceVariable>" + open.substr(11) + close.substr(12) +
                        "</sourceVariable></visualization>"),
              "nothing raised");
    const std::string tooDeep = "elements are nested more than 10240 levels deep";
    EXPECT_EQ(readingOf("<visualization>\n" + open + "\n<graph/>" + close + "</visualization>"),
              "t:2:112641: " + tooDeep)
        << "the text before the element is too deep as well";
    EXPECT_EQ(readingOf("<visualization>\n" + open + "<graph/>" + close + "</visualization>"),
              "t:2:112641: " + tooDeep);
    EXPECT_EQ(readingOf("<visualization>" + repeated("<a>", 1'000'000)).find("t:1:16: unknown element"), 0U);
    EXPECT_EQ(readingOf("<visualization><sourceVariable>" + repeated("<a>", 1'000'000)), "t:1:30749: " + tooDeep);
    EXPECT_EQ(readingOf("<visualization>" + open).find("t:1:112656: not well formed"), 0U);
  });
}

TEST(Reader, RefusesWhatTakesTheSquareOfItsSize) {
  const auto numbered = [](const std::string& before, const std::string& after, unsigned int count) {
    std::string text;
    for (unsigned int i = 0; i < count; ++i)
      text += joined({before, std::to_string(i), after});
    return text;
  };
  const std::string most = "there are more than 10000 ";
  const auto inRoot = [](const std::string& content) { return "<visualization>" + content + "</visualization>"; };
  EXPECT_EQ(readingOf(inRoot("\n<style" + numbered(" a", "=''", 50'000) + "/>")),
            "t:2:1: " + most + "attributes in one element");
  const std::string names = readingOf(inRoot(numbered("<style a", "=''/>", 50'000)));
  EXPECT_NE(names.find(": " + most + "different names"), std::string::npos) << names;
  EXPECT_EQ(readingOf(inRoot(repeated("<graph id='g'/>", 200'000))),
            "t:1:150031: " + most + "ids that are given again");
  EXPECT_EQ(readingOf(inRoot(repeated("<graph id='g'/>", 10'001))), "nothing raised");
  const std::string ids = readingOf(inRoot(numbered("<graph id='", "'/>", 800'000)));
  EXPECT_NE(ids.find(": there are more ids than a document has room for"), std::string::npos) << ids;
}
