// What is wrong with a chart, and where.
#include "chartchecker.h"

#include "chartscan.h"
#include "chartstring.h"
#include "checkreport.h"
#include "legalvalue.h"
#include "messagetext.h"
#include "orbuni.h"
#include "raise.h"
#include "siblingcounts.h"
#include "textpool.h"

#include <xercesc/dom/DOMDocument.hpp>

#include <cstdint>
#include <deque>
#include <string>
#include <utility>

using namespace orbchart;

namespace {

constexpr auto error = ChartChecker::severity_error;
constexpr auto warning = ChartChecker::severity_warning;

/// Attributes that XML itself and schemas have, and no element of the language.
bool isNobodys(TextView name) {
  return name == u"xmlns" || name.starts_with(u"xmlns:") || name.starts_with(u"xsi:") || name.starts_with(u"xml:");
}

constexpr TextView whiteSpace = u" \t\r\n";
/// What stands in the messages of Xerces may be as long as the document.
constexpr std::size_t longestWords = 300;
/// The place of what is said of a DOM.
constexpr Place nowhere{0, 0};

std::string shownWords(const std::string& words) {
  ChartString text;
  text.assignUTF8(words);
  return shown(text.xc_str(), longestWords);
}

/// The place of a character of a text that begins at a place.
Place placeWithin(TextView text, std::size_t index, Place place) {
  if (place.line == 0)
    return place;
  for (const XMLCh unit : text.substr(0, index)) {
    place.column = unit == u'\n' ? 1 : place.column + 1;
    place.line += unit == u'\n' ? 1 : 0;
  }
  return place;
}

std::vector<std::string> attributeNames(const LanguageElement& element) {
  std::vector<std::string> names;
  for (const LanguageAttribute& attribute : element.attributes)
    names.push_back(shown(attribute.name));
  return names;
}

/// What an attribute may have been meant to be that an element does not have. What charts say of a mark by its colour
/// and the like is often said by an element.
std::string hintForAttribute(const LanguageElement& element, TextView name) {
  std::string hint = suggestion(name, attributeNames(element));
  if (!hint.empty())
    return hint;
  const LanguageChild* child = element.child(name);
  return child != nullptr && child->isLoaded ? "; " + shown(name) + " is an element"
                                             : suggestion(name, childNames(element));
}

/// The elements to which a reference may lead, in words.
std::string targetNames(const LanguageAttribute& attribute) {
  if (attribute.described->kind == AttributeKind::anyReference)
    return "any element";
  std::vector<std::string> names;
  for (const LanguageElement* target : attribute.targets)
    names.push_back(shown(target->name));
  return listed(names);
}

/// The first element that has an id.
struct Bearer {
  bool stands = false;
  Standing standing{};
  const LanguageElement* element = nullptr;
  TextView name{};
  std::size_t line = 0;
};

std::string wordsOfBearer(const Bearer& bearer) {
  return shown(bearer.name) + (bearer.line == 0 ? "" : " on line " + std::to_string(bearer.line));
}

/// Whether a reference may lead to an element, as far as one can tell: what an element was meant to be that is unknown,
/// or lies below one, nobody knows.
bool leadsTo(const LanguageAttribute& attribute, const Bearer& bearer) {
  if (!bearer.stands)
    return false;
  if (bearer.element != nullptr)
    return attribute.leadsTo(*bearer.element);
  return bearer.standing != Standing::passedOver || attribute.described->kind == AttributeKind::anyReference;
}

/// A reference to an id that no element has had so far.
struct Pending {
  std::uint64_t turn;
  const LanguageAttribute* attribute;
  std::uint32_t id;
  std::uint32_t step;
};

/// One check: the rules, and what has been seen so far.
class Check : private ChartScan {
public:
  explicit Check(std::size_t limit) : report_(limit) {}

  std::shared_ptr<const ReportRecord> run(const ChartInput& input);
  std::shared_ptr<const ReportRecord> run(const xercesc::DOMDocument& document);

private:
  /// What the check knows of an open element beside what the scan knows.
  struct Level {
    std::uint32_t ordinal = 1;
    /// The number of its step in the report; 0 while no finding needs it.
    std::uint32_t step = 0;
    bool hasText = false;
  };

  void foundElement(std::span<const ScannedAttribute> attributes) override;
  void leaveElement() override;
  void foundText(TextView text, Place place) override;
  void foundFault(const Fault& fault) override;

  const OpenElement& element() const { return open().back(); }
  std::uint32_t step();
  void countElement();
  void checkNumber(const LanguageElement& parent, const LanguageChild& child);
  const LanguageElement* standingBeside(const LanguageElement& parent, const LanguageChild& child);
  std::string wordsOfUnknownElement() const;
  void checkAttributes(std::span<const ScannedAttribute> attributes);
  void checkAttribute(const LanguageAttribute& attribute, TextView value);
  std::string wordsOfIllegalValue(const LanguageAttribute& attribute, TextView value) const;
  void checkId(TextView id);
  void bearAll(std::span<const ScannedAttribute> attributes);
  void bear(TextView id);
  const Bearer* takeBearer(TextView id);
  Bearer& bearerOf(std::uint32_t id);
  void refer(const LanguageAttribute& attribute, TextView id);
  void checkPending();
  std::string wordsOfBadReference(const LanguageAttribute& attribute, TextView referrer, std::uint32_t id) const;

