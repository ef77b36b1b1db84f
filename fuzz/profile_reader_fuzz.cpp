// Profile files of any content: no text is longer than its limit, no number larger than its type,
// and a value that is written is the value that is read.
#include "ini/profile_reader.h"
#include "ini/profile_writer.h"
#include "require.h"

#include "helpers/ansi_text.h"
#include "support/one_file_host.h"

using namespace quillon;

namespace {

constexpr const char* kPath = "C:\\a.ini";
constexpr const char* kSection = "S";
constexpr const char* kKey = "K";

bool Overflows(const ProfileReader& reader)
{
    const int error = RunErrorNumber([&] { reader.ReadIniInteger(kKey); });
    Require(error == ErrorNumber::kNone || error == ErrorNumber::kOverflow);
    return error != ErrorNumber::kNone;
}

void ReadEverything(const ProfileReader& reader)
{
    for (const int limit : {0, 1, 2, 200, 5000})
        Require(AnsiText::ToBytes(reader.ReadIniString(kKey, limit)).size() <=
                static_cast<std::size_t>(limit > 0 ? limit - 1 : 0));
    Require(reader.ReadIniString(kKey, 5001) == "Overflow!!!");
    const Flag flag = reader.ReadIniBoolean(kKey);
    Require(flag == kOff || flag == kOn);
    if (!Overflows(reader))
        Require(reader.ReadIniInteger(kKey) == reader.ReadIniLong(kKey));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    test::OneFile files(std::string(reinterpret_cast<const char*>(bytes), size));
    ProfileReader reader;
    reader.SetIniSection(kSection);
    reader.SetIniFile(files, kPath);
    ReadEverything(reader);

    WriteProfileValue(files, kPath, kSection, kKey, "new value");
    reader.SetIniFile(files, kPath);
    Require(reader.ReadIniString(kKey, 200) == "new value");
    const std::string once = files.bytes;
    WriteProfileValue(files, kPath, kSection, kKey, "new value");
    Require(files.bytes == once);
    return 0;
}
