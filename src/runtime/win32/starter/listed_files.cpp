#include "runtime/win32/starter/listed_files.h"

#include "formats/manifest_line.h"

#include <windows.h>

namespace {

// Several times the size of the longest possible list of files.
constexpr DWORD kMaxManifestSize = 64U * 1024 * 1024;

HANDLE OpenToRead(const wchar_t* path)
{
    return CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                       FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
}

std::string_view WholeFile(const wchar_t* path)
{
    const HANDLE file = OpenToRead(path);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    std::string_view text;
    const DWORD size = GetFileSize(file, nullptr);
    void* const memory =
        size > 0 && size <= kMaxManifestSize ? HeapAlloc(GetProcessHeap(), 0, size) : nullptr;
    DWORD read = 0;
    if (memory != nullptr && ReadFile(file, memory, size, &read, nullptr) && read == size)
        text = {static_cast<const char*>(memory), size};
    CloseHandle(file);
    return text;
}

bool DigestOf(const wchar_t* path, quillon::Sha256Digest& digest)
{
    const HANDLE file = OpenToRead(path);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    // Less than a page: the compiler asks its library for more of the stack than that.
    std::byte piece[3584];
    quillon::Sha256 hash;
    DWORD read = 0;
    bool isRead = false;
    while ((isRead = ReadFile(file, piece, sizeof piece, &read, nullptr) != 0) && read > 0)
        hash.Add({piece, read});
    CloseHandle(file);
    digest = hash.Finish();
    return isRead;
}

} // namespace

ListedFiles::ListedFiles(const wchar_t* path)
    : isThere_(GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES),
      text_(isThere_ ? WholeFile(path) : std::string_view())
{
}

bool ListedFiles::HasLine(const quillon::Sha256Digest& digest, std::string_view name) const
{
    std::string_view rest = text_;
    while (const auto line = quillon::ParseManifestLine(rest)) {
        const bool isMeant = name.empty() || line->name == name;
        if (isMeant && quillon::DigestOfDigits(line->digits) == digest)
            return true;
    }
    return false;
}

bool ListedFiles::Hold(const wchar_t* path, std::string_view name) const
{
    quillon::Sha256Digest digest;
    return DigestOf(path, digest) && HasLine(digest, name);
}

bool ListedFiles::Hold(const wchar_t* path) const
{
    return Hold(path, {});
}
