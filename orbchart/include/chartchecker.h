// What is wrong with a chart, and where.
#pragma once

#include "orbchartdom.h"
#include "orbchartexport.h"

#include <cstddef>
#include <memory>
#include <string>

namespace orbchart {
struct FindingRecord;
struct ReportRecord;
} // namespace orbchart

/// Holds documents to the language and lists all that is wrong with them, in words for people: one finding for each
/// fault, in the order of the document.
///
/// Errors are: what is not well formed, an empty document included; a document type declaration; a root that is no
/// chart; an element that its parent neither knows nor passes over; an attribute that the element does not have; a
/// value that is none of its kind; an id given twice, at the second bearer; a reference to an id that nothing carries,
/// or that an element carries to which neither the getter nor the setter leads; more children than the language takes,
/// at the first that is too many, once for each family and parent; elements nested deeper, or with more attributes,
/// than ChartReader accepts. Warnings are: an id that is no XML name, which a parser that validates refuses, the empty
/// one too; text where an element bears none, once for each element.
///
/// Nothing is said of what lies below an unknown element, nor of references to what lies there. Of what a load passes
/// over, and of what a free element holds, only the ids are looked at. Attributes of XML itself (`xmlns` and those that
/// begin with `xmlns:`, `xsi:` or `xml:`) may stand anywhere. A document type declaration is passed over, with all that
/// it declares; what is not well formed ends the check, and then nothing is said of references to ids that did not
/// stand before it.
///
/// A misspelt element, attribute or word gets "did you mean" when one is near. Texts of the document are shortened in
/// messages, and a message is one line.
/// \ingroup tools
class ORBCHART_EXPORT ChartChecker {
public:
  class Finding;
  class Report;

  enum Severity : int { severity_error, severity_warning };

  /// A document may be broken in thousands of places: a report lists no more findings than this and counts the others.
  /// 1000 unless the host sets another limit; 0 only counts.
  void setLimit(std::size_t limit);
  std::size_t getLimit() const;

  /// Checks a file. One that cannot be read at all (not there, no permission, a folder) raises an OrbException that
  /// begins "NAME:1:1: "; all else is a finding. Nothing beside the file itself is ever opened.
  Report checkFile(const std::string& path) const;
  /// Checks a document in memory. The name stands in the texts of the findings only.
  Report checkText(const std::string& xml, const std::string& name) const;
  /// Checks a DOM. The findings have paths, but neither lines nor columns. A null pointer raises an OrbException.
  Report checkDocument(const xercesc::DOMDocument* document) const;

private:
  std::size_t limit_ = 1000;
};

/// What a check found. It may be copied, and outlives the document; its findings live as long as a copy of it.
/// \ingroup tools
class ORBCHART_EXPORT ChartChecker::Report {
public:
  explicit Report(std::shared_ptr<const orbchart::ReportRecord> record);

  /// How many findings are listed.
  std::size_t size() const;
  /// One of them, in the order of the document. An index that is too great raises an OrbException.
  Finding operator[](std::size_t index) const;
  /// How many more there are than the limit allowed to list.
  std::size_t omitted() const;
  /// How many there are of each severity, listed or not.
  std::size_t errors() const;
  std::size_t warnings() const;

private:
  std::shared_ptr<const orbchart::ReportRecord> record_;
};

/// One fault of a document.
/// \ingroup tools
class ORBCHART_EXPORT ChartChecker::Finding {
public:
  explicit Finding(const orbchart::FindingRecord* record);

  Severity severity() const;
  /// Where it stands, counted from 1; 0 when the document was checked as a DOM. The column counts units of UTF-16. A
  /// fault of an attribute stands where the tag of its element begins, and one of a text where the text does.
  std::size_t line() const;
  std::size_t column() const;
  /// The way from the root to the element, such as "/visualization/graph[2]/point". A number counts the elements of one
  /// name under one parent, and stands there from the second on.
  std::string path() const;
  /// What is wrong, such as `point has no attribute "colour"; did you mean "color"?`
  std::string message() const;
  /// All of it on one line, as compilers write it: "NAME:LINE:COLUMN: error: MESSAGE"; of a DOM, "PATH: error:
  /// MESSAGE".
  std::string text() const;

private:
  const orbchart::FindingRecord* record_;
};
