// What a check found.
#include "checkreport.h"

#include "indexed.h"
#include "messagetext.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orbchart {

std::string ReportRecord::pathTo(std::uint32_t step) const {
  std::vector<const PathStep*> way;
  for (; step != 0; step = way.back()->parent)
    way.push_back(&steps[step - 1]);
  std::reverse(way.begin(), way.end());
  std::string path;
  for (const PathStep* one : way) {
    path += '/' + one->name;
    if (one->ordinal > 1)
      path += '[' + std::to_string(one->ordinal) + ']';
  }
  return path;
}

std::uint32_t ReportBuilder::addStep(const OpenStep& step) {
  steps_.push_back(step);
  return static_cast<std::uint32_t>(steps_.size());
}

void ReportBuilder::add(Severity severity, Place place, std::uint32_t step, std::string message) {
  count(severity);
  found_.push_back({takeTurn(), {nullptr, severity, place, step, std::move(message)}});
}

void ReportBuilder::addLate(std::uint64_t turn, Severity severity, Place place, std::uint32_t step,
                            std::string message) {
  count(severity);
  foundLate_.push_back({turn, {nullptr, severity, place, step, std::move(message)}});
}

std::shared_ptr<const ReportRecord> ReportBuilder::build(const std::string& name) {
  std::vector<Found> all;
  std::merge(std::make_move_iterator(found_.begin()), std::make_move_iterator(found_.end()),
             std::make_move_iterator(foundLate_.begin()), std::make_move_iterator(foundLate_.end()),
             std::back_inserter(all), [](const Found& one, const Found& other) { return one.turn < other.turn; });
  const auto report =
      std::make_shared<ReportRecord>(ReportRecord{.name = name, .errors = errors_, .warnings = warnings_});
  kept_.resize(steps_.size());
  for (auto found = all.begin(); found != all.end() && report->findings.size() < limit_; ++found) {
    found->finding.report = report.get();
    found->finding.step = keptStep(*report, found->finding.step);
    report->findings.push_back(std::move(found->finding));
  }
  return report;
}

/// The number of a step in the report, which gets all of its way to the root.
std::uint32_t ReportBuilder::keptStep(ReportRecord& report, std::uint32_t number) {
  std::vector<std::uint32_t> missing;
  for (; number != 0 && kept_[number - 1] == 0; number = step(number).parent)
    missing.push_back(number);
  std::uint32_t last = number == 0 ? 0 : kept_[number - 1];
  std::reverse(missing.begin(), missing.end());
  for (const std::uint32_t one : missing) {
    report.steps.push_back({last, step(one).ordinal, shown(step(one).name)});
    last = kept_[one - 1] = static_cast<std::uint32_t>(report.steps.size());
  }
  return last;
}

} // namespace orbchart

using namespace orbchart;

ChartChecker::Report::Report(std::shared_ptr<const ReportRecord> record) : record_(std::move(record)) {}

std::size_t ChartChecker::Report::size() const { return record_->findings.size(); }
ChartChecker::Finding ChartChecker::Report::operator[](std::size_t index) const {
  return Finding(&at(record_->findings, index, "finding"));
}
std::size_t ChartChecker::Report::omitted() const { return errors() + warnings() - size(); }
std::size_t ChartChecker::Report::errors() const { return record_->errors; }
std::size_t ChartChecker::Report::warnings() const { return record_->warnings; }

ChartChecker::Finding::Finding(const FindingRecord* record) : record_(record) {}

ChartChecker::Severity ChartChecker::Finding::severity() const { return record_->severity; }
std::size_t ChartChecker::Finding::line() const { return record_->place.line; }
std::size_t ChartChecker::Finding::column() const { return record_->place.column; }
std::string ChartChecker::Finding::path() const { return record_->report->pathTo(record_->step); }
std::string ChartChecker::Finding::message() const { return record_->message; }
std::string ChartChecker::Finding::text() const {
  const std::string words = (severity() == severity_error ? "error: " : "warning: ") + message();
  if (line() != 0)
    return textOf(record_->report->name, {record_->place, words});
  const std::string way = path();
  return way.empty() ? words : way + ": " + words;
}
