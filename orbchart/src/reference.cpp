// References.
#include "reference.h"

#include "chartstring.h"
#include "raise.h"

namespace orbchart {

void AnyReference::requireTarget(const OrbBaseElement& wrapper, const char* word, const char* file,
                                 unsigned int line) const {
  if (get(wrapper) == nullptr)
    raise("Attribute " + std::string(word) + " refers to " + ChartString(wrapper.GetAttribute(name)).toUTF8() +
              ", but that element does not exist.",
          file, line);
}

} // namespace orbchart
