// The help: its pages by chapter, a field for words that filters them, and the chosen page. It
// stays open while the window that it belongs to is used.
#pragma once

#include "shell/help_pages.h"
#include "ui/kit/Form.h"

class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;

namespace quillon {

class DlgHelp : public Form {
public:
    /// `pages` has at least one.
    DlgHelp(std::vector<HelpPage> pages, QWidget* parent);

    /// Comes to the front and shows the page that is asked for.
    void Show(const HelpRequest& request);

    QLineEdit* tSearch = nullptr;
    QTreeWidget* TreeOfPages = nullptr;
    QTextBrowser* tPage = nullptr;
    QPushButton* cmdClose = nullptr;

private:
    void ListPages();
    void ShowPage(const HelpPage& page);
    void FilterPages();
    QTreeWidgetItem* ItemOf(const HelpPage& page) const;

    const std::vector<HelpPage> pages_;
    // In the order of the pages.
    std::vector<QTreeWidgetItem*> items_;
};

/// A help window that belongs to whatever window the user is in.
HelpWindow HelpWindowOf(QWidget& mainWindow);

} // namespace quillon
