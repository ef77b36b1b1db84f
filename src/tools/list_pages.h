// The file list as printed pages: the places of all texts, before anything is drawn. A printer, a
// PDF and a preview draw the same pages.
#pragma once

#include "platform/ask.h"
#include "project/records.h"

#include <vector>

namespace quillon {

// Lengths are millimetres from the upper left corner of the page, sizes of letters are points.
inline constexpr const char* kPrintFont = "Arial";
inline constexpr double kPageWidth = 210; // A4
inline constexpr double kPageHeight = 297;

struct PrintedText {
    double x;
    double y; // of the upper edge of the line
    int size;
    bool bold;
    Text text;
};

inline constexpr double kRuleWidth = 0.1;

/// A thin horizontal line.
struct PrintedRule {
    double fromX;
    double toX;
    double y;
};

struct PrintedPage {
    std::vector<PrintedText> texts;
    std::vector<PrintedRule> rules;
};

/// All pages of the open project's list. A list without rows has one page without rows; whether it
/// is printed at all is the command's to say. A size that is no number ends in a box, as
/// everywhere.
std::vector<PrintedPage> PagesOfFileList(const Project& project, const OpenProjectState& state,
                                         char decimalSign, Ask& ask);

/// False, and shows why, where there is nothing to print.
bool HasRowsToPrint(const FileList& files, Ask& ask);

} // namespace quillon
