#include "tests/desktop/Ceremony.h"

#include <algorithm>
#include <cctype>
#include <sstream>

namespace troth::desktop {

namespace {

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Capitals(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

std::string Replaced(std::string text, const Words& words) {
  for (std::size_t from = 0;;) {
    const auto first = text.find('#', from);
    const auto second = first == std::string::npos ? first : text.find('#', first + 1);
    if (second == std::string::npos) return text;
    const auto word = words.find(Capitals(text.substr(first + 1, second - first - 1)));
    from = second + 1;
    if (word == words.end()) continue;
    text.replace(first, from - first, word->second);
    from = first + word->second.size();
  }
}

// "{def name, value}" and "{undef name}", in small letters, as the sample scripts have them.
void CarryOut(const std::string& comment, Words& words) {
  if (comment.starts_with("{def ")) {
    const auto comma = comment.find(',');
    words[Capitals(Trimmed(comment.substr(5, comma - 5)))] =
        Trimmed(comment.substr(comma + 1, comment.size() - comma - 2));
  } else if (comment.starts_with("{undef ")) {
    words.erase(Capitals(Trimmed(comment.substr(7, comment.size() - 8))));
  }
}

SpokenRow Parsed(const std::string& line) {
  const auto comma = line.starts_with('$') ? line.find("$,") : std::string::npos;
  if (comma == std::string::npos) return {line, 0};
  return {Trimmed(line.substr(comma + 2)), std::stoi(line.substr(1))};
}

std::vector<std::string> Lines(const std::string& file) {
  std::vector<std::string> lines;
  std::istringstream text(file);
  for (std::string line; std::getline(text, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(Trimmed(line));
  }
  return lines;
}

}  // namespace

Words WordsOf(const std::string& varsFile) {
  Words words;
  for (const std::string& line : Lines(varsFile))
    if (const auto separator = line.find('='); separator != std::string::npos && separator > 0)
      words[Capitals(Trimmed(line.substr(0, separator)))] = Trimmed(line.substr(separator + 1));
  return words;
}

std::vector<SpokenRow> SpokenRows(const std::string& scriptFile, const Words& userWords) {
  std::vector<SpokenRow> rows;
  Words defined;
  for (const std::string& line : Lines(scriptFile)) {
    SpokenRow row = Parsed(line);
    if (row.text.empty()) continue;
    if (row.text[0] == '@' || row.text[0] == '&') {
      CarryOut(Trimmed(row.text.substr(1)), defined);
      continue;
    }
    row.text = Trimmed(Replaced(Replaced(row.text, userWords), defined));
    rows.push_back(std::move(row));
  }
  return rows;
}

std::string WithoutDelays(const std::string& scriptFile) {
  std::string file;
  for (const std::string& line : Lines(scriptFile)) file += Parsed(line).text + "\r\n";
  return file;
}

std::string CharactersOf(const std::vector<SpokenRow>& rows) {
  std::string heard;
  for (const SpokenRow& row : rows) heard += (row.text[0] == '/' ? "\r" : "") + row.text + '\r';
  return heard;
}

}  // namespace troth::desktop
