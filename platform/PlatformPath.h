#pragma once

#include <string>

// A path as the platform's Unicode file functions take it.  A path of 248 characters or more, made
// absolute, gets the prefix "\\?\" ("\\?\UNC\" for a share), with which the limit of 260 characters
// does not hold; a shorter one stays as it is.  A path with a NUL inside names nothing: the result
// is empty.
[[nodiscard]] std::wstring ToPlatformPath(const std::string& utf8);

// The same, made absolute also when it is short.
[[nodiscard]] std::wstring ToAbsolutePlatformPath(const std::string& utf8);
