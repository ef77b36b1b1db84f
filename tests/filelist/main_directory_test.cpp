#include "filelist/main_directory.h"

#include "support/scripted_ask.h"

namespace quillon::test {
namespace {

const ExpectedBox kInvalid{BoxKind::Critical, "Felaktig huvudkatalog",
                           "Huvudkatalogen är ogiltig!"};
const ExpectedBox kBadVariable{
    BoxKind::Critical, "Ogiltig variabel",
    "Du kan endast använda %PROGRAMFILES, %MYDOCUMENTS, %REG1, %REG2 eller %REG3 som variabel i "
    "huvudkatalogen! Inga andra variabler är tillåtna!"};
const ExpectedBox kDriveAlone{
    BoxKind::Critical, "Felaktig huvudkatalog",
    "Huvudkatalogen måste innehålla ett katalognamn. Den får inte bara bestå av en "
    "enhetsbokstav!"};

TEST(CheckMainDirectory, GivesTheFolderBackAsItIsToStand)
{
    struct Row {
        const char* typed;
        const char* result;
        std::deque<ExpectedBox> boxes = {};
    };
    const Row rows[] = {
        {"", ""},
        {"   ", ""},
        {"  C:\\App  ", "C:\\App"},
        {"C:\\App\\", "C:\\App"},
        {"C:\\%PROGRAMFILES\\App", "%PROGRAMFILES\\App"},
        {"d:\\%MYDOCUMENTS\\App", "%MYDOCUMENTS\\App"},
        {"D:\\%MYDOCUMENTS", "%MYDOCUMENTS"},
        {"Å:\\%PROGRAMFILES", "%PROGRAMFILES"},
        // The variable is not where the drive ends, and is one of those that pass.
        {"D:\\Data\\%MYDOCUMENTS", "D:\\Data\\%MYDOCUMENTS"},
        {"C:%PROGRAMFILES\\App", "C:%PROGRAMFILES\\App"},
        // The drive is removed in any case of letters; the variable itself counts in capitals only.
        {"C:\\%programfiles\\App", "%programfiles\\App", {kBadVariable}},
        {"C:\\%REG1\\App", "C:\\%REG1\\App"},
        {"%REG1", "%REG1"},
        {"%REG2\\x\\", "%REG2\\x"},
        {"%REG3", "%REG3"},
        {"%REG4", "%REG4", {kBadVariable}},
        {"%PROGRAMFILES\\%SYSDIR", "%PROGRAMFILES\\%SYSDIR"},
        {"%DESTDIR", "%DESTDIR", {kBadVariable}},
        {"%DESTDIR\\", "%DESTDIR", {kBadVariable}},
        {"100%", "100%", {kBadVariable}},
        {"\\\\server\\app", "", {kInvalid}},
        {"C:\\a\\\\b", "", {kInvalid}},
        {"C:\\\\%PROGRAMFILES", "", {kInvalid}},
        {"C:\\App\\\\", "", {kInvalid}},
        {"c:", "", {kDriveAlone}},
        {"c:\\", "", {kDriveAlone}},
        {" c:\\ ", "", {kDriveAlone}},
        {"ö:", "", {kDriveAlone}},
        // The wrong variable is reported, and the check goes on after it.
        {"%:", "", {kBadVariable, kDriveAlone}},
        {"a", "a"},
        {":\\", ":"},
        {"App", "App"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.typed);
        ScriptedAsk ask{row.boxes};
        EXPECT_EQ(CheckMainDirectory(row.typed, ask), row.result);
    }
}

} // namespace
} // namespace quillon::test
