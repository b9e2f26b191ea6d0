// One pass over a document, element by element, with what the language knows of each: what the checker and the
// references have in common.
#pragma once

#include "chartinput.h"
#include "language.h"
#include "orbchartdom.h"

#include <memory>
#include <span>
#include <vector>

namespace orbchart {

struct ScannedAttribute {
  TextView name;
  TextView value;
};

/// How an element stands in the language.
enum class Standing {
  known,
  unknown,    // its parent neither knows it nor passes it over
  passedOver, // a load does not look at it, nor at what is below
  tooDeep,    // a load refuses the document for it
  lost,       // it lies below one that is unknown or too deep
};

struct OpenElement {
  /// It stays where it is for as long as the scan object and, if that is what is scanned, the DOM.
  TextView name;
  Standing standing;
  /// Null for an element that is not known.
  const LanguageElement* element = nullptr;
  /// What the parent knows of it; null for the root and for an element that is not known.
  const LanguageChild* child = nullptr;
  Place place;
};

/// Goes through a document and tells a subclass what stands in it. The open elements stand in a list of its own, so
/// that a deep document asks for no deep stack.
class ChartScan {
public:
  ChartScan(const ChartScan&) = delete;
  ChartScan& operator=(const ChartScan&) = delete;

protected:
  ChartScan();
  virtual ~ChartScan();

  /// Throws a Fault for what is not well formed, and whatever the subclass throws.
  void scan(const ChartInput& input);
  /// All places of a DOM are 0:0.
  void scan(const xercesc::DOMDocument& document);

  /// From the root to the element that the scan is at.
  const std::vector<OpenElement>& open() const { return open_; }

  /// The last of the open elements has begun.
  virtual void foundElement(std::span<const ScannedAttribute> attributes) = 0;
  /// It ends.
  virtual void leaveElement() {}
  /// It has a text, or a part of one, that begins at a place.
  virtual void foundText(TextView /*text*/, Place /*place*/) {}
  /// There is something that a reader refuses, beside what it does not know. The scan goes on unless it is thrown.
  virtual void foundFault(const Fault& fault) = 0;

private:
  class Events;

  void beginElement(TextView name, std::span<const ScannedAttribute> attributes, Place place);
  void endElement();
  void addText(TextView text, Place place);
  void addContent(Place place);
  void addDocumentType(Place place);
  void addTooDeep(Place place);
  OpenElement childOf(const OpenElement& parent, TextView name, Place place) const;
  void addNode(const xercesc::DOMNode& node);

  /// The scanner, which owns the names.
  std::unique_ptr<Events> events_;
  std::vector<OpenElement> open_;
  bool isTooDeep_ = false;
  /// The attributes of one element, kept for their memory.
  std::vector<ScannedAttribute> attributes_;
};

} // namespace orbchart
