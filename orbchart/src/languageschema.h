// The language as an XML schema.
#pragma once

#include "language.h"

#include <string>

namespace orbchart {

std::string utf8NamespaceURI();

std::string writeSchema(const Language& language);

} // namespace orbchart
