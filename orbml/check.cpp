// orbml check: what is wrong with documents.
#include "commands.h"
#include "files.h"
#include "text.h"

#include <chartchecker.h>
#include <orbexception.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iostream>

namespace {

using Json = nlohmann::ordered_json;

std::string wordFor(ChartChecker::Severity severity) {
  return severity == ChartChecker::severity_error ? "error" : "warning";
}

ChartChecker::Report reportOn(const std::string& file, const ChartChecker& checker) {
  if (isStandardInput(file))
    return checker.checkText(contentOf(file), nameOf(file));
  try {
    return checker.checkFile(file);
  } catch (const OrbException& error) { // it cannot be read: what is wrong inside is a finding
    throw FileError(printable(error.what()));
  }
}

/// How the findings of the files are shown.
class Listing {
public:
  Listing() = default;
  Listing(const Listing&) = delete;
  Listing& operator=(const Listing&) = delete;
  virtual ~Listing() = default;
  virtual void add(const std::string& file, const ChartChecker::Report& report) = 0;
  virtual void addUnreadable(const std::string& file, const std::string& message) = 0;
  virtual void end() {}
};

/// A line for each finding, as compilers write it.
class Lines : public Listing {
public:
  void add(const std::string& file, const ChartChecker::Report& report) override {
    for (std::size_t i = 0; i < report.size(); ++i) {
      const ChartChecker::Finding finding = report[i];
      const bool isError = finding.severity() == ChartChecker::severity_error;
      std::cout << printable(nameOf(file)) << ":" << finding.line() << ":" << finding.column() << ": "
                << coloured(wordFor(finding.severity()), isError ? Colour::red : Colour::yellow) << ": "
                << printable(finding.message()) << "\n";
    }
    if (report.omitted() != 0)
      complain(printable(nameOf(file)) + ": " + counted(report.omitted(), "finding") +
               " more, which --limit leaves out");
  }
  void addUnreadable(const std::string& /*file*/, const std::string& message) override { complain(message); }
};

/// One JSON text for all files.
class JsonText : public Listing {
public:
  void add(const std::string& file, const ChartChecker::Report& report) override {
    Json findings = Json::array();
    for (std::size_t i = 0; i < report.size(); ++i) {
      const ChartChecker::Finding finding = report[i];
      findings.push_back({{"severity", wordFor(finding.severity())},
                          {"line", finding.line()},
                          {"column", finding.column()},
                          {"path", finding.path()},
                          {"message", finding.message()}});
    }
    files_.push_back({{"file", nameOf(file)},
                      {"errors", report.errors()},
                      {"warnings", report.warnings()},
                      {"omitted", report.omitted()},
                      {"findings", std::move(findings)}});
  }
  void addUnreadable(const std::string& file, const std::string& message) override {
    files_.push_back({{"file", nameOf(file)}, {"unreadable", message}});
    complain(message);
  }
  // A name of a file may be any bytes, and ASCII does nothing to a terminal.
  void end() override { std::cout << files_.dump(2, ' ', true, Json::error_handler_t::replace) << "\n"; }

private:
  Json files_ = Json::array();
};

/// Checks one file after the other and counts.
class Check {
public:
  Check(const CheckOptions& options, Listing& listing) : listing_(listing) { checker_.setLimit(options.limit); }

  void add(const std::string& file) {
    try {
      const ChartChecker::Report report = reportOn(file, checker_);
      listing_.add(file, report);
      ++checked_;
      errors_ += report.errors();
      warnings_ += report.warnings();
    } catch (const FileError& error) {
      listing_.addUnreadable(file, error.what());
      ++unreadable_;
    }
  }
  void summarize() const {
    std::cout.flush();
    std::cerr << counted(checked_, "file") << " checked: "
              << (errors_ + warnings_ == 0 ? "nothing to report"
                                           : counted(errors_, "error") + ", " + counted(warnings_, "warning"))
              << (unreadable_ == 0 ? "" : "; " + counted(unreadable_, "file") + " could not be read") << "\n";
  }
  ExitCode exitCode() const {
    if (unreadable_ != 0)
      return cannotBeDone;
    return errors_ + warnings_ == 0 ? nothingToReport : somethingFound;
  }

private:
  Listing& listing_;
  ChartChecker checker_;
  std::size_t checked_ = 0;
  std::size_t errors_ = 0;
  std::size_t warnings_ = 0;
  std::size_t unreadable_ = 0;
};

ExitCode checkAll(const CheckOptions& options, Listing& listing) {
  Check check(options, listing);
  for (const std::string& file : options.files)
    check.add(file);
  listing.end();
  check.summarize();
  return check.exitCode();
}

} // namespace

ExitCode check(const CheckOptions& options) {
  Lines lines;
  JsonText json;
  return checkAll(options, options.format == "json" ? static_cast<Listing&>(json) : lines);
}
