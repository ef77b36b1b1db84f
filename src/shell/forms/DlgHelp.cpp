#include "shell/forms/DlgHelp.h"

#include "ui/qt_text.h"

#include <QtWidgets>
#include <ranges>

namespace quillon {

namespace {

constexpr int kListLetters = 30;
constexpr int kPageLetters = 50;
constexpr int kPageLines = 24;
constexpr int kWindowLetters = 120;

QTextBrowser* PageView()
{
    auto* view = new QTextBrowser;
    view->setOpenLinks(false);
    view->setMinimumHeight(kPageLines / 2 * view->fontMetrics().lineSpacing());
    return view;
}

QTreeWidget* ListView()
{
    auto* list = new QTreeWidget;
    list->setHeaderHidden(true);
    list->setColumnCount(1);
    list->setRootIsDecorated(false);
    list->setIndentation(list->fontMetrics().horizontalAdvance("  "));
    return list;
}

} // namespace

DlgHelp::DlgHelp(std::vector<HelpPage> pages, QWidget* parent)
    : Form("DlgHelp", "Hjälp", parent), pages_(std::move(pages))
{
    Named(NAMED(tSearch), new QLineEdit);
    tSearch->setClearButtonEnabled(true);
    Named(NAMED(TreeOfPages), ListView(), "Hjälpens sidor");
    Named(NAMED(tPage), PageView(), "Hjälpsida");
    Button(NAMED(cmdClose), "S&täng", [this] { reject(); })->setDefault(true);
    ListPages();
    Arrange(HBox(
        {Growing(VBox({Fields({{"&Sök:", tSearch}}), Growing(MinWidth(kListLetters, TreeOfPages))}),
                 2),
         Growing(VBox({Growing(MinWidth(kPageLetters, tPage)), HBox({Stretch(), cmdClose})}), 3)}));
    connect(tSearch, &QLineEdit::textChanged, this, [this] { FilterPages(); });
    // Enter in the field for words goes to the pages that were found, and does not close the
    // window.
    for (const char* key : {"Return", "Enter"}) {
        auto* shortcut = new QShortcut(QKeySequence(key), tSearch);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, [this] { TreeOfPages->setFocus(); });
    }
    connect(TreeOfPages, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (const auto at = std::ranges::find(items_, item); at != items_.end())
            ShowPage(pages_[static_cast<std::size_t>(at - items_.begin())]);
    });
    connect(tPage, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        TreeOfPages->setCurrentItem(ItemOf(*FindHelpPage(pages_, FromQt(link.toString()))));
    });
    resize(kWindowLetters * fontMetrics().averageCharWidth(),
           kPageLines * fontMetrics().lineSpacing());
    Show({});
}

void DlgHelp::ListPages()
{
    QTreeWidgetItem* chapter = nullptr;
    for (const HelpPage& page : pages_) {
        if (!chapter || FromQt(chapter->text(0)) != page.chapter) {
            chapter = new QTreeWidgetItem(TreeOfPages, {ToQt(page.chapter)});
            chapter->setFlags(Qt::ItemIsEnabled);
        }
        items_.push_back(new QTreeWidgetItem(chapter, {ToQt(page.title)}));
    }
    TreeOfPages->expandAll();
}

QTreeWidgetItem* DlgHelp::ItemOf(const HelpPage& page) const
{
    return items_[static_cast<std::size_t>(&page - pages_.data())];
}

void DlgHelp::ShowPage(const HelpPage& page)
{
    tPage->setMarkdown(ToQt("## " + page.title + "\n" + page.body));
}

/// The page that is shown stays if it has the words; else the first one that has them is shown.
void DlgHelp::FilterPages()
{
    const Text words = FromQt(tSearch->text());
    QTreeWidgetItem* first = nullptr;
    for (std::size_t i = 0; i < items_.size(); ++i) {
        const bool isFound = HelpPageHasWords(pages_[i], words);
        items_[i]->setHidden(!isFound);
        if (isFound && !first)
            first = items_[i];
    }
    for (int row = 0; row < TreeOfPages->topLevelItemCount(); ++row) {
        QTreeWidgetItem* chapter = TreeOfPages->topLevelItem(row);
        const auto pages = std::views::iota(0, chapter->childCount());
        chapter->setHidden(std::ranges::all_of(
            pages, [chapter](int page) { return chapter->child(page)->isHidden(); }));
    }
    const QTreeWidgetItem* current = TreeOfPages->currentItem();
    if (first && (!current || current->isHidden()))
        TreeOfPages->setCurrentItem(first);
    if (!first)
        tPage->setMarkdown("Ingen sida innehåller alla orden.");
    else if (current && !current->isHidden())
        ShowPage(
            pages_[static_cast<std::size_t>(std::ranges::find(items_, current) - items_.begin())]);
}

void DlgHelp::Show(const HelpRequest& request)
{
    tSearch->clear();
    QTreeWidgetItem* item = ItemOf(*FindHelpPage(pages_, HelpPageOf(request.command)));
    TreeOfPages->setCurrentItem(item);
    TreeOfPages->scrollToItem(item);
    if (request.searches)
        tSearch->setFocus();
    else
        TreeOfPages->setFocus();
}

HelpWindow HelpWindowOf(QWidget& mainWindow)
{
    // One window for each window that asks for help: while a dialog is modal, only its own windows
    // get the mouse and the keys.
    return [&mainWindow](std::vector<HelpPage> pages, const HelpRequest& request) {
        QWidget* modal = QApplication::activeModalWidget();
        QWidget* owner = modal ? modal : &mainWindow;
        auto* help = static_cast<DlgHelp*>(
            owner->findChild<QDialog*>("DlgHelp", Qt::FindDirectChildrenOnly));
        if (!help)
            help = new DlgHelp(std::move(pages), owner);
        help->Show(request);
        help->show();
        help->raise();
        help->activateWindow();
    };
}

} // namespace quillon
