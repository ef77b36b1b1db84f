#include "app/file_list/FindBar.h"

#include "app/file_list/FileListView.h"
#include "ui/kit/form_kit.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

// "32767 av 32767"
constexpr int kResultLetters = 15;

Text ResultText(const std::optional<FoundRow>& found)
{
    if (!found)
        return "Ingen träff";
    return NumberText(static_cast<std::int64_t>(found->place)) + " av " +
           NumberText(static_cast<std::int64_t>(found->count));
}

} // namespace

FindBar::FindBar(const FileList& files, FileListView& list) : files_(files), list_(list)
{
    setObjectName("FindBar");
    Named(NAMED(tFind), new QLineEdit, "Sök i fillistan");
    tFind->setPlaceholderText("Sök i fillistan");
    tFind->setClearButtonEnabled(true);
    connect(tFind, &QLineEdit::textChanged, this, [this] { FindTyped(); });
    Named(NAMED(sFound), new QLabel);
    Arrange(this, HBox({Growing(tFind), MinWidth(kResultLetters, sFound),
                        Button(NAMED(cmdFindPrevious), "Föregående", &FindBar::FindPrevious),
                        Button(NAMED(cmdFindNext), "Nästa", &FindBar::FindNext),
                        Button(NAMED(cmdFindClose), "Stäng", &FindBar::Close)}));
    layout()->setContentsMargins({});
    MakeKeys();
    hide();
}

QPushButton* FindBar::Button(QPushButton*& member, const char* name, const Text& caption,
                             void (FindBar::*press)())
{
    auto* button = Named(member, name, new QPushButton(ToQt(caption)));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, press);
    return button;
}

void FindBar::MakeKeys()
{
    const auto key = [this](const char* keys, QWidget* where, void (FindBar::*press)()) {
        auto* shortcut = new QShortcut(QKeySequence(keys), where);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, press);
    };
    key("Return", tFind, &FindBar::FindNext);
    key("Enter", tFind, &FindBar::FindNext);
    key("Shift+Return", tFind, &FindBar::FindPrevious);
    key("Shift+Enter", tFind, &FindBar::FindPrevious);
    key("Esc", this, &FindBar::Close);
    for (QWidget* where : {static_cast<QWidget*>(this), static_cast<QWidget*>(&list_)}) {
        key("F3", where, &FindBar::FindNext);
        key("Shift+F3", where, &FindBar::FindPrevious);
    }
}

void FindBar::Open()
{
    show();
    tFind->setFocus();
    tFind->selectAll();
}

void FindBar::Close()
{
    hide();
    list_.setFocus();
}

void FindBar::Find(FindStep step)
{
    const Text text = FromQt(tFind->text());
    sFound->setText("");
    if (text.empty())
        return;
    const int current = list_.currentIndex().row();
    // Without a current row the first one is as good as any.
    const auto from = static_cast<std::size_t>(std::max(current, 0));
    const auto found =
        FindRow(files_, text, list_.ShownColumns(), from, current < 0 ? FindStep::Here : step);
    sFound->setText(ToQt(ResultText(found)));
    if (found)
        list_.setCurrentIndex(list_.model()->index(static_cast<int>(found->row), 0));
}

} // namespace quillon
