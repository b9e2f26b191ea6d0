// Checks the reference pages: every link inside them leads to a page that is there and to a place that it has, and
// every class stands in exactly one topic.
#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Names = std::set<std::string, std::less<>>;

struct Page {
  std::vector<std::string> links{};
  Names places{};
  std::size_t topics = 0;
};

/// The values of an attribute in a text of HTML.
template <class Use> void forEachValue(std::string_view html, std::string_view name, Use use) {
  const std::string opening = " " + std::string(name) + "=\"";
  for (std::size_t found = html.find(opening); found != html.npos; found = html.find(opening, found)) {
    found += opening.size();
    use(html.substr(found, html.find('"', found) - found));
  }
}

std::string unescape(std::string_view value) {
  std::string text(value);
  for (std::size_t at = text.find("&amp;"); at != text.npos; at = text.find("&amp;", at + 1))
    text.erase(at + 1, 4);
  return text;
}

bool leadsOutside(std::string_view link) {
  return link.starts_with("http://") || link.starts_with("https://") || link.starts_with("javascript:");
}

/// How many topics the head of a class's page names.
std::size_t countTopics(std::string_view html) {
  const std::size_t begin = html.find("<div class=\"ingroups\">");
  if (begin == html.npos)
    return 0;
  std::size_t count = 0;
  forEachValue(html.substr(begin, html.find("</div>", begin) - begin), "href", [&](std::string_view) { ++count; });
  return count;
}

Page readPage(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string html{std::istreambuf_iterator<char>(file), {}};
  Page page;
  for (const std::string_view name : {"href", "src"})
    forEachValue(html, name, [&](std::string_view value) { page.links.push_back(unescape(value)); });
  for (const std::string_view name : {"id", "name"})
    forEachValue(html, name, [&](std::string_view value) { page.places.insert(unescape(value)); });
  page.topics = countTopics(html);
  return page;
}

/// The page of a class that stands in no other class.
bool isClassPage(const std::string& name) {
  const bool describes = name.starts_with("class") || name.starts_with("struct") || name.starts_with("union");
  const bool isNested = name.find("_1_1") != name.npos;
  return describes && !isNested && name.find("-members.") == name.npos && name != "classes.html";
}

class Check {
public:
  explicit Check(const std::filesystem::path& directory) : directory_(directory) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(directory)) {
      if (entry.path().extension() == ".html")
        pages_.emplace(std::filesystem::relative(entry.path(), directory).generic_string(), readPage(entry.path()));
    }
  }

  bool passes() {
    for (const auto& [name, page] : pages_) {
      for (const std::string& link : page.links)
        follow(name, link);
      if (isClassPage(name))
        checkTopics(name, page);
    }
    if (classes_ == 0)
      complain(directory_.string(), "has no page of a class");
    std::cout << pages_.size() << " pages, " << links_ << " links, " << classes_ << " classes, " << faults_
              << " faults\n";
    return faults_ == 0;
  }

private:
  void follow(const std::string& from, const std::string& link) {
    if (leadsOutside(link))
      return;
    ++links_;
    const std::size_t hash = std::min(link.find('#'), link.size());
    const std::string path = link.substr(0, hash);
    const std::string place = link.substr(std::min(hash + 1, link.size()));
    const std::string target =
        path.empty() ? from : (std::filesystem::path(from).parent_path() / path).lexically_normal().generic_string();
    const auto page = pages_.find(target);
    if (page == pages_.end() ? !std::filesystem::is_regular_file(directory_ / target)
                             : !place.empty() && !page->second.places.contains(place))
      complain(from, "leads nowhere with \"" + link + "\"");
  }

  void checkTopics(const std::string& name, const Page& page) {
    ++classes_;
    if (page.topics != 1)
      complain(name, "stands in " + std::to_string(page.topics) + " topics: \\ingroup is missing, or there are two");
  }

  /// A file that every page asks for may be missing: after some time faults are only counted.
  void complain(const std::string& page, const std::string& fault) {
    if (++faults_ <= 50)
      std::cerr << page << ' ' << fault << '\n';
  }

  std::filesystem::path directory_;
  std::map<std::string, Page> pages_{};
  std::size_t links_ = 0;
  std::size_t classes_ = 0;
  std::size_t faults_ = 0;
};

} // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: " << arguments[0] << " DIRECTORY\n";
    return 2;
  }
  try {
    return Check(arguments[1]).passes() ? 0 : 1;
  } catch (const std::exception& exception) {
    std::cerr << exception.what() << '\n';
    return 1;
  }
}
