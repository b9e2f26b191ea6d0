// Which elements of a chart have an id, and who refers to them.
#pragma once

#include "orbchartexport.h"

#include <cstddef>
#include <memory>
#include <string>

namespace orbchart {
struct BearerRecord;
struct ReferencesRecord;
struct ReferrerRecord;
} // namespace orbchart

/// The ids of a document in its order, each with the references to it.
///
/// A document that a reader refuses raises what ChartReader raises, save that elements and attributes which the
/// language does not have are passed over: the ids of such elements and of those below them are listed, and their
/// references are not. An id that is given twice is listed once, at its first bearer, with all references to it. An
/// empty id is none, and an empty reference leads nowhere and is not listed. An index that is too great raises an
/// OrbException.
/// \ingroup tools
class ORBCHART_EXPORT ChartReferences {
public:
  class Bearer;
  class Referrer;

  static ChartReferences ofFile(const std::string& path);
  /// The name stands in messages only.
  static ChartReferences ofText(const std::string& xml, const std::string& name);

  explicit ChartReferences(std::shared_ptr<const orbchart::ReferencesRecord> record);

  /// How many elements have an id.
  std::size_t size() const;
  /// One of them, in the order of the document. It lives as long as a copy of this object, and so do its referrers.
  Bearer operator[](std::size_t index) const;

  /// How many references lead to an id that nothing carries, and one of them.
  std::size_t dangling() const;
  Referrer danglingAt(std::size_t index) const;

private:
  std::shared_ptr<const orbchart::ReferencesRecord> record_;
};

/// An element with an id.
/// \ingroup tools
class ORBCHART_EXPORT ChartReferences::Bearer {
public:
  explicit Bearer(const orbchart::BearerRecord* record);

  std::string id() const;
  /// The name of the element.
  std::string element() const;
  /// Where the element begins, counted from 1.
  std::size_t line() const;
  std::size_t column() const;

  /// How many references lead to it, and one of them, in the order of the document.
  std::size_t size() const;
  Referrer operator[](std::size_t index) const;

private:
  const orbchart::BearerRecord* record_;
};

/// An attribute that holds an id.
/// \ingroup tools
class ORBCHART_EXPORT ChartReferences::Referrer {
public:
  explicit Referrer(const orbchart::ReferrerRecord* record);

  /// The element that has the attribute, the id of that element, empty if it has none, and the attribute.
  std::string element() const;
  std::string elementId() const;
  std::string attribute() const;
  /// The id that the attribute holds.
  std::string id() const;
  std::size_t line() const;
  std::size_t column() const;

private:
  const orbchart::ReferrerRecord* record_;
};
