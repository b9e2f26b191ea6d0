// The fields of a text, which ";" separates.
#pragma once

#include "chartstring.h"

#include <algorithm>
#include <string_view>

namespace orbchart {

/// The fields of a text, one after the other. An empty field does not exist.
class TextFields {
public:
  explicit TextFields(const ChartString& text) : rest_(text.empty() ? u"" : text.xc_str()) {}
  /// The next field; empty after the last.
  std::basic_string_view<XMLCh> next() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(u';'), rest_.size()));
    const auto field = rest_.substr(0, rest_.find(u';'));
    rest_.remove_prefix(field.size());
    return field;
  }

private:
  std::basic_string_view<XMLCh> rest_;
};

} // namespace orbchart
