// The programs that a shortcut can show a document with: their names in a project and their numbers
// in the file list of a package, which the setup reads.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace quillon {

enum class DocumentViewer { OfSystem = 0, Notepad = 1, WinHelp = 2, WordPad = 3, Write = 4 };

struct NamedViewer {
    std::string_view name;
    DocumentViewer viewer;
};

inline constexpr std::array<NamedViewer, 4> kDocumentViewers{{{"Notepad", DocumentViewer::Notepad},
                                                              {"Winhelp", DocumentViewer::WinHelp},
                                                              {"WordPad", DocumentViewer::WordPad},
                                                              {"Write", DocumentViewer::Write}}};

/// The program that the system assigns to the document, for every other name.
constexpr DocumentViewer ViewerNamed(std::string_view name)
{
    const auto* const found = std::ranges::find(kDocumentViewers, name, &NamedViewer::name);
    return found == kDocumentViewers.end() ? DocumentViewer::OfSystem : found->viewer;
}

} // namespace quillon
