#include "ini/profile_reader.h"

#include "helpers/ansi_text.h"
#include "platform/run_error.h"
#include "support/memory_host.h"

#include <functional>
#include <limits>

namespace quillon {

namespace {

using test::MemoryFiles;

// What comes back for the key "K" of a section "S" with these lines.
std::string Value(const std::string& lines, int limit = 200)
{
    ProfileReader reader;
    reader.SetIniBytes("[S]\r\n" + lines);
    reader.SetIniSection("S");
    return reader.ReadIniString("K", limit);
}

struct NastyLine {
    std::string lines;
    std::string value;
};

int ErrorOf(const std::function<void()>& work)
{
    return RunErrorNumber(work);
}

} // namespace

TEST(ReadIniString, TakesBlanksAndOnePairOfQuotationMarksAway)
{
    const NastyLine kLines[] = {
        {"K = text\r\n", "text"},
        {"K=text\r\n", "text"},
        {"K=text", "text"},
        {"K=text\n", "text"},
        {"  K  =  text  \r\n", "text"},
        {"\tK\t=\ttext\t\r\n", "text"},
        {"K = two words\r\n", "two words"},
        {"K = \r\n", ""},
        {"K =\r\n", ""},
        {"K = a=b\r\n", "a=b"},
        {"K == a\r\n", "= a"},
        {"K = \"text\"\r\n", "text"},
        {"K = 'text'\r\n", "text"},
        {"K = \" text \"\r\n", " text "},
        {"K =   \"text\"   \r\n", "text"},
        {"K = \"\"text\"\"\r\n", "\"text\""},
        {"K = '\"text\"'\r\n", "\"text\""},
        {"K = \"text'\r\n", "\"text'"},
        {"K = 'text\"\r\n", "'text\""},
        {"K = \"text\r\n", "\"text"},
        {"K = text\"\r\n", "text\""},
        {"K = \"a\" b\r\n", "\"a\" b"},
        {"K = \"a\" \"b\"\r\n", "a\" \"b"},
        {"K = \"\"\r\n", ""},
        {"K = \"\r\n", "\""},
        {"K = '\r\n", "'"},
        {"K = text ; no comment\r\n", "text ; no comment"},
        {"K = a\rb\r\n", "a\rb"},
    };
    for (const NastyLine& line : kLines)
        EXPECT_EQ(Value(line.lines), line.value) << testing::PrintToString(line.lines);
}

TEST(ReadIniString, TakesTheFirstMatchWithoutRegardToCase)
{
    const NastyLine kLines[] = {
        {"k = text\r\n", "text"},
        {"K = first\r\nK = second\r\n", "first"},
        {"k = first\r\nK = second\r\n", "first"},
        {"K =\r\nK = second\r\n", ""},
        {"K\r\nK = second\r\n", "second"},
        {"\r\n\r\nK = text\r\n", "text"},
        {";K = comment\r\nK = text\r\n", "text"},
        {"K2 = other\r\nKK = other\r\n", ""},
        {"[S]\r\nK = behind the same header again\r\n", ""},
        {"[T]\r\nK = other\r\n[S]\r\nK = too late\r\n", ""},
        {"", ""},
    };
    for (const NastyLine& line : kLines)
        EXPECT_EQ(Value(line.lines), line.value) << testing::PrintToString(line.lines);
}

TEST(ReadIniString, KnowsSectionsByTheirNameAlone)
{
    for (const char* header : {"[S]\r\n", "[s]\r\n", "  [S]\r\n", "[S]  \r\n", "[S]\n",
                               "[S] behind\r\n", "x = y\r\n[S]\r\n", "[T]\r\n[S]\r\n"}) {
        ProfileReader reader;
        reader.SetIniBytes(std::string(header) + "K = text\r\n");
        reader.SetIniSection("S");
        EXPECT_EQ(reader.ReadIniString("K", 200), "text") << header;
    }
    for (const char* header : {"", "S\r\n", "[S\r\n", "S]\r\n", "[S2]\r\n", "[ S]\r\n", "[]\r\n"}) {
        ProfileReader reader;
        reader.SetIniBytes(std::string(header) + "K = text\r\n");
        reader.SetIniSection("S");
        EXPECT_EQ(reader.ReadIniString("K", 200), "") << header;
    }
}

TEST(ReadIniString, IgnoresTheCaseOfSwedishLetters)
{
    ProfileReader reader;
    reader.SetIniBytes("[R\xC4KSM\xD6RG\xC5S]\r\n\xC5r = \xE5\xE4\xF6\x80\r\n");
    reader.SetIniSection("räksmörgås");
    EXPECT_EQ(reader.ReadIniString("åR", 200), "åäö€");
}

TEST(ReadIniString, CutsAtItsLimitInBytesOnFileAfterTheMarks)
{
    EXPECT_EQ(Value("K = abcdef\r\n", 7), "abcdef");
    EXPECT_EQ(Value("K = abcdef\r\n", 6), "abcde");
    EXPECT_EQ(Value("K = \"abcdef\"\r\n", 6), "abcde");
    EXPECT_EQ(Value("K = a b c\r\n", 3), "a ");
    EXPECT_EQ(Value("K = \xE5\xE4\xF6\r\n", 3), "åä");
    EXPECT_EQ(Value("K = abcdef\r\n", 1), "");
    EXPECT_EQ(Value("K = abcdef\r\n", 0), "");
    EXPECT_EQ(Value("K = abcdef\r\n", -1), "");
}

TEST(ReadIniString, EndsAtTheFirstZeroByte)
{
    EXPECT_EQ(Value(std::string("K = ab\0cd\r\n", 11)), "ab");
    EXPECT_EQ(Value(std::string("K = \0cd\r\n", 9)), "");
}

TEST(ReadIniString, RefusesALimitBeyondItsBuffer)
{
    EXPECT_EQ(Value("K = text\r\n", 5000), "text");
    EXPECT_EQ(Value("K = text\r\n", 5001), "Overflow!!!");
    EXPECT_EQ(ProfileReader().ReadIniString("K", 5001), "Overflow!!!");
}

TEST(ReadIniLongString, HasALargerBuffer)
{
    ProfileReader reader;
    std::string bytes = "[S]\r\nK = ";
    reader.SetIniBytes(bytes.append(20000, 'x').append("\r\n"));
    reader.SetIniSection("S");
    EXPECT_EQ(reader.ReadIniLongString("K", 16384), Text(16383, 'x'));
    EXPECT_EQ(reader.ReadIniLongString("K", 16385), "Overflow!!!");
}

TEST(ReadIniString, GivesEveryByteBack)
{
    std::string bytes;
    for (int byte = 0x80; byte <= 0xFF; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_EQ(AnsiText::ToBytes(Value("K = " + bytes + "\r\n")), bytes);
}

namespace {

struct NumberLine {
    std::string value;
    int number;
};

ProfileReader& WithValue(ProfileReader& reader, const std::string& value)
{
    reader.SetIniBytes("[S]\r\nK = " + value + "\r\n");
    reader.SetIniSection("S");
    return reader;
}

} // namespace

TEST(ReadIniInteger, ReadsDigitsUpToTheFirstOtherCharacter)
{
    const NumberLine kLines[] = {
        {"12", 12},       {"-12", -12},   {"12x", 12}, {"12.9", 12},       {"12 13", 12},
        {"x12", 0},       {"+12", 0},     {"- 12", 0}, {"-", 0},           {"", 0},
        {"\"12\"", 12},   {"'-12'", -12}, {"007", 7},  {"0x10", 0},        {"\" 12\"", 0},
        {"32767", 32767}, {"-0", 0},      {"1,5", 1},  {"-32768", -32768},
    };
    for (const NumberLine& line : kLines) {
        ProfileReader reader;
        WithValue(reader, line.value);
        EXPECT_EQ(reader.ReadIniInteger("K"), line.number) << line.value;
        EXPECT_EQ(reader.ReadIniInteger1("K"), line.number) << line.value;
        EXPECT_EQ(reader.ReadIniIntegerDefault("K", 7), line.number) << line.value;
        EXPECT_EQ(reader.ReadIniLong("K"), line.number) << line.value;
    }
}

TEST(ReadIniInteger, GivesTheDefaultForAMissingKeyOnly)
{
    ProfileReader reader;
    WithValue(reader, "");
    EXPECT_EQ(reader.ReadIniInteger("Missing"), 0);
    EXPECT_EQ(reader.ReadIniInteger1("Missing"), 1);
    EXPECT_EQ(reader.ReadIniIntegerDefault("Missing", 3), 3);
    EXPECT_EQ(reader.ReadIniLong("Missing"), 0);
    EXPECT_EQ(reader.ReadIniInteger1("K"), 0);
}

TEST(ReadIniInteger, FailsOnANumberThatDoesNotFit)
{
    for (const char* value : {"32768", "-32769", "99999", "99999999999999999999999"}) {
        ProfileReader reader;
        WithValue(reader, value);
        EXPECT_EQ(ErrorOf([&] { reader.ReadIniInteger("K"); }), 6) << value;
        EXPECT_EQ(ErrorOf([&] { reader.ReadIniInteger1("K"); }), 6) << value;
        EXPECT_EQ(ErrorOf([&] { reader.ReadIniIntegerDefault("K", 3); }), 6) << value;
    }
}

TEST(ReadIniLong, HoldsThirtyTwoBits)
{
    ProfileReader reader;
    EXPECT_EQ(WithValue(reader, "2147483647").ReadIniLong("K"), 2147483647);
    EXPECT_EQ(WithValue(reader, "-2147483648").ReadIniLong("K"), std::numeric_limits<Long>::min());
    WithValue(reader, "2147483648");
    EXPECT_EQ(ErrorOf([&] { reader.ReadIniLong("K"); }), 6);
    WithValue(reader, "-2147483649");
    EXPECT_EQ(ErrorOf([&] { reader.ReadIniLong("K"); }), 6);
}

TEST(ReadIniBoolean, IsOnForTheNumberOneAlone)
{
    for (const char* value : {"1", "01", "1x", "\"1\"", " 1 "}) {
        ProfileReader reader;
        WithValue(reader, value);
        EXPECT_EQ(reader.ReadIniBoolean("K"), kOn) << value;
        EXPECT_EQ(reader.ReadIniBoolean1("K"), kOn) << value;
    }
    for (const char* value : {"0", "-1", "2", "11", "", "True", "x1", "99999999999999999999"}) {
        ProfileReader reader;
        WithValue(reader, value);
        EXPECT_EQ(reader.ReadIniBoolean("K"), kOff) << value;
        EXPECT_EQ(reader.ReadIniBoolean1("K"), kOff) << value;
    }
}

TEST(ReadIniBoolean, DiffersWhereTheKeyIsMissing)
{
    ProfileReader reader;
    WithValue(reader, "1");
    EXPECT_EQ(reader.ReadIniBoolean("Missing"), kOff);
    EXPECT_EQ(reader.ReadIniBoolean1("Missing"), kOn);
}

TEST(ProfileReader, MissesEveryKeyBeforeAFileIsSet)
{
    ProfileReader reader;
    EXPECT_EQ(reader.ReadIniString("K", 200), "");
    EXPECT_EQ(reader.ReadIniInteger1("K"), 1);
    reader.SetIniSection("S");
    EXPECT_EQ(reader.ReadIniString("K", 200), "");
}

TEST(ProfileReader, KeepsFileAndSectionUntilTheyAreSetAnew)
{
    MemoryFiles files;
    files.Put("C:\\a.ini", "[S]\r\nK = a\r\n[T]\r\nK = at\r\n");
    files.Put("C:\\b.ini", "[S]\r\nK = b\r\n");
    ProfileReader reader;
    reader.SetIniSection("S");
    reader.SetIniFile(files, "C:\\a.ini");
    EXPECT_EQ(reader.ReadIniString("K", 200), "a");
    EXPECT_EQ(reader.ReadIniString("K", 200), "a");
    reader.SetIniSection("T");
    EXPECT_EQ(reader.ReadIniString("K", 200), "at");
    reader.SetIniSection("S");
    reader.SetIniFile(files, "C:\\b.ini");
    EXPECT_EQ(reader.ReadIniString("K", 200), "b");
}

TEST(ProfileReader, ReadsAFileThatChangedAfresh)
{
    MemoryFiles files;
    files.Put("C:\\a.ini", "[S]\r\nK = before\r\n");
    ProfileReader reader;
    reader.SetIniFile(files, "C:\\a.ini");
    reader.SetIniSection("S");
    files.Put("C:\\a.ini", "[S]\r\nK = after\r\n");
    reader.SetIniFile(files, "C:\\a.ini");
    EXPECT_EQ(reader.ReadIniString("K", 200), "after");
}

TEST(ProfileReader, TakesAFileThatCantBeReadForAnEmptyOne)
{
    MemoryFiles files;
    files.Put("C:\\locked.ini", "[S]\r\nK = text\r\n");
    files.At("C:\\locked.ini").unreadable = true;
    files.PutFolder("C:\\folder");
    ProfileReader reader;
    reader.SetIniSection("S");
    for (const char* path :
         {"C:\\missing.ini", "C:\\nowhere\\a.ini", "C:\\folder", "C:\\locked.ini", ""}) {
        reader.SetIniBytes("[S]\r\nK = of the file before\r\n");
        reader.SetIniFile(files, path);
        EXPECT_EQ(reader.ReadIniString("K", 200), "") << path;
    }
}

} // namespace quillon
