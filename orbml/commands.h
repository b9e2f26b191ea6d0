// The commands of the program, each in the source of its name, and what they answer to the shell.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// What the program ends with. Of several files the highest counts.
enum ExitCode : int {
  nothingToReport = 0,
  somethingFound = 1, // findings of any severity, a document that would change
  cannotBeDone = 2,   // a file that cannot be read or written, wrong usage
};

struct CheckOptions {
  std::vector<std::string> files;
  std::string format = "text";
  std::size_t limit = 1000;
};
ExitCode check(const CheckOptions& options);

struct FormatOptions {
  std::vector<std::string> files;
  bool inPlace = false;
  bool checkOnly = false;
};
ExitCode format(const FormatOptions& options);

ExitCode outline(const std::string& file);

struct ReferencesOptions {
  std::string file;
  std::string id;
  bool asGraph = false;
};
ExitCode showReferences(const ReferencesOptions& options);

/// Without an element, an overview of all.
ExitCode describe(const std::string& element);

ExitCode printSchema();
