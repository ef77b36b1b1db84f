#include "tools/list_pages.h"

#include "filelist/view/totals.h"
#include "project/components.h"
#include "project/project_title.h"

namespace quillon {

namespace {

constexpr double kLeft = 17;
constexpr double kRight = 190;
constexpr double kValueX = 47; // of the project block
constexpr double kRowHeight = 4;
constexpr double kLastRowY = 266;

struct PrintedColumn {
    double x;
    const char* header;
    Column column;
};

// clang-format off
constexpr PrintedColumn kPrintedColumns[] = {
    {17,  "Filnamn",     Filename},
    {55,  "Destination", Destination},
    {124, "Storlek",     Size},
    {139, "Datum",       Date},
    {155, "Tid",         Time},
    {166, "",            IconMarker},
    {174, "Inst",        CopyOptions},
    {187, "K",           ComponentNumber},
};
// clang-format on

class PageWriter {
public:
    PageWriter(const Project& project, const OpenProjectState& state, const Text& total)
        : project_(project), state_(state), total_(total)
    {
    }

    std::vector<PrintedPage> PrintAll()
    {
        NewPage();
        PrintProjectInfo();
        PrintRuleLine(46);
        PrintColumnHeaders(52);
        lineY_ = 61;
        for (const FileListRow& row : project_.Files.rows)
            PrintRow(row);
        return std::move(pages_);
    }

private:
    void Print(double x, double y, int size, bool bold, const Text& text)
    {
        if (!text.empty())
            pages_.back().texts.push_back({x, y, size, bold, text});
    }

    void PrintRuleLine(double y) { pages_.back().rules.push_back({kLeft, kRight, y}); }

    void NewPage()
    {
        pages_.emplace_back();
        PrintPageHeader(static_cast<std::int64_t>(pages_.size()));
        PrintRuleLine(21);
    }

    void PrintPageHeader(std::int64_t pageNr)
    {
        const Text& file = state_.ProjectFileName;
        Text title = "Quillon 2004 - Fillista";
        if (file != kUnsavedProjectName)
            title += " - [" + ProjectTitle(file) + "]";
        Print(kLeft, 15, 10, false, title);
        Print(180, 15, 10, false, "Sid " + NumberText(pageNr));
    }

    void PrintProjectInfo()
    {
        const auto rowCount = static_cast<std::int64_t>(project_.Files.rows.size());
        Print(kLeft, 25, 11, true, "Projekt:");
        Print(kValueX, 25, 11, false, project_.ProjectName.ProjectName);
        const auto line = [&](double y, const Text& label, const Text& value) {
            Print(kLeft, y, 10, false, label);
            Print(kValueX, y, 10, false, value);
        };
        line(32, "Huvudkatalog:", project_.InstallDirectories.DestinationDirectory);
        line(36, "Antal objekt:", NumberText(rowCount));
        line(40, "Total storlek:", total_ + " kb");
    }

    void PrintColumnHeaders(double y)
    {
        for (const PrintedColumn& column : kPrintedColumns)
            if (column.column != ComponentNumber || IsAnyComponentInUse(project_))
                Print(column.x, y, 9, true, column.header);
    }

    void PrintRow(const FileListRow& row)
    {
        // Kept: texts are not cut, so a long destination runs into the size.
        for (const PrintedColumn& column : kPrintedColumns)
            Print(column.x, lineY_, 8, false, row[column.column]);
        lineY_ += kRowHeight;
        // Kept: the test follows the row, so a list that just fills a page is followed by one
        // with headings and no rows.
        if (lineY_ > kLastRowY) {
            lineY_ = 34;
            NewPage();
            PrintColumnHeaders(25);
        }
    }

    const Project& project_;
    const OpenProjectState& state_;
    Text total_;
    std::vector<PrintedPage> pages_;
    double lineY_ = 0;
};

} // namespace

std::vector<PrintedPage> PagesOfFileList(const Project& project, const OpenProjectState& state,
                                         char decimalSign, Ask& ask)
{
    const Long total = GetTotalSizeOfFiles(project.Files, decimalSign, ask);
    return PageWriter(project, state, FormatNumber(total, "## ##0.0", decimalSign)).PrintAll();
}

bool HasRowsToPrint(const FileList& files, Ask& ask)
{
    if (!files.rows.empty())
        return true;
    ask.Inform("Info", "Det finns inga filer i fillistan!");
    return false;
}

} // namespace quillon
