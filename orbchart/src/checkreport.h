// What a check found, and how it comes together: the first findings of the document are kept, the others are counted.
#pragma once

#include "chartchecker.h"
#include "chartinput.h"
#include "language.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace orbchart {

/// An element on the way from the root to a finding.
struct PathStep {
  std::uint32_t parent; // the number of a step; 0 above the root
  std::uint32_t ordinal;
  std::string name;
};

struct FindingRecord {
  const ReportRecord* report;
  ChartChecker::Severity severity;
  Place place;
  std::uint32_t step;
  std::string message;
};

struct ReportRecord {
  std::string name;
  /// The step of a number stands one place before it. Findings share their ways, which in a deep document are long.
  std::vector<PathStep> steps{};
  std::vector<FindingRecord> findings{};
  std::size_t errors = 0;
  std::size_t warnings = 0;

  std::string pathTo(std::uint32_t step) const;
};

/// The same while the check runs, with names that belong to the document.
struct OpenStep {
  std::uint32_t parent;
  std::uint32_t ordinal;
  TextView name;
  Place place;
};

/// Gathers findings in the order of the document. Those that can be told at the end only say then where they belong.
class ReportBuilder {
public:
  using Severity = ChartChecker::Severity;

  explicit ReportBuilder(std::size_t limit) : limit_(limit) {}

  /// The number of a new step.
  std::uint32_t addStep(const OpenStep& step);
  const OpenStep& step(std::uint32_t number) const { return steps_[number - 1]; }

  /// The next turn in the order of the document.
  std::uint64_t takeTurn() { return turns_++; }

  /// Whether a finding that is told now, or told at the end with its turn, can still be among those that are listed.
  bool isListing() const { return found_.size() < limit_; }
  bool isListingLate() const { return foundLate_.size() < limit_; }
  void add(Severity severity, Place place, std::uint32_t step, std::string message);
  void addLate(std::uint64_t turn, Severity severity, Place place, std::uint32_t step, std::string message);
  /// One that is counted and not listed.
  void count(Severity severity) { ++(severity == ChartChecker::severity_error ? errors_ : warnings_); }

  std::shared_ptr<const ReportRecord> build(const std::string& name);

private:
  struct Found {
    std::uint64_t turn;
    FindingRecord finding;
  };

  std::uint32_t keptStep(ReportRecord& report, std::uint32_t number);

  std::size_t limit_;
  std::size_t errors_ = 0;
  std::size_t warnings_ = 0;
  std::uint64_t turns_ = 0;
  std::deque<OpenStep> steps_;
  /// For each step its number in the report; 0 for none.
  std::vector<std::uint32_t> kept_;
  std::vector<Found> found_;
  std::vector<Found> foundLate_;
};

} // namespace orbchart
