#include "project/file_rows.h"

#include "platform/run_error.h"
#include "project/total_size.h"
#include "project_file_fixture.h"

namespace quillon {

using test::Full;
using test::ProjectOnDisk;
using test::ValueIn;
using test::With;
using test::WithValue;

namespace {

// The full project with these lines for its rows.
std::string WithRows(const std::string& files, const std::string& rows)
{
    const std::string bytes = WithValue(Full(), "FileListInfo", "Files", files);
    return bytes.substr(0, bytes.find("F1=")) + rows;
}

FileListRow Row(std::initializer_list<const char*> fields)
{
    FileListRow row;
    std::copy(fields.begin(), fields.end(), row.columns.begin());
    return row;
}

constexpr const char* kThreeRows = "F1=a;;;;;;;;;;;;;;;\r\nF2=b;;;;;;;;;;;;;;;\r\n"
                                   "F3=c;;;;;;;;;;;;;;;\r\n....\r\n\r\n-(EOF)-\r\n\r\n";

std::vector<Text> Names(const Project& project)
{
    std::vector<Text> names;
    for (const FileListRow& row : project.Files.rows)
        names.push_back(row[Filename]);
    return names;
}

} // namespace

TEST(FileRowLine, HasASemicolonBehindEachOfFifteenFields)
{
    EXPECT_EQ(FileRowLine(1, {}), "F1=;;;;;;;;;;;;;;;");
    EXPECT_EQ(FileRowLine(32767, Row({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12",
                                      "13", "14", "15"})),
              "F32767=1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;");
}

TEST(AddRowFromLine, CutsTheFieldsBehindTheFirstEqualsSign)
{
    struct Case {
        const char* line;
        bool isWhole;
        std::vector<FileListRow> rows;
    };
    const FileListRow fifteen =
        Row({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15"});
    const Case kCases[] = {
        {"F1=1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;", true, {fifteen}},
        {"anything = at all=1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;", true, {[&] {
             FileListRow row = fifteen;
             row[Filename] = " at all=1";
             return row;
         }()}},
        {"=1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;", true, {fifteen}},
        {"F1=1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;16;17", true, {fifteen}},
        {"F1=;;;;;;;;;;;;;;;", true, {Row({})}},
        {"F1=1;2;3;4;5;6;7;8;9;10;11;12;13;14;15",
         false,
         {Row({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14"})}},
        {"F1=1;2;3;4;5;6;7;8;", false, {Row({"1", "2", "3", "4", "5", "6", "7", "8"})}},
        {"F1=1;", false, {Row({"1"})}},
        {"F1=;", false, {Row({})}},
        {"F1=1", false, {}},
        {"F1=", false, {}},
        {"1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;", false, {}},
        {"", false, {}},
    };
    for (const Case& one : kCases) {
        std::vector<FileListRow> rows;
        EXPECT_EQ(AddRowFromLine(one.line, '.', rows), one.isWhole) << one.line;
        EXPECT_EQ(rows, one.rows) << one.line;
    }
}

TEST(AddRowFromLine, BringsTheSizeAloneToTheSignOfThisMachine)
{
    std::vector<FileListRow> rows;
    AddRowFromLine("F1=a,b;c,d;10,5;;;;;;;;;;;;;", '.', rows);
    EXPECT_EQ(rows[0], Row({"a,b", "c,d", "10.5"}));
    AddRowFromLine("F2=a,b;c,d;10,5;;;;;;;", '.', rows);
    EXPECT_EQ(rows[1][Size], "10,5"); // a row that is cut stays as it stands
}

TEST(NormalizeDecimalSeparator, ReplacesTheFirstForeignSign)
{
    struct Case {
        const char* number;
        char sign;
        const char* normal;
    };
    const Case kCases[] = {
        {"10,5", '.', "10.5"},       {"10.5", '.', "10.5"},
        {"10.5", ',', "10,5"},       {"10,5", ',', "10,5"},
        {"10", '.', "10"},           {"", '.', ""},
        {"1,234,5", '.', "1.234,5"}, {"1.234,5", '.', "1.234,5"},
        {"1.234.5", ',', "1,234.5"}, {",", '.', "."},
        {"abc", ',', "abc"},
    };
    for (const Case& one : kCases)
        EXPECT_EQ(NormalizeDecimalSeparator(one.number, one.sign), one.normal) << one.number;
}

TEST(FileListSection, TakesAtMostAsManyRowsAsFilesSays)
{
    struct Case {
        const char* files;
        std::vector<Text> names;
        ReadEnd end;
    };
    const Case kCases[] = {
        {"3", {"a", "b", "c"}, ReadEnd::Whole}, {"2", {"a", "b"}, ReadEnd::RowsLeft},
        {"0", {}, ReadEnd::RowsLeft},           {"-1", {}, ReadEnd::RowsLeft},
        {"4", {"a", "b", "c"}, ReadEnd::Whole}, {"", {}, ReadEnd::RowsLeft},
        {"tre", {}, ReadEnd::RowsLeft},         {"32767", {"a", "b", "c"}, ReadEnd::Whole},
    };
    for (const Case& one : kCases) {
        ProjectOnDisk disk;
        EXPECT_EQ(disk.Load(WithRows(one.files, kThreeRows)), one.end) << one.files;
        EXPECT_EQ(Names(disk.project), one.names) << one.files;
    }
}

TEST(FileListSection, IsTrappedByACountThatDoesNotFit)
{
    ProjectOnDisk disk;
    EXPECT_EQ(disk.Load(WithRows("32768", kThreeRows)), ReadEnd::Failed);
    EXPECT_EQ(disk.beeps, 2);
    EXPECT_TRUE(disk.project.Files.rows.empty());
    EXPECT_EQ(disk.project.FileComponents[0].CompName, "Hjälp");
}

TEST(FileListSection, EndsAtALineThatIsNoRow)
{
    struct Case {
        const char* secondLine;
        std::size_t rows;
    };
    const Case kCases[] = {
        {"F2=no field", 1},
        {"no sign;;;;;;;;;;;;;;;", 1},
        {"", 1},
        {"F2=b;2;3;4;5;6;7;8;", 2},
    };
    for (const Case& one : kCases) {
        ProjectOnDisk disk;
        const std::string rows = std::string("F1=a;;;;;;;;;;;;;;;\r\n") + one.secondLine +
                                 "\r\nF3=c;;;;;;;;;;;;;;;\r\n....\r\n";
        EXPECT_EQ(disk.Load(WithRows("3", rows)), ReadEnd::RowsCut) << one.secondLine;
        EXPECT_EQ(disk.beeps, 0);
        EXPECT_EQ(disk.project.Files.rows.size(), one.rows) << one.secondLine;
    }
}

TEST(FileListSection, StopsSilentlyAtTheEndOfTheFile)
{
    ProjectOnDisk disk;
    EXPECT_EQ(disk.Load(WithRows("3", "F1=a;;;;;;;;;;;;;;;\r\n")), ReadEnd::Stopped);
    EXPECT_EQ(disk.project.Files.rows.size(), 1U);
    EXPECT_EQ(disk.Load(WithRows("1", "F1=a;;;;;;;;;;;;;;;")), ReadEnd::Whole);
    EXPECT_EQ(disk.project.Files.rows.size(), 1U);
}

TEST(FileListSection, KeepsTheOrderAndTheBytesOfItsRows)
{
    ProjectOnDisk disk;
    disk.project.Files.rows = {Row({"z\xC3\xA5.txt", "%DESTDIR", "1,5"}), Row({"a.txt"}),
                               Row({"<Dir>", "%DESTDIR\\Tom"})};
    const std::string saved = disk.Save();
    EXPECT_NE(saved.find("[FileList]\r\nF1=z\xE5.txt;%DESTDIR;1,5;;;;;;;;;;;;;\r\n"
                         "F2=a.txt;;;;;;;;;;;;;;;\r\nF3=<Dir>;%DESTDIR\\Tom;;;;;;;;;;;;;;\r\n"
                         "....\r\n\r\n-(EOF)-\r\n\r\n"),
              std::string::npos);
    const auto rows = disk.project.Files.rows;
    disk.Load(saved);
    EXPECT_EQ(disk.project.Files.rows, rows);
}

TEST(FileListSection, ConvertsSizesFromAMachineWithTheOtherDecimalSign)
{
    ProjectOnDisk disk;
    disk.machine.machine.decimalSign = '.';
    const std::string saved = disk.Resave(Full());
    EXPECT_EQ(disk.project.Files.rows[0][Size], "10.5");
    EXPECT_EQ(disk.project.DesBackground.BlendDepth, "0,75");
    EXPECT_EQ(disk.project.DesTitle.TitleCharInterSpace, "1.5");
    EXPECT_EQ(ValueIn(saved, "FileListInfo", "TotalSize"), "30");
    EXPECT_NE(saved.find("F1=R\xE4knare.exe;%DESTDIR;10.5;"), std::string::npos);
}

TEST(FileListSection, NeverLooksAtTheTotalSizeOnFile)
{
    ProjectOnDisk disk;
    EXPECT_EQ(disk.Resave(WithValue(Full(), "FileListInfo", "TotalSize", "99999999999")), Full());
}

TEST(FileListSection, HoldsAllTheRowsThatANumberOfSixteenBitsCanCount)
{
    ProjectOnDisk disk;
    for (std::size_t i = 0; i < kMaxRows; ++i)
        disk.project.Files.rows.push_back(Row({"a.txt", "%DESTDIR", "2"}));
    disk.project.Files.rows.back()[Filename] = "last.txt";
    const std::string saved = disk.Save();
    EXPECT_EQ(ValueIn(saved, "FileListInfo", "Files"), "32767");
    EXPECT_EQ(ValueIn(saved, "FileListInfo", "TotalSize"), "65534");
    const auto rows = disk.project.Files.rows;
    ASSERT_EQ(disk.Load(saved), ReadEnd::Whole);
    EXPECT_EQ(disk.project.Files.rows, rows);
}

TEST(FileListSection, OfOneRowTooManyFailsAndLeavesTheFile)
{
    ProjectOnDisk disk;
    disk.machine.files.Put(test::kPath, "old");
    disk.project.Files.rows.resize(kMaxRows + 1);
    EXPECT_EQ(RunErrorNumber([&] { disk.Save(); }), 6);
    EXPECT_EQ(disk.machine.files.Get(test::kPath), "old");
}

TEST(SumOfSizes, RoundsTheSumToTheEvenNeighbour)
{
    struct Case {
        std::vector<const char*> sizes;
        std::optional<Long> sum;
    };
    const Case kCases[] = {
        {{}, 0},
        {{"10,5", "20"}, 30},
        {{"10,5", "21"}, 32},
        {{"0,4", "0,4", "0,4"}, 1},
        {{"", "5", ""}, 5},
        {{"5.5"}, std::nullopt},
        {{"abc", "5"}, std::nullopt},
        {{"2147483647"}, 2147483647},
        {{"2147483647", "1"}, std::nullopt},
        {{"99999999999999999999"}, std::nullopt},
    };
    for (const Case& one : kCases) {
        FileList list;
        for (const char* size : one.sizes)
            list.rows.push_back(Row({"a", "b", size}));
        EXPECT_EQ(SumOfSizes(list.rows, ','), one.sum) << testing::PrintToString(one.sizes);
    }
}

TEST(SumOfSizes, ThatCantBeToldBringsABoxOnSavingAndCountsAsZero)
{
    ProjectOnDisk disk;
    disk.project.Files.rows = {Row({"a", "b", "1"}), Row({"a", "b", "stor"})};
    test::ScriptedAsk ask{
        {{test::BoxKind::Critical, "Fel",
          "Ett fel inträffade totalsumman av filstorlekarna skulle beräknas i fillistan! Kan bero "
          "på att decimalavskiljaren inte är av standardtyp (punkt eller komma)."}}};
    WriteProjectFile(disk.project, test::kPath, disk.machine.host, ask);
    const std::string saved = disk.machine.files.Get(test::kPath);
    EXPECT_EQ(ValueIn(saved, "FileListInfo", "TotalSize"), "0");
    EXPECT_EQ(ValueIn(saved, "FileListInfo", "Files"), "2");
}

} // namespace quillon
