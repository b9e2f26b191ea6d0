// The exception type and the error log.
#include "orberrorhandler.h"
#include "orbexception.h"

#include <gtest/gtest.h>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/RuntimeException.hpp>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

using xercesc::DOMException;
using xercesc::RuntimeException;
using xercesc::SAXException;

namespace {

/// The beginning of an entry, as in "Tue Jan  5 14:07:09.042 2021".
const std::string timePattern =
    "[A-Z][a-z]{2} [A-Z][a-z]{2} [ 0-9][0-9] [0-9]{2}:[0-9]{2}:[0-9]{2}[.][0-9]{3} [0-9]{4} ";

/// A directory of its own, into which the log goes.
class ErrorLog : public testing::Test {
protected:
  ErrorLog() {
    xercesc::XMLPlatformUtils::Initialize();
    std::string name = testing::TempDir() + "orbchartXXXXXX";
    directory_ = mkdtemp(name.data());
    logTo("log");
  }

  ~ErrorLog() override {
    unsetenv("DumpChartXMLPath");
    std::filesystem::remove_all(directory_);
    xercesc::XMLPlatformUtils::Terminate();
  }

  void logTo(const char* path) const { setenv("DumpChartXMLPath", (directory_ / path).c_str(), 1); }

  /// The log, which is then taken away.
  std::string takeLog() const {
    const auto path = directory_ / R"(log\orbchart_error.log)";
    std::stringstream text;
    text << std::ifstream(path).rdbuf();
    std::filesystem::remove(path);
    return text.str();
  }

  /// Expects entries that look so behind their times.
  void expectEntries(const std::vector<std::string>& patterns) const {
    std::string whole;
    for (const std::string& pattern : patterns)
      whole += timePattern + pattern;
    const std::string log = takeLog();
    EXPECT_TRUE(testing::Matcher<std::string>(testing::MatchesRegex(whole)).Matches(log)) << whole << "\n" << log;
  }

