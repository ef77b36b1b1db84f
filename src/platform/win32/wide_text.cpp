#include "platform/win32/wide_text.h"

#include "platform/run_error.h"

#include <algorithm>
#include <windows.h>

namespace quillon {

namespace {

// A folder's limit is lower than a file's, since a file of a short name must still fit below it.
constexpr std::size_t kMaxPlainPathLength = MAX_PATH - 13;

} // namespace

std::wstring Wide(std::string_view text)
{
    const int size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), length);
    return wide;
}

Text Narrow(std::wstring_view text)
{
    const int size = static_cast<int>(text.size());
    const int length =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    Text narrow(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), length, nullptr, nullptr);
    return narrow;
}

std::wstring WidePath(const Text& path)
{
    if (path.find('\0') != Text::npos)
        throw RunError(ErrorNumber::kBadFileName, path);
    std::wstring wide = Wide(path);
    std::replace(wide.begin(), wide.end(), L'/', L'\\');
    if (wide.size() < kMaxPlainPathLength)
        return wide;
    if (wide.starts_with(L"\\\\"))
        return L"\\\\?\\UNC" + wide.substr(1);
    return wide.size() > 2 && wide[1] == L':' ? L"\\\\?\\" + wide : wide;
}

} // namespace quillon
