// Replaces the patch program by a new copy that lies in its folder, and reads the patch program's settings.
// Never starts the patch program and never shows a message.
#pragma once

#include <string>

namespace troth {

class FileService;
class Program;

namespace modAutoPatch {

// Agreed names and texts of the patch program; most are unused here. Paths are below the program folder.
inline constexpr wchar_t kPatchProgram[] = L"\\TrothAutoPatch.exe";
inline constexpr wchar_t kWaitingPatchProgram[] = L"\\AutoPatch\\TrothAutoPatch.exe";
inline constexpr wchar_t kLogFile[] = L"\\Patchlog.txt";
inline constexpr wchar_t kLogRule[] = L"==================================================================";
inline constexpr wchar_t kLogTitle[] = L"Trothline Autopatch version ";
inline constexpr wchar_t kLogHead[] = L"Patch log file - ";
inline constexpr wchar_t kDateFormat[] = L"mmm d, yyyy";
inline constexpr wchar_t kTimeFormat[] = L"hh:nn:ss";
inline constexpr wchar_t kLogStart[] = L"Starting autopatch";
inline constexpr wchar_t kServer[] = L"https://trothline.example/";
inline constexpr wchar_t kServerUpdateFile[] = L"public/trothline/update.inf";
inline constexpr wchar_t kPatchFolder[] = L"\\Patch";
inline constexpr wchar_t kUpdateFile[] = L"update.inf";
inline constexpr wchar_t kMainProgram[] = L"\\Troth.exe";
// The file's or folder's name stands between the two pieces of a message.
inline constexpr wchar_t kUpdateFileStays[] =
    L"Cannot delete the local copy of the upgrade information file. Please manually delete the file named ";
inline constexpr wchar_t kUpdateFileStaysEnd[] = L" and try to patch again.";
inline constexpr wchar_t kOldFilesStay[] =
    L"Cannot delete old update files. Please manually delete the contents of the ";
inline constexpr wchar_t kOldFilesStayEnd[] = L" directory.";
// Follows the number of a critical error.
inline constexpr wchar_t kCriticalError[] =
    L": the program cannot continue. Please report this number to officiant@trothline.example for "
    L"assistance.";

// Reads the patch program's settings into the run.
void ReadPatchSettings(Program& program);

// Puts a waiting copy of the patch program in the place of the one in use. If that fails, both stay as they
// are.
void SwapInPatchProgram(FileService& files);

// Creates the folders on the way to a file, each that is not there yet. The last component of the path is
// taken for a file name. What cannot be created is passed over.
void MakeFolderPath(FileService& files, const std::wstring& path);

}  // namespace modAutoPatch
}  // namespace troth
