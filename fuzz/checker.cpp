// The fuzz target of what works on a text: the checker, the reader and the list of references get any bytes, and have
// to agree on them.
#include "chartchecker.h"
#include "chartreader.h"
#include "chartreferences.h"
#include "orbdocument.h"
#include "orbexception.h"

#include "../tests/support/dom.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>

using Report = ChartChecker::Report;

namespace {

/// Longer documents find nothing that shorter ones do not.
constexpr std::size_t longestInput = 16'384;

std::string textOf(const Report& report) {
  std::string text;
  for (std::size_t i = 0; i < report.size(); ++i)
    text += report[i].text() + " (" + report[i].path() + ")\n";
  return text;
}

/// Ends the run with what is wrong. Nothing may be wrong in a document that the library was given.
void require(bool isRight, const char* what, const std::string& details) {
  if (isRight)
    return;
  std::fprintf(stderr, "%s\n%s\n", what, details.c_str());
  std::abort();
}

/// The text of what an action raises; none when it raises nothing. Other exceptions than the library's end the run.
template <class Action> std::optional<std::string> raisedBy(Action action) noexcept {
  try {
    action();
    return std::nullopt;
  } catch (const OrbException& exception) {
    return exception.what();
  }
}

/// A finding stands in the document, behind the one before, and in one line.
void checkFindings(const Report& report) {
  const std::string text = textOf(report);
  std::size_t line = 1;
  std::size_t column = 1;
  std::size_t errors = 0;
  for (std::size_t i = 0; i < report.size(); ++i) {
    const ChartChecker::Finding finding = report[i];
    const bool isBehind = finding.line() > line || (finding.line() == line && finding.column() >= column);
    line = finding.line();
    column = finding.column();
    errors += finding.severity() == ChartChecker::severity_error ? 1 : 0;
    require(isBehind, "A finding stands before the one before.", text);
    require(finding.message().find_first_of("\r\n\t") == std::string::npos && finding.message().size() < 2'000,
            "A message is no short line.", finding.message());
  }
  require(report.errors() == errors && report.warnings() + errors == report.size() + report.omitted(),
          "The counts are not those of the findings.", text);
}

/// With any limit the first findings are listed.
void checkLimit(const Report& report, const std::string& xml) {
  ChartChecker checker;
  checker.setLimit(report.size() / 2);
  const Report half = checker.checkText(xml, "x");
  const std::string all = textOf(report);
  require(half.size() == report.size() / 2 && all.compare(0, textOf(half).size(), textOf(half)) == 0,
          "A limit lists other findings.", all + "\n== with a limit\n" + textOf(half));
  require(half.errors() == report.errors() && half.warnings() == report.warnings(), "A limit counts other findings.",
          all);
}

void check(const std::string& xml) {
  ChartChecker checker;
  checker.setLimit(longestInput);
  const Report report = checker.checkText(xml, "x");
  checkFindings(report);
  checkLimit(report, xml);

  std::unique_ptr<OrbDocument> chart;
  const auto refusal = raisedBy([&] { chart = ChartReader::readText(xml, "x"); });
  require(!refusal || report.errors() != 0, "A reader refuses what the checker finds right.", refusal.value_or(""));
  std::size_t dangling = 0;
  const auto refusedReferences = raisedBy([&] { dangling = ChartReferences::ofText(xml, "x").dangling(); });
  if (chart == nullptr)
    return;
  require(!refusedReferences, "References are refused in what a reader takes.", refusedReferences.value_or(""));
  require(dangling <= report.errors(), "References lead nowhere in what the checker finds right.", textOf(report));
  const Report ofDom = checker.checkDocument(chart->getImplementation());
  require(ofDom.errors() == report.errors() && ofDom.warnings() == report.warnings(),
          "The DOM has other findings than its text.", textOf(report) + "== DOM\n" + textOf(ofDom));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::Platform platform;
  if (size > longestInput)
    return -1;
  check({reinterpret_cast<const char*>(data), size});
  return 0;
}
