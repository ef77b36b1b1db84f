#include "runtime/win32/programs/selfx/selfx_texts.h"

#include "formats/self_extraction.h"
#include "helpers/windows_path.h"
#include "platform/win32/program_path.h"
#include "platform/win32/wide_text.h"
#include "runtime/texts/starter_text.h"
#include "runtime/win32/starter/ansi_character.h"

#include <windows.h>

namespace quillon {

namespace {

constexpr int kMaxTextLength = 2000;

bool WritesToOutput(const Text& text)
{
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    const DWORD kind = output == nullptr || output == INVALID_HANDLE_VALUE ? FILE_TYPE_UNKNOWN
                                                                           : GetFileType(output);
    const Text line = text + "\r\n";
    DWORD written = 0;
    return (kind == FILE_TYPE_DISK || kind == FILE_TYPE_PIPE) &&
           WriteFile(output, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
}

} // namespace

SelfTexts::SelfTexts()
{
    const HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(kSelfExtractTexts), RT_RCDATA);
    const HGLOBAL loaded = found != nullptr ? LoadResource(nullptr, found) : nullptr;
    const void* const bytes = loaded != nullptr ? LockResource(loaded) : nullptr;
    if (bytes != nullptr)
        bytes_ = {static_cast<const char*>(bytes), SizeofResource(nullptr, found)};
}

Text SelfTexts::operator()(const StarterMessage& message, std::string_view first) const
{
    char16_t wide[kMaxTextLength];
    Text text = message.swedish;
    if (FindStarterText(bytes_, message.key, AnsiCharacterOf, wide, kMaxTextLength))
        text = Narrow(reinterpret_cast<const wchar_t*>(wide));
    const std::size_t mark = text.find("%1");
    return mark == Text::npos ? text : text.replace(mark, 2, first);
}

void TellUser(const Text& text, bool isFailure)
{
    if (!isFailure && WritesToOutput(text))
        return;
    const UINT kind = MB_OK | MB_SETFOREGROUND | (isFailure ? MB_ICONSTOP : MB_ICONINFORMATION);
    MessageBoxW(nullptr, Wide(text).c_str(), Wide(ExtractFilename(ProgramPath())).c_str(), kind);
}

} // namespace quillon
