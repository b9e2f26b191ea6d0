// orbml schema: the schema of the language.
#include "commands.h"

#include <chartlanguage.h>

#include <iostream>

ExitCode printSchema() {
  std::cout << ChartLanguage::schema();
  return nothingToReport;
}