  /// Reports something at the open element, in words that are made only if they are listed.
  template <class Words> void report(ChartChecker::Severity severity, Words words) {
    report(severity, element().place, words);
  }
  template <class Words> void report(ChartChecker::Severity severity, Place place, Words words) {
    if (report_.isListing())
      report_.add(severity, place, step(), words());
    else
      report_.count(severity);
  }

  ReportBuilder report_;
  SiblingCounts counts_;
  std::vector<Level> levels_;
  TextPool ids_;
  /// By the numbers of the ids.
  std::deque<Bearer> bearers_;
  std::deque<Pending> pending_;
};

std::shared_ptr<const ReportRecord> Check::run(const ChartInput& input) {
  try {
    scan(input);
    checkPending();
  } catch (const Fault& fault) {
    // What the rest of the document holds is not known, and so neither is what a reference leads to.
    foundFault(fault);
  }
  return report_.build(input.name());
}

std::shared_ptr<const ReportRecord> Check::run(const xercesc::DOMDocument& document) {
  if (document.getDocumentElement() == nullptr)
    report(error, nowhere, [] { return std::string("the document has no element"); });
  scan(document);
  checkPending();
  return report_.build({});
}

void Check::foundElement(std::span<const ScannedAttribute> attributes) {
  levels_.emplace_back();
  countElement();
  counts_.open();
  if (element().standing == Standing::unknown)
    report(error, [&] { return wordsOfUnknownElement(); });
  if (element().standing == Standing::known)
    checkAttributes(attributes);
  else
    bearAll(attributes);
}

void Check::leaveElement() {
  counts_.close();
  levels_.pop_back();
}

void Check::foundText(TextView text, Place place) {
  const LanguageElement* bearer = element().element;
  if (bearer == nullptr || bearer->bearsText || bearer->isFree || levels_.back().hasText)
    return;
  const std::size_t begin = text.find_first_not_of(whiteSpace);
  if (begin == TextView::npos)
    return;
  levels_.back().hasText = true;
  report(warning, placeWithin(text, begin, place), [&] {
    return shown(bearer->name) + " bears no text, and holds " +
           quoted(text.substr(begin, text.find_last_not_of(whiteSpace) + 1 - begin));
  });
}

void Check::foundFault(const Fault& fault) {
  report(error, fault.place, [&] { return shownWords(fault.words); });
}

/// The number of the open element's step in the report.
std::uint32_t Check::step() {
  std::size_t level = levels_.size();
  while (level != 0 && levels_[level - 1].step == 0)
    --level;
  std::uint32_t last = level == 0 ? 0 : levels_[level - 1].step;
  for (; level != levels_.size(); ++level)
    last = levels_[level].step =
        report_.addStep({last, levels_[level].ordinal, open()[level].name, open()[level].place});
  return last;
}

/// Counts the element among its siblings.
void Check::countElement() {
  if (open().size() == 1)
    return;
  const LanguageElement* parent = open()[open().size() - 2].element;
  if (element().child != nullptr)
    checkNumber(*parent, *element().child);
  else if (report_.isListing() && element().standing != Standing::lost) // or nobody would see the number
    levels_.back().ordinal = ++counts_.of(element().name);
}

void Check::checkNumber(const LanguageElement& parent, const LanguageChild& child) {
  // One that cannot stand beside another is too many, whatever their number.
  constexpr std::uint32_t isExcluded = std::uint32_t{1} << 31U;
  std::uint32_t& count = counts_.of(parent, child);
  ++count;
  levels_.back().ordinal = count & ~isExcluded;
  const LanguageElement* other = count == 1 ? standingBeside(parent, child) : nullptr;
  if (other != nullptr) {
    count |= isExcluded;
    report(error, [&] {
      return shown(parent.name) + " takes either " + shown(other->name) + " or " + shown(child.element->name) +
             ", and has " + shown(other->name) + " already";
    });
  } else if (child.described->most != 0 && count == child.described->most + 1) {
    report(error, [&] {
      return shown(parent.name) + " takes no more than " + std::to_string(child.described->most) + ' ' +
             shown(child.element->name);
    });
  }
}

/// One of the alternatives to a child that stands there already; null for none.
const LanguageElement* Check::standingBeside(const LanguageElement& parent, const LanguageChild& child) {
  for (const LanguageElement* alternative : child.alternatives) {
    const LanguageChild* other = parent.child(alternative->name);
    if (other != nullptr && other != &child && counts_.of(parent, *other) != 0)
      return alternative;
  }
  return nullptr;
}

std::string Check::wordsOfUnknownElement() const {
  const TextView name = element().name;
  if (open().size() == 1) {
    const std::string chart = shown(Language::get().root().name);
    return "the root is " + quoted(name) + ", and that of a chart is " + chart + suggestion(name, {chart});
  }
  const LanguageElement& parent = *open()[open().size() - 2].element;
  return unknownElement(name, parent.name, parent);
}

void Check::checkAttributes(std::span<const ScannedAttribute> attributes) {
  const LanguageElement& known = *element().element;
  for (const ScannedAttribute& given : attributes) {
    if (const LanguageAttribute* attribute = known.attribute(given.name)) {
      checkAttribute(*attribute, given.value);
      continue;
    }
    // An id that the language does not have there is found by references all the same.
    if (given.name == OrbUni::_id && known.isFree)
      bear(given.value);
    else if (given.name == OrbUni::_id)
      takeBearer(given.value);
    if (!known.isFree && !isNobodys(given.name))
      report(error, [&] {
        return shown(known.name) + " has no attribute " + quoted(given.name) + hintForAttribute(known, given.name);
      });
  }
}

void Check::checkAttribute(const LanguageAttribute& attribute, TextView value) {
  if (!isLegal(*attribute.described, value))
    report(error, [&] { return wordsOfIllegalValue(attribute, value); });
  else if (attribute.described->kind == AttributeKind::id)
    checkId(value);
  else if (isReference(*attribute.described))
    refer(attribute, value);
}

std::string Check::wordsOfIllegalValue(const LanguageAttribute& attribute, TextView value) const {
  const std::string place = shown(attribute.name) + " of " + shown(element().name) + " is ";
  if (isReference(*attribute.described))
    return place + "empty, and takes the id of " + targetNames(attribute);
  return place + (value.empty() ? "empty" : quoted(value)) + ", and takes " + legalValues(*attribute.described) +
         suggestion(value, wordsOf(*attribute.described));
}

void Check::checkId(TextView id) {
  if (!isXmlName(id))
    report(warning, [&] { return "id " + quoted(id) + " is no XML name, and a parser that validates refuses it"; });
  bear(id);
}

void Check::bearAll(std::span<const ScannedAttribute> attributes) {
  for (const auto& [name, value] : attributes) {
    if (name == OrbUni::_id)
      bear(value);
  }
}

/// Takes the open element as the bearer of an id, if it is the first. Nothing bears an empty one.
void Check::bear(TextView id) {
  const Bearer* first = id.empty() ? nullptr : takeBearer(id);
  if (first != nullptr && (element().standing == Standing::known || element().standing == Standing::passedOver))
    report(error, [&] { return "id " + quoted(id) + " is given twice: " + wordsOfBearer(*first) + " has it already"; });
}

/// The same without a word. The bearer that there is already; null for none.
const Bearer* Check::takeBearer(TextView id) {
  Bearer& bearer = bearerOf(ids_.numberOf(id));
  if (bearer.stands)
    return &bearer;
  bearer = {true, element().standing, element().element, element().name, element().place.line};
  return nullptr;
}

Bearer& Check::bearerOf(std::uint32_t id) {
  if (id == bearers_.size())
    bearers_.emplace_back();
  return bearers_[id];
}

void Check::refer(const LanguageAttribute& attribute, TextView id) {
  const std::uint32_t number = ids_.numberOf(id);
  const Bearer& bearer = bearerOf(number);
  if (!bearer.stands)
    pending_.push_back({report_.takeTurn(), &attribute, number, step()});
  else if (!leadsTo(attribute, bearer))
    report(error, [&] { return wordsOfBadReference(attribute, element().name, number); });
}

/// Tells of the references whose ids came later than they, or not at all.
void Check::checkPending() {
  for (const Pending& pending : pending_) {
    if (leadsTo(*pending.attribute, bearers_[pending.id]))
      continue;
    const OpenStep& step = report_.step(pending.step);
    if (report_.isListingLate())
      report_.addLate(pending.turn, error, step.place, pending.step,
                      wordsOfBadReference(*pending.attribute, step.name, pending.id));
    else
      report_.count(error);
  }
}

std::string Check::wordsOfBadReference(const LanguageAttribute& attribute, TextView referrer, std::uint32_t id) const {
  const std::string place = shown(attribute.name) + " of " + shown(referrer) + ' ';
  const Bearer& bearer = bearers_[id];
  if (!bearer.stands)
    return place + "refers to " + quoted(ids_[id]) + ", which is no element's id";
  return place + "must lead to " + targetNames(attribute) + ", and " + quoted(ids_[id]) + " is " +
         wordsOfBearer(bearer) + (bearer.standing == Standing::passedOver ? ", where a load does not look" : "");
}

} // namespace

void ChartChecker::setLimit(std::size_t limit) { limit_ = limit; }
std::size_t ChartChecker::getLimit() const { return limit_; }

ChartChecker::Report ChartChecker::checkFile(const std::string& path) const {
  const PlatformHold platform;
  return Report(Check(limit_).run(FileInput(path)));
}

ChartChecker::Report ChartChecker::checkText(const std::string& xml, const std::string& name) const {
  const PlatformHold platform;
  return Report(Check(limit_).run(TextInput(xml, name)));
}

ChartChecker::Report ChartChecker::checkDocument(const xercesc::DOMDocument* document) const {
  if (document == nullptr)
    raise("A check needs a document, and got a null pointer.");
  return Report(Check(limit_).run(*document));
}
