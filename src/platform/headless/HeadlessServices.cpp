#include "platform/headless/HeadlessServices.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/headless/CaseFolding.h"

namespace troth {

namespace {

// The 32 places of the page that differ from Latin-1. Five of them are unassigned and keep their code.
constexpr std::array<wchar_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

const char* NameOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Stop:
      return "stop";
    case BoxIcon::Question:
      return "question";
    case BoxIcon::Warning:
      return "warning";
    case BoxIcon::Information:
      return "information";
    case BoxIcon::None:
      break;
  }
  return "plain";
}

}  // namespace

bool HeadlessShell::Open(const std::wstring& file, const std::wstring& parameters, const std::wstring&) {
  journal_.Add("open " + HeadlessJournal::Readable(file) +
               (parameters.empty() ? "" : " " + HeadlessJournal::Readable(parameters)));
  return opens;
}

std::optional<std::wstring> HeadlessShell::FindProgramFor(const std::wstring&) { return programForAll; }

bool HeadlessShell::Start(const std::wstring& commandLine) {
  journal_.Add("start " + HeadlessJournal::Readable(commandLine));
  return starts && !commandLine.empty();
}

std::optional<std::wstring> HeadlessShell::ReadRegistry(RegistryRoot, const std::wstring& key,
                                                        const std::wstring& valueName) {
  const auto found = registry.find(valueName.empty() ? key : key + L'\\' + valueName);
  return found == registry.end() ? std::nullopt : std::optional(found->second);
}

bool HeadlessShell::ShowHelpFile(const std::wstring& helpFile, int topic) {
  if (hasHelpViewer)
    journal_.Add("help " + HeadlessJournal::Readable(helpFile) + " " + std::to_string(topic));
  return hasHelpViewer;
}

void HeadlessShell::CloseHelpFile(const std::wstring& helpFile) {
  if (hasHelpViewer) journal_.Add("help " + HeadlessJournal::Readable(helpFile) + " closed");
}

std::wstring HeadlessSettings::Name(const std::wstring& application, const std::wstring& section,
                                    const std::wstring& key) {
  return CaseFolded(application) + L'\n' + CaseFolded(section) + L'\n' + CaseFolded(key);
}

std::optional<std::wstring> HeadlessSettings::Read(const std::wstring& application,
                                                   const std::wstring& section,
                                                   const std::wstring& key) const {
  const auto found = values_.find(Name(application, section, key));
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

void HeadlessSettings::Write(const std::wstring& application, const std::wstring& section,
                             const std::wstring& key, const std::wstring& value) {
  if (journal_)
    journal_->Add("save " +
                  HeadlessJournal::Readable(application + L'\\' + section + L'\\' + key + L'=' + value));
  Put(application, section, key, value);
}

void HeadlessSettings::Put(const std::wstring& application, const std::wstring& section,
                           const std::wstring& key, const std::wstring& value) {
  values_[Name(application, section, key)] = value;
}

BoxAnswer HeadlessDialogs::ShowMessage(const MessageBoxRequest& request) {
  shown_.push_back(request);
  const std::string shown =
      HeadlessJournal::Readable(request.title) + ": " + HeadlessJournal::Readable(request.text);
  journal_.Add(std::string("box ") + NameOf(request.icon) + " " + shown);
  if (whileUp_) std::exchange(whileUp_, {})();
  if (!answers_.empty()) {
    const BoxAnswer answer = answers_.front();
    answers_.pop_front();
    return answer;
  }
  if (request.buttons == BoxButtons::Ok) return BoxAnswer::Ok;
  throw HeadlessFailure("nobody answers the box " + shown);
}

std::optional<std::wstring> HeadlessDialogs::AskText(const TextRequest& request) {
  const std::string shown = HeadlessJournal::Readable(request.title) + ": " +
                            HeadlessJournal::Readable(request.prompt) + " [" +
                            HeadlessJournal::Readable(request.preset) + "]";
  journal_.Add("ask " + shown);
  if (whileUp_) std::exchange(whileUp_, {})();
  if (texts_.empty()) throw HeadlessFailure("nobody answers the question " + shown);
  const auto answer = texts_.front();
  texts_.pop_front();
  return answer;
}

std::optional<Color> HeadlessDialogs::AskColor(const ColorRequest& request) {
  const std::string shown =
      HeadlessJournal::Readable(request.title) + " [" + std::to_string(request.preset) + "]";
  journal_.Add("ask " + shown);
  if (colors_.empty()) throw HeadlessFailure("nobody answers the question " + shown);
  const auto answer = colors_.front();
  colors_.pop_front();
  return answer;
}

std::optional<std::wstring> HeadlessDialogs::AskOpenFile(const FileRequest& request) {
  return AskFile(request);
}
std::optional<std::wstring> HeadlessDialogs::AskSaveFile(const FileRequest& request) {
  return AskFile(request);
}

std::optional<std::wstring> HeadlessDialogs::AskFile(const FileRequest& request) {
  filesAsked_.push_back(request);
  const std::string question =
      HeadlessJournal::Readable(request.title) + " [" + HeadlessJournal::Readable(request.fileName) + "]";
  journal_.Add("ask " + question);
  if (whileUp_) std::exchange(whileUp_, {})();
  if (paths_.empty()) throw HeadlessFailure("nobody answers the question " + question);
  auto answer = std::move(paths_.front());
  paths_.pop_front();
  return answer;
}

std::uint16_t HeadlessKeyboard::AddGlobalAtom(const std::wstring& name) {
  const auto held = std::find_if(atoms_.begin(), atoms_.end(), [&](const auto& atom) {
    return CaseFolded(atom.second) == CaseFolded(name);
  });
  const std::uint16_t atom = held != atoms_.end() ? held->first : ++lastAtom_;
  atoms_.emplace(atom, name);
  ++holders_[atom];
  return atom;
}

void HeadlessKeyboard::DeleteGlobalAtom(std::uint16_t atom) {
  if (--holders_[atom] > 0) return;
  holders_.erase(atom);
  atoms_.erase(atom);
}

std::wstring HeadlessText::Decode(std::string_view bytes) const {
  std::wstring text(bytes.size(), L'\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    text[i] = byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80u] : static_cast<wchar_t>(byte);
  }
  return text;
}

std::string HeadlessText::Encode(std::wstring_view text) const {
  std::string bytes(text.size(), '?');
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto code = static_cast<std::uint32_t>(text[i]);
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) {
      bytes[i] = static_cast<char>(code);
      continue;
    }
    for (std::size_t high = 0; high < kHighControls.size(); ++high)
      if (text[i] == kHighControls[high]) bytes[i] = static_cast<char>(0x80 + high);
  }
  return bytes;
}

}  // namespace troth
