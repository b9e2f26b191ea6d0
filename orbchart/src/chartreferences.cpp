// Which elements of a chart have an id, and who refers to them.
#include "chartreferences.h"

#include "chartscan.h"
#include "chartstring.h"
#include "indexed.h"
#include "legalvalue.h"
#include "orbuni.h"
#include "textpool.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

using namespace orbchart;

namespace orbchart {

struct ReferrerRecord {
  TextView element;
  TextView elementId;
  TextView attribute;
  TextView id;
  Place place;
};

struct BearerRecord {
  TextView id;
  TextView element;
  Place place;
  std::span<const ReferrerRecord* const> referrers{};
};

/// The texts belong to the pool and to the language.
struct ReferencesRecord {
  TextPool texts;
  std::vector<BearerRecord> bearers{};
  std::deque<ReferrerRecord> referrers{};
  /// Those of one bearer together, bearer after bearer, and then those that lead nowhere.
  std::vector<const ReferrerRecord*> byBearer{};
  std::span<const ReferrerRecord* const> dangling{};
};

} // namespace orbchart

namespace {

/// Lists the ids and the references of a document, and brings them together at its end.
class References : private ChartScan {
public:
  std::shared_ptr<const ReferencesRecord> run(const ChartInput& input);

private:
  void foundElement(std::span<const ScannedAttribute> attributes) override;
  void foundFault(const Fault& fault) override { throw fault; }

  TextView keep(TextView text) { return record_->texts[record_->texts.numberOf(text)]; }
  void bear(std::uint32_t id);
  void refer(const LanguageAttribute& attribute, TextView elementId, std::uint32_t id);
  void link();
  std::size_t bearerOf(std::uint32_t id) const;

  std::shared_ptr<ReferencesRecord> record_ = std::make_shared<ReferencesRecord>();
  /// By the number of an id, the index of its bearer and one more; 0 for none.
  std::vector<std::size_t> bearers_;
  /// The ids of the references, in the order of the document.
  std::deque<std::uint32_t> referredIds_;
};

std::shared_ptr<const ReferencesRecord> References::run(const ChartInput& input) {
  try {
    scan(input);
  } catch (const Fault& fault) {
    raiseFault(input.name(), fault);
  }
  link();
  return std::move(record_);
}

void References::foundElement(std::span<const ScannedAttribute> attributes) {
  const auto idOf = std::find_if(attributes.begin(), attributes.end(),
                                 [](const ScannedAttribute& attribute) { return attribute.name == OrbUni::_id; });
  TextView id;
  if (idOf != attributes.end() && !idOf->value.empty()) {
    const std::uint32_t number = record_->texts.numberOf(idOf->value);
    bear(number);
    id = record_->texts[number];
  }
  const LanguageElement* element = open().back().element;
  if (element == nullptr)
    return;
  for (const auto& [name, value] : attributes) {
    const LanguageAttribute* attribute = element->attribute(name);
    if (attribute != nullptr && isReference(*attribute->described) && !value.empty())
      refer(*attribute, id, record_->texts.numberOf(value));
  }
}

void References::bear(std::uint32_t id) {
  if (id >= bearers_.size())
    bearers_.resize(id + 1);
  if (bearers_[id] != 0)
    return;
  record_->bearers.push_back({record_->texts[id], keep(open().back().name), open().back().place});
  bearers_[id] = record_->bearers.size();
}

void References::refer(const LanguageAttribute& attribute, TextView elementId, std::uint32_t id) {
  const OpenElement& element = open().back();
  record_->referrers.push_back({element.element->name, elementId, attribute.name, record_->texts[id], element.place});
  referredIds_.push_back(id);
}

/// The index of a bearer; that behind the last for an id that nothing carries.
std::size_t References::bearerOf(std::uint32_t id) const {
  return id < bearers_.size() && bearers_[id] != 0 ? bearers_[id] - 1 : record_->bearers.size();
}

/// Sorts the references by their bearers.
void References::link() {
  std::vector<std::size_t> ends(record_->bearers.size() + 2);
  for (const std::uint32_t id : referredIds_)
    ++ends[bearerOf(id) + 1];
  std::partial_sum(ends.begin(), ends.end(), ends.begin());
  // So far these are the places where each begins; each moves on with what it takes.
  record_->byBearer.resize(referredIds_.size());
  auto id = referredIds_.begin();
  for (const ReferrerRecord& referrer : record_->referrers)
    record_->byBearer[ends[bearerOf(*id++)]++] = &referrer;

  std::size_t begin = 0;
  const std::span<const ReferrerRecord* const> all = record_->byBearer;
  for (std::size_t bearer = 0; bearer < record_->bearers.size(); begin = ends[bearer++])
    record_->bearers[bearer].referrers = all.subspan(begin, ends[bearer] - begin);
  record_->dangling = all.subspan(begin);
}

std::string utf8(TextView text) { return ChartString(std::basic_string<XMLCh>(text).c_str()).toUTF8(); }

} // namespace

ChartReferences ChartReferences::ofFile(const std::string& path) {
  const PlatformHold platform;
  return ChartReferences(References().run(FileInput(path)));
}
ChartReferences ChartReferences::ofText(const std::string& xml, const std::string& name) {
  const PlatformHold platform;
  return ChartReferences(References().run(TextInput(xml, name)));
}

ChartReferences::ChartReferences(std::shared_ptr<const ReferencesRecord> record) : record_(std::move(record)) {}

std::size_t ChartReferences::size() const { return record_->bearers.size(); }
ChartReferences::Bearer ChartReferences::operator[](std::size_t index) const {
  return Bearer(&at(record_->bearers, index, "id"));
}
std::size_t ChartReferences::dangling() const { return record_->dangling.size(); }
ChartReferences::Referrer ChartReferences::danglingAt(std::size_t index) const {
  return Referrer(at(record_->dangling, index, "dangling reference"));
}

ChartReferences::Bearer::Bearer(const BearerRecord* record) : record_(record) {}

std::string ChartReferences::Bearer::id() const { return utf8(record_->id); }
std::string ChartReferences::Bearer::element() const { return utf8(record_->element); }
std::size_t ChartReferences::Bearer::line() const { return record_->place.line; }
std::size_t ChartReferences::Bearer::column() const { return record_->place.column; }
std::size_t ChartReferences::Bearer::size() const { return record_->referrers.size(); }
ChartReferences::Referrer ChartReferences::Bearer::operator[](std::size_t index) const {
  return Referrer(at(record_->referrers, index, "reference"));
}

ChartReferences::Referrer::Referrer(const ReferrerRecord* record) : record_(record) {}

std::string ChartReferences::Referrer::element() const { return utf8(record_->element); }
std::string ChartReferences::Referrer::elementId() const { return utf8(record_->elementId); }
std::string ChartReferences::Referrer::attribute() const { return utf8(record_->attribute); }
std::string ChartReferences::Referrer::id() const { return utf8(record_->id); }
std::size_t ChartReferences::Referrer::line() const { return record_->place.line; }
std::size_t ChartReferences::Referrer::column() const { return record_->place.column; }
