#include "tests/desktop/Stage.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "tests/desktop/Patience.h"

namespace troth::desktop {

namespace {

namespace fs = std::filesystem;

constexpr wchar_t kStore[] = L"Software\\Trothline\\Troth";
constexpr UINT kCrashed = 70;

LONG WINAPI EndCrashed(EXCEPTION_POINTERS*) {
  TerminateProcess(GetCurrentProcess(), kCrashed);
  return EXCEPTION_EXECUTE_HANDLER;
}

// A crash of the tests themselves opens no box of the system, which would hang the run.
[[maybe_unused]] const bool crashesQuietly = [] {
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
  SetUnhandledExceptionFilter(EndCrashed);
  return true;
}();

fs::path TestFolder() {
  wchar_t path[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  return fs::path(path).parent_path();
}

// The programs lie beside the tests, or in the build folder above them.
fs::path ProgramFolder() {
  if (const wchar_t* told = _wgetenv(L"TROTH_PROGRAM")) return told;
  const fs::path here = TestFolder();
  return fs::exists(here / "Troth.exe") ? here : here.parent_path();
}

fs::path ScratchFolder() {
  if (const wchar_t* told = _wgetenv(L"TROTH_TEMP")) return told;
  return fs::temp_directory_path() / "TrothlineDesktopTests";
}

// A sample ceremony takes a picture as well.
fs::path ScreenshotFolder() { return ProgramFolder() / "Screenshots"; }

std::wstring NewTranscript() {
  static int count = 0;
  const fs::path folder = ScratchFolder();
  fs::create_directories(folder);
  const fs::path file = folder / ("heard" + std::to_string(++count) + ".txt");
  fs::remove(file);
  return file.wstring();
}

constexpr wchar_t kFileType[] = L"Trothline.TestFile";

// The unnamed value of a key of file types; empty if there is none.
std::wstring RegisteredValue(const std::wstring& key) {
  wchar_t value[128] = {};
  DWORD size = sizeof value;
  RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, value, &size);
  return value;
}
void Register(const std::wstring& key, const std::wstring& value) {
  RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, value.c_str(),
                  static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

std::vector<std::wstring> WithTranscript(std::vector<std::wstring> arguments, const std::wstring& file) {
  arguments.insert(arguments.end(), {L"--transcript", file});
  return arguments;
}

}  // namespace

std::wstring ProgramPath(const std::wstring& executable) { return (ProgramFolder() / executable).wstring(); }

// Beside the programs where they are installed; in the sources, above the build folder, where they are built.
std::wstring SampleScriptPath(const std::wstring& script) {
  const fs::path below = fs::path(L"wedscripts") / script;
  if (const fs::path shipped = ProgramFolder() / below; fs::exists(shipped)) return shipped.wstring();
  for (fs::path folder = TestFolder(); folder.has_relative_path(); folder = folder.parent_path())
    if (const fs::path source = folder / "program" / below; fs::exists(source)) return source.wstring();
  throw std::runtime_error("no sample scripts beside the program");
}

std::string ReadBytes(const std::wstring& path) {
  std::ifstream file(fs::path(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteBytes(const std::wstring& path, const std::string& bytes) {
  std::ofstream(fs::path(path), std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

ProgramFile::ProgramFile(const std::wstring& name, const std::string& bytes) : path_(ProgramPath(name)) {
  if (fs::exists(path_)) before_ = Bytes();
  WriteBytes(path_, bytes);
}

ProgramFile::~ProgramFile() {
  std::error_code ignored;
  if (before_)
    WriteBytes(path_, *before_);
  else
    fs::remove(path_, ignored);
}

Game::Game(const std::vector<std::wstring>& arguments)
    : transcript_(NewTranscript()),
      process_(ProgramPath(L"KestrelMoors.exe"), WithTranscript(arguments, transcript_)) {
  if (!Eventually([this] { return !process_.Windows().empty(); }))
    throw std::runtime_error("the game shows no window");
  window_ = process_.Windows().front();
}

Game::~Game() {
  std::error_code ignored;
  fs::remove(transcript_, ignored);
}

Heard Game::HeardSoFar() const {
  const std::string bytes = ReadBytes(transcript_);
  std::istringstream lines(bytes.substr(0, bytes.rfind('\n') + 1));
  Heard heard;
  unsigned code = 0;
  for (long long second = 0; lines >> code >> second;) {
    heard.bytes += static_cast<char>(code);
    heard.seconds.insert(second);
  }
  return heard;
}

// The request to close stands in the game's queue behind all that was posted before it.
Heard Game::HeardToTheEnd() {
  PostMessageW(window_, WM_CLOSE, 0, 0);
  if (process_.ExitCode() != 0u) throw std::runtime_error("the game did not end well");
  return HeardSoFar();
}

void Game::EndStall() {
  const std::wstring name = L"KestrelMoors.Resume." + std::to_wstring(process_.Id());
  const Unique<HANDLE, CloseHandle> resume(OpenEventW(EVENT_MODIFY_STATE, FALSE, name.c_str()));
  if (!resume) throw std::runtime_error("the game does not stall");
  SetEvent(resume.get());
}

Troth::Troth() : process_(ProgramPath(L"Troth.exe")) {}

HWND Troth::Window() { return window_ ? window_ : window_ = AwaitForm(L"frmTroth"); }

HWND Troth::AwaitForm(const std::wstring& name) const {
  HWND form = nullptr;
  if (!Eventually([&] { return (form = process_.FindForm(name)) != nullptr; }))
    throw std::runtime_error(fs::path(name).string() + " is not shown");
  return form;
}

bool Troth::Quit() {
  Choose(L"MFileQuit");
  return process_.ExitCode() == 0u;
}

HWND Troth::Control(const std::wstring& name) {
  const HWND control = FindNamed(Window(), name);
  if (!control) throw std::runtime_error("no control is named " + fs::path(name).string());
  return control;
}

void Troth::SetChecked(const std::wstring& item, bool checked) {
  if (Checked(item) == checked) return;
  Choose(item);
  if (!Eventually([&] { return Checked(item) == checked; }))
    throw std::runtime_error("the check mark does not change");
}

Box Troth::AwaitBox() const {
  if (!Eventually([this] { return BoxIsUp(); })) throw std::runtime_error("no message box comes up");
  return process_.FindBox().value();
}

void Troth::Answer(const Box& box) const {
  PressOk(box);
  if (!Eventually([&] { return !IsWindow(box.window); }))
    throw std::runtime_error("the message box does not close");
}

void Troth::AnswerBox(const std::wstring& text) const {
  const Box box = AwaitBox();
  EXPECT_EQ(box.title, L"Trothline");
  EXPECT_EQ(box.text, text);
  RealHands(box.window).Press(VK_RETURN);
  AWAIT(!IsWindow(box.window));
}

void Troth::AnswerQuestion(const std::wstring& prompt, const std::string& answer) const {
  HWND question = nullptr;
  AWAIT_EQ(prompt, (question = process_.FindForm(L"InputBox")) ? TextOf(FindNamed(question, L"lblPrompt"))
                                                               : L"no question");
  RealHands(question).Type(answer);
  AWAIT_EQ(std::wstring(answer.begin(), answer.end()), TextOf(FindNamed(question, L"txtAnswer")));
  RealHands(question).Press(VK_RETURN);
  AWAIT(!IsWindowVisible(question));
}

RegisteredReader::RegisteredReader(const std::wstring& extension, const std::wstring& commandLine)
    : extension_(extension), before_(RegisteredValue(extension)) {
  Register(extension, kFileType);
  Register(std::wstring(kFileType) + L"\\shell\\open\\command", commandLine);
}

RegisteredReader::~RegisteredReader() {
  before_.empty() ? void(RegDeleteTreeW(HKEY_CLASSES_ROOT, extension_.c_str()))
                  : Register(extension_, before_);
  RegDeleteTreeW(HKEY_CLASSES_ROOT, kFileType);
}

void ExpectNear(HWND window, POINT corner) {
  constexpr int kFrame = 40;
  EXPECT_NEAR(CornerOf(window).x, corner.x, kFrame);
  EXPECT_NEAR(CornerOf(window).y, corner.y, kFrame);
}

void DesktopTest::SetUp() {
  hadScreenshots_ = fs::exists(ScreenshotFolder());
  for (const wchar_t* game : {L"Kestrel Moors", L"Kestrel Moors Pale Light"})
    ASSERT_FALSE(FindWindowW(game, nullptr)) << "a game is running already and would hear this test's words";
  ForgetAllSettings();
  SkipGreetings();
  fs::create_directories(ScratchFolder());
}

void DesktopTest::TearDown() {
  ForgetAllSettings();
  std::error_code ignored;
  fs::remove_all(ScratchFolder() / "scripts", ignored);
  if (!hadScreenshots_) fs::remove_all(ScreenshotFolder(), ignored);
}

std::wstring DesktopTest::ScratchPath(const std::wstring& name) const {
  fs::create_directories(ScratchFolder() / "scripts");
  return (ScratchFolder() / "scripts" / name).wstring();
}

std::wstring DesktopTest::UseScript(const std::string& bytes, const std::wstring& name) {
  const std::wstring path = ScratchPath(name);
  WriteBytes(path, bytes);
  UseScriptPath(path);
  return path;
}

void DesktopTest::UseScriptPath(const std::wstring& path) { StoreSetting(L"Options", L"Last Script", path); }

void DesktopTest::ForgetAllSettings() { RegDeleteTreeW(HKEY_CURRENT_USER, kStore); }

void DesktopTest::SkipGreetings() {
  StoreSetting(L"Options", L"Show Tips at Startup", L"0");
  StoreSetting(L"Options", L"Last Installed Version", kVersion);
  // Clear of the main window, where it would take the clicks.
  StoreSetting(L"Options", L"Index X Position", L"15000");
  StoreSetting(L"Options", L"Index Y Position", L"9000");
}

void DesktopTest::StoreSetting(const std::wstring& section, const std::wstring& key,
                               const std::wstring& value) {
  const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
  const std::wstring path = std::wstring(kStore) + L'\\' + section;
  ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), key.c_str(), REG_SZ, value.c_str(), size),
            ERROR_SUCCESS);
}

std::wstring DesktopTest::StoredSetting(const std::wstring& section, const std::wstring& key) {
  const std::wstring path = std::wstring(kStore) + L'\\' + section;
  wchar_t value[1024] = L"";
  DWORD size = sizeof value;
  RegGetValueW(HKEY_CURRENT_USER, path.c_str(), key.c_str(), RRF_RT_REG_SZ, nullptr, value, &size);
  return value;
}

}  // namespace troth::desktop