  std::filesystem::path directory_;
  OrbErrorHandler handler_;
};

TEST(OrbException, CarriesMessageAndPlace) {
  OrbException copy;
  EXPECT_STREQ(copy.what(), "");
  EXPECT_STREQ(copy.file(), "");
  EXPECT_EQ(copy.line(), 0u);
  copy = OrbException("message", "source.cpp", 7);
  try {
    throw copy;
  } catch (const std::exception& caught) {
    EXPECT_STREQ(caught.what(), "message");
    const auto& exception = dynamic_cast<const OrbException&>(caught);
    EXPECT_STREQ(exception.file(), "source.cpp");
    EXPECT_EQ(exception.line(), 7u);
  }
}

TEST_F(ErrorLog, OrbExceptionsAreLoggedAndNotThrown) {
  const OrbException exception("Gr\u00f6\u00dfe", "a.cpp", 1234567);
  handler_.fatalError(exception);
  handler_.error(exception);
  handler_.warning(exception);
  const std::string rest = " -- Orb: Gr\u00f6\u00dfe at file a.cpp, line 1234567, char 0\n";
  expectEntries({"Fatal Error" + rest, "Error" + rest, "Warning" + rest});
}

TEST_F(ErrorLog, DomExceptionsAreLoggedAndThrown) {
  const DOMException exception(DOMException::INVALID_MODIFICATION_ERR);
  EXPECT_THROW(handler_.fatalError(exception), DOMException);
  EXPECT_THROW(handler_.error(exception), DOMException);
  EXPECT_THROW(handler_.warning(exception), DOMException);
  const std::string rest = " -- DOM: invalid modication error at file [^\n]*orberrorhandler.cpp, line [0-9]+, char 0\n";
  expectEntries({"Fatal Error" + rest, "Error" + rest, "Warning" + rest});
}

TEST_F(ErrorLog, EachDomCodeHasItsText) {
  const std::pair<short, const char*> texts[] = {
      {-1, "unknown DOM error"},
      {0, "unknown DOM error"},
      {DOMException::INDEX_SIZE_ERR, "index size error"},
      {DOMException::DOMSTRING_SIZE_ERR, "DOMString size error"},
      {DOMException::HIERARCHY_REQUEST_ERR, "hierarchy request error"},
      {DOMException::WRONG_DOCUMENT_ERR, "wrong document error"},
      {DOMException::INVALID_CHARACTER_ERR, "invalid character error"},
      {DOMException::NO_DATA_ALLOWED_ERR, "no data allowed error"},
      {DOMException::NO_MODIFICATION_ALLOWED_ERR, "no modification allowed error"},
      {DOMException::NOT_FOUND_ERR, "not found error"},
      {DOMException::NOT_SUPPORTED_ERR, "not supported error"},
      {DOMException::INUSE_ATTRIBUTE_ERR, "inuse attribute error"},
      {DOMException::INVALID_STATE_ERR, "invalid state error"},
      {DOMException::SYNTAX_ERR, "syntax error"},
      {DOMException::INVALID_MODIFICATION_ERR, "invalid modication error"},
      {DOMException::NAMESPACE_ERR, "namespace error"},
      {DOMException::INVALID_ACCESS_ERR, "invalid access error"},
      {16, "unknown DOM error"},
      {82, "unknown DOM error"},
  };
  for (const auto& [code, text] : texts) {
    DOMException exception(DOMException::INDEX_SIZE_ERR);
    exception.code = code;
    handler_.LogMessage("type", exception);
    expectEntries({std::string("type ") + text + " at file [^\n]*\n"});
  }
}

TEST_F(ErrorLog, SaxExceptionsAreLoggedAndThrown) {
  const SAXException exception(u"Gr\u00f6\u00dfe");
  EXPECT_THROW(handler_.fatalError(exception), SAXException);
  EXPECT_THROW(handler_.error(exception), SAXException);
  EXPECT_THROW(handler_.warning(exception), SAXException);
  const std::string rest = " -- SAX: Gr\u00f6\u00dfe at file [^\n]*orberrorhandler.cpp, line [0-9]+, char 0\n";
  expectEntries({"Fatal Error" + rest, "Error" + rest, "Warning" + rest});
}

TEST_F(ErrorLog, XmlExceptionsAreLoggedAndNotThrown) {
  const RuntimeException exception("x.cpp", 42, xercesc::XMLExcepts::Str_UnknownRadix);
  handler_.fatalError(exception);
  handler_.error(exception);
  handler_.warning(exception);
  const std::string rest = " -- [^\n]+ at file x.cpp, line 42, char 0\n";
  expectEntries({"XML Fatal Error" + rest, "XML Error" + rest, "XML Warning" + rest});
}

TEST_F(ErrorLog, AnEntryWithoutSourceFileEndsBehindItsMessage) {
  handler_.error(RuntimeException(nullptr, 42, xercesc::XMLExcepts::Str_UnknownRadix));
  handler_.LogMessage("type", "message", "", 1, 2);
  handler_.LogMessage("type", "message", "f", 1, 2);
  expectEntries({"XML Error -- [^\n]+", "type message", "type message at file f, line 1, char 2\n"});
}

TEST_F(ErrorLog, TheTimeIsLocalWithThreeDigitsOfMilliseconds) {
  setenv("TZ", "XXX-5:30", 1);
  const time_t before = time(nullptr);
  std::string log;
  do { // until a time below 100 ms, whose zero must show; each second has some
    handler_.error(OrbException("m", "f", 1));
    log = takeLog();
  } while (log.find(".0") != 19 && time(nullptr) < before + 3);
  unsetenv("TZ");
  ASSERT_EQ(log.find(".0"), 19U) << log;
  tm local{};
  strptime((log.substr(0, 19) + log.substr(23, 5)).c_str(), "%a %b %d %H:%M:%S %Y", &local);
  EXPECT_NEAR(difftime(timegm(&local) - 19800, before), 0, 4);
}

TEST_F(ErrorLog, WithoutAUsableDirectoryNothingHappens) {
  const OrbException exception("message", "a.cpp", 1);
  logTo("missing/log");
  handler_.error(exception);
  unsetenv("DumpChartXMLPath");
  handler_.error(exception);
  EXPECT_TRUE(std::filesystem::is_empty(directory_));
  logTo("log");
  handler_.error(exception);
  EXPECT_NE(takeLog(), "") << "the variable is read for each entry";
}

} // namespace
