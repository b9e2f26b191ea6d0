// The error log, as the tests read it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace test {

/// The error log goes to a directory of its own while this stands.
class Log {
public:
  Log() {
    std::string name = (std::filesystem::temp_directory_path() / "orbchartXXXXXX").string();
    directory_ = mkdtemp(name.data());
    setenv("DumpChartXMLPath", (directory_ / "log").c_str(), 1);
  }
  Log(const Log&) = delete;
  Log& operator=(const Log&) = delete;
  ~Log() {
    unsetenv("DumpChartXMLPath");
    std::filesystem::remove_all(directory_);
  }

  /// What was logged until now, each entry from its kind to where its place begins.
  std::vector<std::string> messages() const {
    std::stringstream whole;
    whole << std::ifstream(directory_ / R"(log\orbchart_error.log)").rdbuf();
    const std::string text = whole.str();
    std::vector<std::string> result;
    for (std::size_t at = 0; (at = text.find("Error -- ", at)) != std::string::npos; at += result.back().size())
      result.push_back(text.substr(at, text.find(" at file ", at) - at));
    return result;
  }

private:
  std::filesystem::path directory_;
};

} // namespace test
