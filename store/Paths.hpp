#pragma once

#include <string>
#include <string_view>

/// A folder and a name as one path, with a "/" between them unless the folder ends in a separator.
std::string JoinPath(std::string_view Folder, std::string_view Name);

/// The path of a file in the preferences folder; empty if Name is empty or there is no such folder.
std::string PrefFilePath(std::string_view Name);

/// The path of a file that ships beside the program; empty if the program's folder is unknown.
std::string BaseFilePath(std::string_view Path);

/// The rule for all shipped paths: relative, without a colon, and without "." or ".." as a component.
bool IsSafeRelativePath(std::string_view Path);
