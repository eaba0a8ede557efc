#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace vypx {

/// Folder of the program and of its files, without a separator at its end.
inline std::string AppFolder;
/// Where the program itself stands, which need not be writable; else the same.
inline std::string ProgramFolder;
/// Separator and name of the working folder in AppFolder: "temp" for the first running copy,
/// "temp1" and so on for further ones (RunningCopies).
inline std::string TempSuffix;
inline int InstanceNumber = 0; ///< that number; 0 for the first copy

/// A separator and `name`, to be put behind a folder.
std::string BelowFolder(std::string_view name);

/// The working folder, and the path of a file in it.
std::string WorkFolder();
std::string WorkPath(std::string_view name);

/// Name of the working folder of the copy with that number; sets TempSuffix for it.
std::string TempName(int copyNumber);
void SetTempSuffix(int copyNumber);

/// Existing folder; existing file or, when the last part of the path holds "*" or "?", any
/// existing file of the folder that matches it (without regard to case).
bool DirExists(const std::string& path);
bool FileExists(const std::string& path);
/// A file of the user's, in whose name "*" and "?" are letters like any other.
bool NamedFileExists(const std::string& path);

/// Makes a folder if it is missing. A failure throws std::filesystem::filesystem_error.
void MakeFolder(const std::string& path);

/// Deletes the files of the working folder whose names end in one of `endings` (".bmp"), without
/// regard to case. What can't be deleted stays, and gives false; a folder that can't be read has no
/// files.
bool DeleteWorkingFiles(std::initializer_list<std::string_view> endings);

/// Last part of a path, and what stands before it without the separator at its end. "/" separates,
/// on Windows also "\" and ":". A path without any has itself as name and no folder.
std::string LastComponent(std::string_view path);
std::string FolderOf(std::string_view path);

} // namespace vypx
